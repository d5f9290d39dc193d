#include "quvex.h"

#include "../leaf.h"

namespace {

const quvex_narrow empty[] = "";
const quvex_narrow escape_opening[] = "&(0x";

QUVEX_INLINE const quvex_narrow* escape(const quvex_wide* source, quvex_narrow* destination, int32_t size) {
  if (!destination) return empty;
  *destination = 0;
  if (!source) return destination;
  quvex_narrow* end = destination;
  for (; *source; ++source) {
    uint32_t unit = *source;
    if (unit - ' ' <= '~' - ' ') {
      if (size <= 2 - 1) break;
      --size;
      *end++ = static_cast<quvex_narrow>(unit);
      *end = 0;
      continue;
    }
    quvex_narrow digits[4 + 2];
    quvex_narrow* digit = digits + 4;
    digit[0] = ')';
    digit[1] = 0;
    do {
      const uint32_t value = unit & 15;
      *--digit = static_cast<quvex_narrow>(value < 10 ? '0' + value : 'a' - 10 + value);
      unit >>= 4;
    } while (unit);
    const int32_t length = static_cast<int32_t>(digits + 5 - digit) + 4;
    if (size <= length) break;
    size -= length;
    QUVEX_002005(end, escape_opening);
    QUVEX_002005(end, digit);
    end += length;
  }
  return destination;
}

QUVEX_INLINE quvex_wide* widen(const quvex_narrow* source, quvex_wide* destination, int32_t size) {
  if (!destination) return nullptr;
  quvex_wide* end = destination;
  if (source) {
    for (; size > 1 && (*end = *source++); --size) ++end;
  }
  *end = 0;
  return destination;
}

template <class Unit>
QUVEX_INLINE void copy_units(const Unit* source, quvex_wide* destination, int32_t count) {
  if (!source || !destination) return;
  QUVEX_UNROLL
  for (; count > 0; --count) *destination++ = *source++;
}

}  // namespace

const quvex_narrow* QUVEX_002029(const quvex_wide* source, quvex_narrow* destination, int32_t size) {
  return escape(source, destination, size);
}

quvex_wide* QUVEX_002001(const quvex_narrow* source, quvex_wide* destination, int32_t size) {
  return widen(source, destination, size);
}

void QUVEX_002002(const quvex_narrow* source, quvex_wide* destination, int32_t count) {
  copy_units(source, destination, count);
}

void QUVEX_002028(const quvex_wide* source, quvex_wide* destination, int32_t count) {
  copy_units(source, destination, count);
}
