#include "quvex.h"

#include "../fold.h"

namespace {

template <uint32_t First, uint32_t Change, class Unit>
QUVEX_INLINE void change_letters(Unit* string) {
  if (!string) return;
  QUVEX_ENDLESS(Unit) {
    const uint32_t unit = *string++;
    if (!unit) break;
    if (unit - First < 26) string[-1] = static_cast<Unit>(unit + Change);
  }
}

}  // namespace

int32_t QUVEX_002026(int32_t character) { return static_cast<int32_t>(to_lower(static_cast<uint32_t>(character))); }
int32_t QUVEX_002027(int32_t character) { return static_cast<int32_t>(to_upper(static_cast<uint32_t>(character))); }

void QUVEX_002015(quvex_narrow* string) { change_letters<'A', 'a' - 'A'>(string); }
void QUVEX_002040(quvex_wide* string) { change_letters<'A', 'a' - 'A'>(string); }

void QUVEX_002025(quvex_narrow* string) { change_letters<'a', uint32_t{'A'} - 'a'>(string); }
void QUVEX_002052(quvex_wide* string) { change_letters<'a', uint32_t{'A'} - 'a'>(string); }
