#include "quvex.h"

#include "../quvex_fold.h"

namespace {

template <class Unit>
QUVEX_INLINE Unit* find_character(const Unit* string, int32_t character) {
  if (!string) return nullptr;
  for (; *string; ++string) {
    if (*string == character) return const_cast<Unit*>(string);
  }
  return nullptr;
}

template <bool Fold>
QUVEX_INLINE bool equal(uint32_t a, uint32_t b) {
  return a == b || (Fold && same_letter(a, b));
}

template <bool Fold, class Unit>
QUVEX_INLINE Unit* find(const Unit* haystack, const Unit* needle) {
  if (!haystack || !needle || !*haystack) return nullptr;
  uint32_t first = *needle;
  if (!first) return const_cast<Unit*>(haystack);
  const uint32_t case_bit = Fold && is_letter(first) ? 32 : 0;
  first |= case_bit;
  for (; *haystack; ++haystack) {
    if ((*haystack | case_bit) != first) continue;
    uint32_t i = 0;
    uint32_t unit, expected;
    do {
      ++i;
      expected = needle[i];
      unit = haystack[i];
      if (!expected) return const_cast<Unit*>(haystack);
    } while (equal<Fold>(unit, expected));
    if (!unit) break;
  }
  return nullptr;
}

}  // namespace

QUVEX_EXPORT quvex_narrow* QUVEX_002007(const quvex_narrow* string, int32_t character) {
  return find_character(string, character);
}
QUVEX_EXPORT quvex_wide* QUVEX_002032(const quvex_wide* string, int32_t character) {
  return find_character(string, character);
}

QUVEX_EXPORT quvex_narrow* QUVEX_002022(const quvex_narrow* haystack, const quvex_narrow* needle) {
  return find<false>(haystack, needle);
}
QUVEX_EXPORT quvex_wide* QUVEX_002049(const quvex_wide* haystack, const quvex_wide* needle) {
  return find<false>(haystack, needle);
}

QUVEX_EXPORT quvex_narrow* QUVEX_002013(const quvex_narrow* haystack, const quvex_narrow* needle) {
  return find<true>(haystack, needle);
}
QUVEX_EXPORT quvex_wide* QUVEX_002038(const quvex_wide* haystack, const quvex_wide* needle) {
  return find<true>(haystack, needle);
}
