#include "start.h"

void board_reset(void);

/* From board.ld. */
extern uint32_t board_stack_top[];

static volatile uint32_t* device(uint32_t address) { return (volatile uint32_t*)address; }

int board_semihost(int operation, const void* parameters) {
  register int r0 __asm__("r0") = operation;
  register const void* r1 __asm__("r1") = parameters;
  __asm__ volatile("bkpt 0xab" : "+r"(r0) : "r"(r1) : "memory");
  return r0;
}

#define SYSTEM_CONTROL 0xe000ed00
#define FAULT_STATUS device(SYSTEM_CONTROL + 0x28)
#define FAULT_ADDRESS device(SYSTEM_CONTROL + 0x34)

#if __ARM_ARCH >= 7
#define MPU_CONTROL device(SYSTEM_CONTROL + 0x94)
#define MPU_NUMBER device(SYSTEM_CONTROL + 0x98)
#define MPU_BASE device(SYSTEM_CONTROL + 0x9c)
#define MPU_LIMIT device(SYSTEM_CONTROL + 0xa0)

void board_protect(int area, const volatile void* address, uint32_t size, enum board_access access) {
  const uint32_t base = (uint32_t)address;
#if __ARM_ARCH >= 8
  /* No region of this MPU refuses every access, but two that overlap do: each area has two. */
  for (uint32_t twin = 0; twin < 2; ++twin) {
    *MPU_NUMBER = 2 * (uint32_t)area + twin;
    *MPU_BASE = base | 2 << 1 | 1; /* read only, execute never */
    *MPU_LIMIT = (base + size - 32) | (access > BOARD_ACCESS_ALL + (enum board_access)twin);
  }
#else
  const uint32_t read_only = access == BOARD_ACCESS_READ ? 5u << 24 : 0;
  *MPU_NUMBER = (uint32_t)area;
  *MPU_BASE = base;
  /* Execute never; the size as its logarithm less one. */
  *MPU_LIMIT = 1u << 28 | read_only | (30u - (uint32_t)__builtin_clz(size)) << 1 | (access != BOARD_ACCESS_ALL);
#endif
  *MPU_CONTROL = 5; /* on; what lies in no area stays accessible */
  __asm__ volatile("dsb\n\tisb" ::: "memory");
}
#endif

__attribute__((used, noreturn)) static void report_fault(const uint32_t* frame) {
  const uint32_t status = *FAULT_STATUS;
  const uint32_t instruction = frame[6];
  /* Bits 7 and 15 of the status tell whether the address of a memory or a bus fault is known. */
  board_fault(status & 0x80 ? FAULT_ADDRESS[0] : status & 0x8000 ? FAULT_ADDRESS[1] : instruction, instruction, status);
}

__attribute__((naked)) static void fault(void) { __asm__("mov r0, sp\n\tb report_fault"); }

void board_reset(void) { board_run(); }

__attribute__((section(".vectors"), used)) static const void* const vectors[16] = {
    board_stack_top, board_reset, fault, fault, fault, fault, fault, fault};
