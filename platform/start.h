/* What the start-up and each board's own code know of each other. */
#ifndef START_H
#define START_H

#include "board.h"

/* Set up the data and the board, call the constructors and main, and end with its result. */
__attribute__((noreturn)) void board_run(void);

/* Ready the UART. */
void board_open(void);

/* Ask the emulator's host. */
int board_semihost(int operation, const void* parameters);

#endif
