#include "start.h"

void board_reset(void);

/* board_semihost. Two shifts that do nothing tell the call from a breakpoint; no page may end among the three. */
__asm__(
    ".text\n\t.balign 16\n\t.global board_semihost\n"
    "board_semihost:\n\t"
    ".option push\n\t.option norvc\n\t"
    "slli zero, zero, 0x1f\n\tebreak\n\tsrai zero, zero, 7\n\t"
    ".option pop\n\tret");

__attribute__((used, interrupt, noreturn, aligned(4))) static void fault(void) {
  uint32_t address, instruction, cause;
  __asm__("csrr %0, mtval\n\tcsrr %1, mepc\n\tcsrr %2, mcause" : "=r"(address), "=r"(instruction), "=r"(cause));
  board_fault(address, instruction, cause);
}

__attribute__((naked, section(".vectors"))) void board_reset(void) {
  __asm__("la sp, board_stack_top\n\tla t0, fault\n\tcsrw mtvec, t0\n\tj board_run");
}
