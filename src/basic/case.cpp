#include "quvex.h"

#include "../fold.h"

namespace {

template <class Unit>
QUVEX_INLINE void string_to_lower(Unit* string) {
  if (!string) return;
  QUVEX_UNROLL
  for (; *string; ++string) {
    if (*string - uint32_t{'A'} < 26) *string = static_cast<Unit>(*string + 32);
  }
}

template <class Unit>
QUVEX_INLINE void string_to_upper(Unit* string) {
  if (!string) return;
  QUVEX_UNROLL
  for (; *string; ++string) {
    if (*string - uint32_t{'a'} < 26) *string = static_cast<Unit>(*string - 32);
  }
}

}  // namespace

int32_t QUVEX_002026(int32_t character) { return static_cast<int32_t>(to_lower(static_cast<uint32_t>(character))); }
int32_t QUVEX_002027(int32_t character) { return static_cast<int32_t>(to_upper(static_cast<uint32_t>(character))); }

void QUVEX_002015(quvex_narrow* string) { string_to_lower(string); }
void QUVEX_002040(quvex_wide* string) { string_to_lower(string); }

void QUVEX_002025(quvex_narrow* string) { string_to_upper(string); }
void QUVEX_002052(quvex_wide* string) { string_to_upper(string); }
