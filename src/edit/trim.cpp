#include "quvex.h"

#include "../quvex_exported.h"
#include "quvex_set.h"

namespace {

template <class Unit>
QUVEX_INLINE int32_t trim(Unit* string, const Unit* set) {
  Unit* end = string + exported::length(string);
  Unit* start = string;
  if (set) {
    while (is_member(set, *start)) ++start;
    while (end != start && is_member(set, end[-1])) --end;
    *end = 0;
    exported::copy(string, start);
  }
  return static_cast<int32_t>(end - start);
}

}  // namespace

QUVEX_EXPORT int32_t QUVEX_002024(quvex_narrow* string, const quvex_narrow* set) { return trim(string, set); }
QUVEX_EXPORT int32_t QUVEX_002051(quvex_wide* string, const quvex_wide* set) { return trim(string, set); }
