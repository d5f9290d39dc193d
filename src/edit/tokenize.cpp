#include "quvex.h"

#include "../exported.h"
#include "set.h"

namespace {

template <class Unit>
QUVEX_INLINE Unit* next_token(Unit* string, uint32_t* cursor, const Unit* set) {
  if (!string || !cursor || !set) return nullptr;
  Unit* token = string + *cursor;
  while (is_member(set, *token)) ++token;
  Unit* end = token;
  while (*end && !is_member(set, *end)) ++end;
  if (*end) *end++ = 0;
  *cursor = static_cast<uint32_t>(end - string);
  return end == token ? nullptr : token;
}

template <class Unit>
QUVEX_INLINE int32_t split(Unit* string, const Unit* set, Unit** array) {
  if (!array) return 0;
  uint32_t cursor = 0;
  int32_t count = 0;
  while (Unit* token = exported::next_token(string, &cursor, set)) {
    *array++ = token;
    ++count;
  }
  return count;
}

}  // namespace

quvex_narrow* QUVEX_002023(quvex_narrow* string, uint32_t* cursor, const quvex_narrow* set) {
  return next_token(string, cursor, set);
}
quvex_wide* QUVEX_002050(quvex_wide* string, uint32_t* cursor, const quvex_wide* set) {
  return next_token(string, cursor, set);
}

int32_t QUVEX_002021(quvex_narrow* string, const quvex_narrow* set, quvex_narrow** array) {
  return split(string, set, array);
}
int32_t QUVEX_002048(quvex_wide* string, const quvex_wide* set, quvex_wide** array) {
  return split(string, set, array);
}
