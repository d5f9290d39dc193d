#include "quvex.h"

#include "../fold.h"

namespace {

template <bool Fold, class Unit>
QUVEX_INLINE int32_t compare(const Unit* first, const Unit* second, uintptr_t count) {
  if (first == second) return 0;
  if (!second) return 1;
  if (!first) return -1;
  const Unit* start = first;
  QUVEX_UNROLL
  for (; count; --count) {
    uint32_t a = *first++;
    uint32_t b = *second++;
    if (__builtin_expect(a != b, 0)) {
      a = folded<Fold>(a);
      b = folded<Fold>(b);
      if (!Fold || a != b) {
        const int32_t place = static_cast<int32_t>(first - start);
        return a > b ? place : -place;
      }
    }
    if (!a) break;
  }
  return 0;
}

QUVEX_INLINE uintptr_t turns(int32_t count) { return count > 0 ? static_cast<uint32_t>(count) : 0; }

}  // namespace

int32_t QUVEX_002008(const quvex_narrow* first, const quvex_narrow* second) {
  return compare<false>(first, second, QUVEX_TURNS(quvex_narrow));
}
int32_t QUVEX_002033(const quvex_wide* first, const quvex_wide* second) {
  return compare<false>(first, second, QUVEX_TURNS(quvex_wide));
}

int32_t QUVEX_002016(const quvex_narrow* first, const quvex_narrow* second, int32_t count) {
  return compare<false>(first, second, turns(count));
}
int32_t QUVEX_002043(const quvex_wide* first, const quvex_wide* second, int32_t count) {
  return compare<false>(first, second, turns(count));
}

int32_t QUVEX_002012(const quvex_narrow* first, const quvex_narrow* second) {
  return compare<true>(first, second, QUVEX_TURNS(quvex_narrow));
}
int32_t QUVEX_002037(const quvex_wide* first, const quvex_wide* second) {
  return compare<true>(first, second, QUVEX_TURNS(quvex_wide));
}

int32_t QUVEX_002019(const quvex_narrow* first, const quvex_narrow* second, int32_t count) {
  return compare<true>(first, second, turns(count));
}
int32_t QUVEX_002046(const quvex_wide* first, const quvex_wide* second, int32_t count) {
  return compare<true>(first, second, turns(count));
}
