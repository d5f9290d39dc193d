#include "quvex.h"

#include "../quvex_compiler.h"

namespace {

template <class Unit>
QUVEX_INLINE Unit* end_of(Unit* string) {
  QUVEX_UNROLL(4)
  while (*string) ++string;
  return string;
}

template <class Unit>
QUVEX_INLINE void append_at_most(Unit* end, const Unit* source, int32_t room) {
  QUVEX_UNROLL(4)
  for (; room > 0; --room) {
    const Unit unit = *source;
    ++source;
    if (QUVEX_UNLIKELY(!unit)) break;
    *end = unit;
    ++end;
  }
  *end = 0;
}

template <class Unit>
QUVEX_INLINE void append(Unit* destination, const Unit* source) {
  if (!destination || !source) return;
  Unit* end = end_of(destination);
  QUVEX_UNROLL(4)
  while (*source) {
    *end = *source;
    ++source;
    ++end;
  }
  *end = 0;
}

QUVEX_INLINE void append_counted(quvex_wide* destination, const quvex_wide* source, int32_t count) {
  if (!destination || !source) return;
  append_at_most(end_of(destination), source, count);
}

template <class Unit>
QUVEX_INLINE void append_bounded(Unit* destination, int32_t size, const Unit* source, int32_t count = INT32_MAX) {
  if (!destination || !source) return;
  Unit* end = end_of(destination);
  const intptr_t used = end - destination + 1;  // On a 64-bit host, more than 32 bits for the longest string.
  if (size <= used) return;
  const int32_t room = size - static_cast<int32_t>(used);
  append_at_most(end, source, room < count ? room : count);
}

}  // namespace

QUVEX_EXPORT void QUVEX_002005(quvex_narrow* destination, const quvex_narrow* source) { append(destination, source); }
QUVEX_EXPORT void QUVEX_002030(quvex_wide* destination, const quvex_wide* source) { append(destination, source); }

QUVEX_EXPORT void QUVEX_002006(quvex_narrow* destination, int32_t size, const quvex_narrow* source) {
  append_bounded(destination, size, source);
}
QUVEX_EXPORT void QUVEX_002031(quvex_wide* destination, int32_t size, const quvex_wide* source) {
  append_bounded(destination, size, source);
}

QUVEX_EXPORT void QUVEX_002041(quvex_wide* destination, const quvex_wide* source, int32_t count) {
  append_counted(destination, source, count);
}

QUVEX_EXPORT void QUVEX_002042(quvex_wide* destination, int32_t size, const quvex_wide* source, int32_t count) {
  append_bounded(destination, size, source, count);
}
