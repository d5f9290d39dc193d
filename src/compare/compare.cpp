#include "quvex.h"

#include "../quvex_fold.h"

namespace {

enum Bound { whole, counted };

template <bool Fold, Bound bound, class Unit>
QUVEX_INLINE int32_t compare(const Unit* first, const Unit* second, int32_t count = 0) {
  if (first == second) return 0;
  if (!first) return -1;
  if (!second) return 1;
  if (bound == counted && count <= 0) return 0;
  const Unit* start = first;
  uintptr_t left = bound == counted ? static_cast<uint32_t>(count) : QUVEX_MOST(Unit);
  QUVEX_UNROLL(4)
  for (; QUVEX_ENDLESS(bound == whole) || left; --left) {
    uint32_t a = *first;
    ++first;
    uint32_t b = *second;
    ++second;
    if (QUVEX_UNLIKELY(a != b)) {
      a = folded<Fold>(a);
      b = folded<Fold>(b);
      if (!Fold || a != b) return static_cast<int32_t>(a > b ? first - start : start - first);
    }
    if (!a) break;
  }
  return 0;
}

}  // namespace

QUVEX_EXPORT int32_t QUVEX_002008(const quvex_narrow* first, const quvex_narrow* second) {
  return compare<false, whole>(first, second);
}
QUVEX_EXPORT int32_t QUVEX_002033(const quvex_wide* first, const quvex_wide* second) {
  return compare<false, whole>(first, second);
}

QUVEX_EXPORT int32_t QUVEX_002016(const quvex_narrow* first, const quvex_narrow* second, int32_t count) {
  return compare<false, counted>(first, second, count);
}
QUVEX_EXPORT int32_t QUVEX_002043(const quvex_wide* first, const quvex_wide* second, int32_t count) {
  return compare<false, counted>(first, second, count);
}

QUVEX_EXPORT int32_t QUVEX_002012(const quvex_narrow* first, const quvex_narrow* second) {
  return compare<true, whole>(first, second);
}
QUVEX_EXPORT int32_t QUVEX_002037(const quvex_wide* first, const quvex_wide* second) {
  return compare<true, whole>(first, second);
}

QUVEX_EXPORT int32_t QUVEX_002019(const quvex_narrow* first, const quvex_narrow* second, int32_t count) {
  return compare<true, counted>(first, second, count);
}
QUVEX_EXPORT int32_t QUVEX_002046(const quvex_wide* first, const quvex_wide* second, int32_t count) {
  return compare<true, counted>(first, second, count);
}
