#include "start.h"

void board_reset(void);

static volatile uint8_t* const uart = (volatile uint8_t*)BOARD_UART;
static volatile uint32_t* const finisher = (volatile uint32_t*)0x100000;

enum { UART_DATA, UART_STATE = 5 };

int board_read(void) {
  while (!(uart[UART_STATE] & 1)) {
  }
  return uart[UART_DATA];
}

void board_write(char character) {
  while (!(uart[UART_STATE] & 0x20)) {
  }
  uart[UART_DATA] = (uint8_t)character;
}

void board_exit(int status) {
  for (;;) *finisher = status ? (uint32_t)status << 16 | 0x3333 : 0x5555;
}

int board_open(char** arguments, int limit) {
  (void)arguments, (void)limit;
  return 0; /* this board knows no command line */
}

__attribute__((used, interrupt, noreturn, aligned(4))) static void fault(void) {
  uint32_t address, instruction, cause;
  __asm__("csrr %0, mtval\n\tcsrr %1, mepc\n\tcsrr %2, mcause" : "=r"(address), "=r"(instruction), "=r"(cause));
  board_fault(address, instruction, cause);
}

__attribute__((naked, section(".vectors"))) void board_reset(void) {
  __asm__("la sp, board_stack_top\n\tla t0, fault\n\tcsrw mtvec, t0\n\tj board_run");
}
