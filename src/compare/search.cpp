#include "quvex.h"

#include "../fold.h"

namespace {

template <class Unit>
QUVEX_INLINE Unit* find_character(const Unit* string, int32_t character) {
  if (!string) return nullptr;
  QUVEX_UNROLL
  for (; *string; ++string) {
    if (*string == character) return const_cast<Unit*>(string);
  }
  return nullptr;
}

template <bool Fold, class Unit>
QUVEX_INLINE uint32_t folded(Unit unit) {
  return Fold ? to_lower(unit) : unit;
}

template <bool Fold, class Unit>
QUVEX_INLINE Unit* find(const Unit* haystack, const Unit* needle) {
  if (!haystack || !needle) return nullptr;
  for (; *haystack; ++haystack) {
    for (uint32_t k = 0;; ++k) {
      if (!needle[k]) return const_cast<Unit*>(haystack);
      if (folded<Fold>(haystack[k]) == folded<Fold>(needle[k])) continue;
      if (!haystack[k]) return nullptr;
      break;
    }
  }
  return nullptr;
}

}  // namespace

quvex_narrow* QUVEX_002007(const quvex_narrow* string, int32_t character) { return find_character(string, character); }
quvex_wide* QUVEX_002032(const quvex_wide* string, int32_t character) { return find_character(string, character); }

quvex_narrow* QUVEX_002022(const quvex_narrow* haystack, const quvex_narrow* needle) {
  return find<false>(haystack, needle);
}
quvex_wide* QUVEX_002049(const quvex_wide* haystack, const quvex_wide* needle) { return find<false>(haystack, needle); }

quvex_narrow* QUVEX_002013(const quvex_narrow* haystack, const quvex_narrow* needle) {
  return find<true>(haystack, needle);
}
quvex_wide* QUVEX_002038(const quvex_wide* haystack, const quvex_wide* needle) { return find<true>(haystack, needle); }
