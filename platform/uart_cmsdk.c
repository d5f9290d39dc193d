/* The UART of Arm's MPS2 and MPS3 boards. */
#include "start.h"

static volatile uint32_t* const uart = (volatile uint32_t*)BOARD_UART;

enum { UART_DATA, UART_STATE, UART_CONTROL, UART_DIVIDER = 4 };
enum { UART_TRANSMITTER = 1, UART_RECEIVER = 2 }; /* in control: on; in state: full */

void board_open(void) {
  uart[UART_DIVIDER] = 217; /* 115,200 baud at 25 MHz */
  uart[UART_CONTROL] = UART_TRANSMITTER | UART_RECEIVER;
}

int board_read(void) {
  while (!(uart[UART_STATE] & UART_RECEIVER)) {
  }
  return (int)(uart[UART_DATA] & 0xff);
}

void board_write(char character) {
  while (uart[UART_STATE] & UART_TRANSMITTER) {
  }
  uart[UART_DATA] = (unsigned char)character;
}
