#ifndef QUVEX_SRC_EDIT_SET_H
#define QUVEX_SRC_EDIT_SET_H

#include "../quvex_compiler.h"

// Zero is in no set: the set ends where it would be found.
template <class Unit>
QUVEX_INLINE bool is_member(const Unit* set, uint32_t unit) {
  QUVEX_ROLLED
  for (; *set; ++set) {
    if (*set == unit) return true;
  }
  return false;
}

#endif
