#ifndef QUVEX_SRC_FOLD_H
#define QUVEX_SRC_FOLD_H

#include <stdint.h>

#include "leaf.h"

// One range test each: what lies below the range wraps around to a large number.
QUVEX_INLINE uint32_t to_lower(uint32_t character) { return character - 'A' < 26 ? character + 32 : character; }
QUVEX_INLINE uint32_t to_upper(uint32_t character) { return character - 'a' < 26 ? character - 32 : character; }

// Two units that differ are one letter in two cases if they differ in bit 5 alone and one of them is a letter.
QUVEX_INLINE bool same_letter(uint32_t a, uint32_t b) { return (a ^ b) == 32 && (a | 32) - 'a' < 26; }

template <bool Fold>
QUVEX_INLINE uint32_t folded(uint32_t unit) {
  return Fold ? to_lower(unit) : unit;
}

#endif
