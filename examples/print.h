#ifndef EXAMPLES_PRINT_H
#define EXAMPLES_PRINT_H

#include "board.h"
#include "quvex.hpp"

inline void print_item(const char* text) {
  while (*text) board_write(*text++);
}

inline void print_item(int32_t number) {
  char text[12];
  print_item(quvex::to_text(number, text, 10));
}

template <class... Item>
void print(Item... items) {
  (print_item(items), ...);
}

#endif
