/* What the start-up and each board's own code know of each other. */
#ifndef START_H
#define START_H

#include "board.h"

/* Set up the data and the board, call the constructors and main, and end with its result. */
__attribute__((noreturn)) void board_run(void);

/* Ready the devices; returns how many arguments there are for main, and stores them: at most `limit`. */
int board_open(char** arguments, int limit);

/* Say what went wrong and end. */
__attribute__((noreturn)) void board_fault(uint32_t address, uint32_t instruction, uint32_t status);

#endif
