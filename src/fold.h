#ifndef QUVEX_SRC_FOLD_H
#define QUVEX_SRC_FOLD_H

#include <stdint.h>

#include "leaf.h"

// One range test each: what lies below the range wraps around to a large number.
QUVEX_INLINE uint32_t to_lower(uint32_t character) { return character - 'A' < 26 ? character + 32 : character; }
QUVEX_INLINE uint32_t to_upper(uint32_t character) { return character - 'a' < 26 ? character - 32 : character; }

#endif
