/* The UART of QEMU's virt board. */
#include "start.h"

static volatile uint8_t* const uart = (volatile uint8_t*)BOARD_UART;

enum { UART_DATA, UART_STATE = 5 };

void board_open(void) {}

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
