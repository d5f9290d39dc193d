#include "board.h"

int main(int argument_count, char** arguments);
void board_reset(void);

/* Present only in an image that links a hosted C library. */
__attribute__((weak)) void initialise_monitor_handles(void);
__attribute__((weak, noreturn)) void exit(int status);

/* From board.ld. */
extern uint32_t board_stack_top[], board_data_load[], board_data[], board_data_end[], board_bss[], board_bss_end[];
extern void (*const board_constructors[])(void);
extern void (*const board_constructors_end[])(void);

static volatile uint32_t* device(uint32_t address) { return (volatile uint32_t*)address; }

enum { UART_DATA, UART_STATE, UART_CONTROL, UART_DIVIDER = 4 };

int board_read(void) {
  while (!(device(BOARD_UART)[UART_STATE] & 2)) {
  }
  return (int)(device(BOARD_UART)[UART_DATA] & 0xff);
}

void board_write(char character) {
  while (device(BOARD_UART)[UART_STATE] & 1) {
  }
  device(BOARD_UART)[UART_DATA] = (unsigned char)character;
}

static int semihost(int operation, const void* parameters) {
  register int r0 __asm__("r0") = operation;
  register const void* r1 __asm__("r1") = parameters;
  __asm__ volatile("bkpt 0xab" : "+r"(r0) : "r"(r1) : "memory");
  return r0;
}

void board_exit(int status) {
  const uint32_t application_exit[] = {0x20026, (uint32_t)status};
  for (;;) semihost(0x20, application_exit);
}

#define SYSTEM_CONTROL 0xe000ed00
#define FAULT_STATUS device(SYSTEM_CONTROL + 0x28)
#define FAULT_ADDRESS device(SYSTEM_CONTROL + 0x34)
#define MPU_CONTROL device(SYSTEM_CONTROL + 0x94)
#define MPU_NUMBER device(SYSTEM_CONTROL + 0x98)
#define MPU_BASE device(SYSTEM_CONTROL + 0x9c)
#define MPU_LIMIT device(SYSTEM_CONTROL + 0xa0)

void board_protect(int area, const volatile void* address, uint32_t size, enum board_access access) {
  const uint32_t base = (uint32_t)address;
#if __ARM_ARCH >= 8
  /* This MPU cannot refuse every access, but two regions that overlap do: each area has two. */
  for (uint32_t twin = 0; twin < 2; ++twin) {
    *MPU_NUMBER = 2 * (uint32_t)area + twin;
    *MPU_BASE = base | 2 << 1 | 1;
    *MPU_LIMIT = (base + size - 32) | (access > BOARD_ACCESS_ALL + (enum board_access)twin);
  }
#else
  const uint32_t read_only = access == BOARD_ACCESS_READ ? 5u << 24 : 0;
  *MPU_NUMBER = (uint32_t)area;
  *MPU_BASE = base;
  *MPU_LIMIT = 1u << 28 | read_only | (30u - (uint32_t)__builtin_clz(size)) << 1 | (access != BOARD_ACCESS_ALL);
#endif
  *MPU_CONTROL = 5;
  __asm__ volatile("dsb\n\tisb" ::: "memory");
}

static void write_text(const char* text) {
  while (*text) board_write(*text++);
}

static void write_hexadecimal(uint32_t value) {
  write_text(" 0x");
  for (int shift = 28; shift >= 0; shift -= 4) board_write("0123456789abcdef"[value >> shift & 15]);
}

__attribute__((used, noreturn)) static void report_fault(const uint32_t* frame) {
  const uint32_t status = *FAULT_STATUS;
  write_text("\nfault at");
  /* Bits 7 and 15 of the status tell whether the address of the memory or bus fault is known. */
  write_hexadecimal(status & 0x80 ? FAULT_ADDRESS[0] : status & 0x8000 ? FAULT_ADDRESS[1] : frame[6]);
  write_text(", instruction");
  write_hexadecimal(frame[6]);
  write_text(", status");
  write_hexadecimal(status);
  write_text("\n");
  board_exit(70);
}

__attribute__((naked)) static void fault(void) { __asm__("mov r0, sp\n\tb report_fault"); }

static int split_arguments(char* line, char** arguments, int limit) {
  int count = 0;
  while (*line && count < limit) {
    arguments[count++] = line;
    while (*line && *line != ' ') ++line;
    if (*line) *line++ = 0;
  }
  return count;
}

void board_reset(void) {
  const uint32_t* load = board_data_load;
  for (uint32_t* word = board_data; word != board_data_end;) *word++ = *load++;
  for (uint32_t* word = board_bss; word != board_bss_end;) *word++ = 0;
  device(BOARD_UART)[UART_DIVIDER] = 217; /* 115,200 baud at 25 MHz */
  device(BOARD_UART)[UART_CONTROL] = 3;

  static char line[512];
  static char* arguments[16];
  const uint32_t command_line[] = {(uint32_t)line, sizeof line};
  semihost(0x15, command_line);
  const int argument_count = split_arguments(line, arguments, 15);

  if (initialise_monitor_handles) initialise_monitor_handles();
  for (void (*const* constructor)(void) = board_constructors; constructor != board_constructors_end;)
    (*constructor++)();
  const int status = main(argument_count, arguments);
  if (exit) exit(status);
  board_exit(status);
}

__attribute__((section(".vectors"), used)) static const void* const vectors[16] = {
    board_stack_top, board_reset, fault, fault, fault, fault, fault, fault};
