#include "quvex.h"

#include "../quvex_fold.h"

namespace {

template <uint32_t First, uint32_t Change, class Unit>
QUVEX_INLINE void change_letters(Unit* string) {
  if (!string) return;
  QUVEX_UNROLL(4)
  for (uintptr_t left = QUVEX_MOST(Unit); QUVEX_ENDLESS(true) || left; --left) {
    const uint32_t unit = *string;
    if (!unit) break;
    if (unit - First < 26) *string = static_cast<Unit>(unit + Change);
    ++string;
  }
}

}  // namespace

QUVEX_EXPORT int32_t QUVEX_002026(int32_t character) {
  return static_cast<int32_t>(to_lower(static_cast<uint32_t>(character)));
}
QUVEX_EXPORT int32_t QUVEX_002027(int32_t character) {
  return static_cast<int32_t>(to_upper(static_cast<uint32_t>(character)));
}

QUVEX_EXPORT void QUVEX_002015(quvex_narrow* string) { change_letters<'A', 'a' - 'A'>(string); }
QUVEX_EXPORT void QUVEX_002040(quvex_wide* string) { change_letters<'A', 'a' - 'A'>(string); }

QUVEX_EXPORT void QUVEX_002025(quvex_narrow* string) { change_letters<'a', uint32_t{'A'} - 'a'>(string); }
QUVEX_EXPORT void QUVEX_002052(quvex_wide* string) { change_letters<'a', uint32_t{'A'} - 'a'>(string); }
