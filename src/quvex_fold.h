#ifndef QUVEX_SRC_FOLD_H
#define QUVEX_SRC_FOLD_H

#include <stdint.h>

#include "quvex_compiler.h"

// One range test each: what lies below the range wraps around to a large number.
QUVEX_INLINE uint32_t to_lower(uint32_t character) { return character - 'A' < 26 ? character + 32 : character; }
QUVEX_INLINE uint32_t to_upper(uint32_t character) { return character - 'a' < 26 ? character - 32 : character; }

// Only bit 5 tells the cases of a letter apart.
QUVEX_INLINE bool is_letter(uint32_t unit) { return (unit | 32) - 'a' < 26; }
QUVEX_INLINE bool same_letter(uint32_t a, uint32_t b) { return (a ^ b) == 32 && is_letter(a); }

template <bool Fold>
QUVEX_INLINE uint32_t folded(uint32_t unit) {
  return Fold ? to_lower(unit) : unit;
}

#endif
