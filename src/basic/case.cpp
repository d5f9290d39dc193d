#include "quvex.h"

#include "../fold.h"

namespace {

template <class Unit>
QUVEX_INLINE void string_to_lower(Unit* string) {
  if (!string) return;
  QUVEX_ENDLESS(Unit) {
    const uint32_t unit = *string++;
    if (!unit) break;
    if (unit - 'A' < 26) string[-1] = static_cast<Unit>(unit + 32);
  }
}

template <class Unit>
QUVEX_INLINE void string_to_upper(Unit* string) {
  if (!string) return;
  QUVEX_ENDLESS(Unit) {
    const uint32_t unit = *string++;
    if (!unit) break;
    if (unit - 'a' < 26) string[-1] = static_cast<Unit>(unit - 32);
  }
}

}  // namespace

int32_t QUVEX_002026(int32_t character) { return static_cast<int32_t>(to_lower(static_cast<uint32_t>(character))); }
int32_t QUVEX_002027(int32_t character) { return static_cast<int32_t>(to_upper(static_cast<uint32_t>(character))); }

void QUVEX_002015(quvex_narrow* string) { string_to_lower(string); }
void QUVEX_002040(quvex_wide* string) { string_to_lower(string); }

void QUVEX_002025(quvex_narrow* string) { string_to_upper(string); }
void QUVEX_002052(quvex_wide* string) { string_to_upper(string); }
