/* The UART of the micro:bit. */
#include "start.h"

static volatile uint32_t* const uart = (volatile uint32_t*)BOARD_UART;

enum {
  UART_START_RECEIVER = 0x000 / 4,
  UART_START_TRANSMITTER = 0x008 / 4,
  UART_RECEIVED = 0x108 / 4,
  UART_TRANSMITTED = 0x11c / 4,
  UART_ENABLE = 0x500 / 4,
  UART_RECEIVE = 0x518 / 4,
  UART_TRANSMIT = 0x51c / 4
};

void board_open(void) {
  uart[UART_ENABLE] = 4;
  uart[UART_START_RECEIVER] = 1;
  uart[UART_START_TRANSMITTER] = 1;
}

int board_read(void) {
  while (!uart[UART_RECEIVED]) {
  }
  uart[UART_RECEIVED] = 0; /* reading sets it again if more bytes wait */
  return (int)(uart[UART_RECEIVE] & 0xff);
}

void board_write(char character) {
  uart[UART_TRANSMITTED] = 0;
  uart[UART_TRANSMIT] = (unsigned char)character;
  while (!uart[UART_TRANSMITTED]) {
  }
}
