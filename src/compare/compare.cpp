#include "quvex.h"

#include "../fold.h"

namespace {

enum Fold { as_it_is, folded };
enum Bound { whole, counted };

template <Fold fold, Bound bound, class Unit>
QUVEX_INLINE int32_t compare(const Unit* first, const Unit* second, int32_t count = 0) {
  if (first == second) return 0;
  if (!second) return 1;
  if (!first) return -1;
  if (bound == counted && count <= 0) return 0;
  QUVEX_UNROLL
  for (int32_t i = 0; true; ++i) {
    uint32_t a = first[i];
    uint32_t b = second[i];
    if (a != b) {
      if (fold == folded) {
        a = to_lower(a);
        b = to_lower(b);
      }
      if (a > b) return i + 1;
      if (a < b) return ~i;
    }
    if (!a) break;
    if (bound == counted && !--count) break;
  }
  return 0;
}

}  // namespace

int32_t QUVEX_002008(const quvex_narrow* first, const quvex_narrow* second) {
  return compare<as_it_is, whole>(first, second);
}
int32_t QUVEX_002033(const quvex_wide* first, const quvex_wide* second) {
  return compare<as_it_is, whole>(first, second);
}

int32_t QUVEX_002016(const quvex_narrow* first, const quvex_narrow* second, int32_t count) {
  return compare<as_it_is, counted>(first, second, count);
}
int32_t QUVEX_002043(const quvex_wide* first, const quvex_wide* second, int32_t count) {
  return compare<as_it_is, counted>(first, second, count);
}

int32_t QUVEX_002012(const quvex_narrow* first, const quvex_narrow* second) {
  return compare<folded, whole>(first, second);
}
int32_t QUVEX_002037(const quvex_wide* first, const quvex_wide* second) {
  return compare<folded, whole>(first, second);
}

int32_t QUVEX_002019(const quvex_narrow* first, const quvex_narrow* second, int32_t count) {
  return compare<folded, counted>(first, second, count);
}
int32_t QUVEX_002046(const quvex_wide* first, const quvex_wide* second, int32_t count) {
  return compare<folded, counted>(first, second, count);
}
