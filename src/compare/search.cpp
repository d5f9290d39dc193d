#include "quvex.h"

#include "../fold.h"

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
  const Unit first = *needle;
  if (!first) return const_cast<Unit*>(haystack);
  for (; *haystack; ++haystack) {
    if (!equal<Fold>(*haystack, first)) continue;
    const Unit* rest = haystack;
    const Unit* expected = needle;
    do {
      ++rest;
      ++expected;
      if (!*expected) return const_cast<Unit*>(haystack);
    } while (equal<Fold>(*rest, *expected));
    if (!*rest) break;
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
