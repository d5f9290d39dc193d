#include "quvex.h"

#include "../quvex_exported.h"
#include "quvex_set.h"

namespace {

// The bit, one of 32, that stands for a unit; the leftmost for zero. A unit whose bit is clear in a filter is none of
// those that set it.
QUVEX_INLINE uint32_t bit_of(uint32_t unit) { return 0x80000000 >> unit % 32; }
QUVEX_INLINE bool may_hold(uint32_t filter, uint32_t unit) { return filter << unit % 32 >> 31; }

template <class Unit>
QUVEX_INLINE uint32_t filter_of(const Unit* set) {
  uint32_t filter = 0;
  QUVEX_ROLLED
  do filter |= bit_of(*set);
  while (*set++);
  return filter;
}

template <class Unit>
QUVEX_INLINE Unit* next_token(Unit* string, uint32_t* cursor, const Unit* set) {
  if (QUVEX_UNLIKELY(!string || !cursor || !set)) return nullptr;
  const uint32_t filter = filter_of(set);
  Unit* token = &string[*cursor];
  Unit* end = token;
  for (;; ++end) {
    QUVEX_ROLLED
    while (!may_hold(filter, *end)) ++end;
    if (!*end) break;
    if (!is_member(set, *end)) continue;
    if (end != token) {
      *end = 0;
      ++end;
      break;
    }
    ++token;
  }
  *cursor = static_cast<uint32_t>(end - string);
  return end == token ? nullptr : token;
}

template <class Unit>
QUVEX_INLINE int32_t split(Unit* string, const Unit* set, Unit** array) {
  if (!array) return 0;
  uint32_t cursor = 0;
  int32_t count = 0;
  while (Unit* token = exported::next_token(string, &cursor, set)) {
    array[count] = token;
    ++count;
  }
  return count;
}

}  // namespace

QUVEX_EXPORT quvex_narrow* QUVEX_002023(quvex_narrow* string, uint32_t* cursor, const quvex_narrow* set) {
  return next_token(string, cursor, set);
}
QUVEX_EXPORT quvex_wide* QUVEX_002050(quvex_wide* string, uint32_t* cursor, const quvex_wide* set) {
  return next_token(string, cursor, set);
}

QUVEX_EXPORT int32_t QUVEX_002021(quvex_narrow* string, const quvex_narrow* set, quvex_narrow** array) {
  return split(string, set, array);
}
QUVEX_EXPORT int32_t QUVEX_002048(quvex_wide* string, const quvex_wide* set, quvex_wide** array) {
  return split(string, set, array);
}
