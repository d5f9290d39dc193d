/* The UART of Arm's MPS2 and MPS3 boards. */
#include "start.h"

static volatile uint32_t* const uart = (volatile uint32_t*)BOARD_UART;

enum { UART_DATA, UART_STATE, UART_CONTROL, UART_INTERRUPT, UART_DIVIDER };
enum { UART_TRANSMITTER = 1, UART_RECEIVER = 2 }; /* in control: on; in state: full; in interrupt: raised */
enum { UART_RECEIVER_INTERRUPT = 8 };             /* in control: on */

static volatile uint32_t* const interrupts_on = (volatile uint32_t*)0xe000e100;
static volatile uint32_t* const interrupts_not_pending = (volatile uint32_t*)0xe000e280;

void board_open(void) {
  uart[UART_DIVIDER] = 217; /* 115,200 baud at 25 MHz */
  uart[UART_CONTROL] = UART_TRANSMITTER | UART_RECEIVER | UART_RECEIVER_INTERRUPT;
}

/* The core sleeps until a byte comes: a wait that polls makes the emulator slow. The receiver's interrupt, whose number
   differs from board to board, wakes the core and is not taken. */
int board_read(void) {
  __asm__ volatile("cpsid i" ::: "memory");
  for (int i = 0; i < 3; ++i) interrupts_on[i] = 0xffffffff;
  while (!(uart[UART_STATE] & UART_RECEIVER)) {
    __asm__ volatile("wfi" ::: "memory");
    uart[UART_INTERRUPT] = UART_RECEIVER;
    for (int i = 0; i < 3; ++i) interrupts_not_pending[i] = 0xffffffff;
  }
  return (int)(uart[UART_DATA] & 0xff);
}

void board_write(char character) {
  while (uart[UART_STATE] & UART_TRANSMITTER) {
  }
  uart[UART_DATA] = (unsigned char)character;
}
