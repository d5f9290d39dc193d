#ifndef EXAMPLES_INPUT_H
#define EXAMPLES_INPUT_H

#include "board.h"

constexpr int end_of_input = -1;

// The next byte of the UART. The emulator does not tell that its own input ended, so that a byte 4 (Ctrl-D) has to: a
// byte 16 (Ctrl-P) makes one of the byte behind it that means nothing but itself. scripts/feed sends them.
inline int read_byte() {
  const int byte = board_read();
  if (byte == 4) return end_of_input;
  return byte == 16 ? board_read() : byte;
}

#endif
