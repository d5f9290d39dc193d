#ifndef EXAMPLES_INPUT_H
#define EXAMPLES_INPUT_H

#include "board.h"

constexpr int end_of_input = -1;

// The next byte of the UART. The emulator does not pass on the end of its own input: a byte 4 (Ctrl-D) marks it. A byte
// 16 (Ctrl-P) quotes the byte after it, which may be a 4 or a 16. scripts/feed writes input in this form.
inline int read_byte() {
  const int byte = board_read();
  if (byte == 4) return end_of_input;
  return byte == 16 ? board_read() : byte;
}

#endif
