#include "quvex.h"

#include "../quvex_compiler.h"

namespace {

const quvex_narrow empty[] = "";
const quvex_narrow escape_opening[] = "&(0x";

QUVEX_INLINE quvex_narrow* write_digits(uint32_t number, quvex_narrow* end) {
  QUVEX_ROLLED
  do {
    uint32_t digit = number & 15;
    if (digit > 9) digit += 'a' - '0' - 10;
    *--end = static_cast<quvex_narrow>('0' + digit);
    number >>= 4;
  } while (number);
  return end;
}

QUVEX_INLINE const quvex_narrow* escape(const quvex_wide* source, quvex_narrow* destination, int32_t size) {
  if (!destination) return empty;
  quvex_narrow* end = destination;
  while (source && size > 1) {
    const uint32_t unit = *source;
    ++source;
    if (unit - ' ' <= '~' - ' ') {
      *end = static_cast<quvex_narrow>(unit);
      ++end;
      --size;
    } else {
      // cppcheck-suppress knownConditionTrueFalse  // it does not see that 0 less a blank is a great number
      if (!unit) break;
      QUVEX_UNINITIALIZED quvex_narrow closing[4 + 2];  // Up to 4 digits, `)` and the terminator.
      closing[4] = ')';
      closing[5] = 0;
      const quvex_narrow* digits = write_digits(unit, closing + 4);
      const int32_t length = 9 - static_cast<int32_t>(digits - closing);
      if (size <= length) break;
      *end = 0;
      QUVEX_002005(end, escape_opening);
      QUVEX_002005(end + 4, digits);
      end += length;
      size -= length;
    }
  }
  *end = 0;
  return destination;
}

QUVEX_INLINE quvex_wide* widen(const quvex_narrow* source, quvex_wide* destination, int32_t size) {
  if (!destination) return nullptr;
  quvex_wide* end = destination;
  if (source) {
    QUVEX_UNROLL(4)
    for (; size > 1; --size) {
      const quvex_wide unit = *source;
      ++source;
      if (QUVEX_UNLIKELY(!unit)) break;
      *end = unit;
      ++end;
    }
  }
  *end = 0;
  return destination;
}

QUVEX_INLINE void widen_units(const quvex_narrow* source, quvex_wide* destination, int32_t count) {
  if (!source || !destination) return;
  QUVEX_UNROLL(4)
  for (; count > 0; --count) *destination++ = *source++;
}

typedef uint32_t __attribute__((may_alias)) two_units;

QUVEX_INLINE uintptr_t address(const void* pointer) { return reinterpret_cast<uintptr_t>(pointer); }

QUVEX_INLINE void copy_units(const quvex_wide* source, quvex_wide* destination, int32_t count) {
  if (!source || !destination) return;
  // Words, if both are aligned alike: they then overlap by whole words, and the result is that of a copy unit by unit.
  if (QUVEX_SPEED && (address(source) ^ address(destination)) % sizeof(two_units) == 0) {
    for (; count > 0 && address(source) % sizeof(two_units); --count) *destination++ = *source++;
    QUVEX_UNROLL(8)
    for (int32_t words = count / 2; words > 0; --words) {
      *reinterpret_cast<two_units*>(destination) = *reinterpret_cast<const two_units*>(source);
      destination += 2;
      source += 2;
    }
    count %= 2;
  }
  QUVEX_UNROLL(2)
  for (; count > 0; --count) *destination++ = *source++;
}

}  // namespace

QUVEX_EXPORT const quvex_narrow* QUVEX_002029(const quvex_wide* source, quvex_narrow* destination, int32_t size) {
  return escape(source, destination, size);
}

QUVEX_EXPORT quvex_wide* QUVEX_002001(const quvex_narrow* source, quvex_wide* destination, int32_t size) {
  return widen(source, destination, size);
}

QUVEX_EXPORT void QUVEX_002002(const quvex_narrow* source, quvex_wide* destination, int32_t count) {
  widen_units(source, destination, count);
}

QUVEX_EXPORT void QUVEX_002028(const quvex_wide* source, quvex_wide* destination, int32_t count) {
  copy_units(source, destination, count);
}
