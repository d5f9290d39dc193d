#include "quvex.h"

#include "../leaf.h"

namespace {

template <class Unit>
QUVEX_INLINE Unit* to_text(int32_t value, Unit* destination, int32_t radix) {
  if (!destination) return nullptr;
  Unit* end = destination;
  if (radix > 1 || (radix == 1 && !value)) {
    const uint32_t base = static_cast<uint32_t>(radix);
    const bool negative = value < 0;
    uint32_t magnitude = static_cast<uint32_t>(value);
    if (negative) magnitude = 0 - magnitude;  // Negated as unsigned: the least integer has no positive twin.
    while (true) {
      uint32_t digit = magnitude % base;
      if (digit > 9) digit += 'a' - '0' - 10;
      *end++ = static_cast<Unit>('0' + digit);
      if (magnitude < base) break;
      magnitude /= base;
    }
    if (negative) *end++ = '-';
  }
  *end = 0;
  for (Unit* first = destination; first < end; ++first) {
    const Unit unit = *--end;
    *end = *first;
    *first = unit;
  }
  return destination;
}

template <class Unit>
QUVEX_INLINE int32_t to_integer(const Unit* source) {
  if (!source) return 0;
  while (*source == ' ' || *source == '\t') ++source;
  const bool negative = *source == '-';
  if (negative) ++source;
  uint32_t number = 0;
  for (uint32_t digit; (digit = *source - uint32_t{'0'}) < 10; ++source) number = number * 10 + digit;
  if (negative) number = 0 - number;
  return static_cast<int32_t>(number);
}

}  // namespace

quvex_narrow* QUVEX_002003(int32_t value, quvex_narrow* destination, int32_t radix) {
  return to_text(value, destination, radix);
}
quvex_wide* QUVEX_002004(int32_t value, quvex_wide* destination, int32_t radix) {
  return to_text(value, destination, radix);
}

int32_t QUVEX_002000(const quvex_narrow* source) { return to_integer(source); }
int32_t QUVEX_002053(const quvex_wide* source) { return to_integer(source); }
