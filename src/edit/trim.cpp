#include "quvex.h"

#include "../exported.h"
#include "set.h"

namespace {

template <class Unit>
QUVEX_INLINE int32_t trim(Unit* string, const Unit* set) {
  int32_t end = exported::length(string);
  int32_t start = 0;
  if (set) {
    while (end > 0 && is_member(set, string[end - 1])) --end;
    string[end] = 0;
    while (is_member(set, string[start])) ++start;
    exported::copy(string, string + start);
  }
  return end - start;
}

}  // namespace

int32_t QUVEX_002024(quvex_narrow* string, const quvex_narrow* set) { return trim(string, set); }
int32_t QUVEX_002051(quvex_wide* string, const quvex_wide* set) { return trim(string, set); }
