#include "quvex.h"

#include "../quvex_compiler.h"

namespace {

template <class Unit>
QUVEX_INLINE Unit* to_text(int32_t value, Unit* destination, int32_t radix) {
  if (!destination) return nullptr;
  Unit* end = destination;
  if (radix > 1 || (radix == 1 && !value)) {
    uint32_t magnitude = static_cast<uint32_t>(value);
    if (value < 0) {
      magnitude = 0 - magnitude;  // Negated as unsigned: the least integer has no positive twin.
      *end = '-';
      ++end;
    }
    const uint32_t base = static_cast<uint32_t>(radix);
    Unit* first = end;
    QUVEX_ROLLED
    do {
#if (defined(__arm__) && !defined(__ARM_FEATURE_IDIV)) || (defined(__riscv) && !defined(__riscv_div))
      uint32_t digit = 0;  // Without a divide instruction, a division would call the compiler's library.
      for (int32_t bits = 32; bits; --bits) {
        digit = digit << 1 | magnitude >> 31;
        magnitude <<= 1;
        if (digit < base) continue;
        digit -= base;
        ++magnitude;
      }
#else
      uint32_t digit = magnitude % base;
      magnitude /= base;
#endif
      if (digit > 9) digit += 'a' - '0' - 10;
      *end = static_cast<Unit>('0' + digit);
      ++end;
    } while (magnitude);
    QUVEX_ROLLED
    for (Unit* last = end; first < --last; ++first) {
      const Unit unit = *last;
      *last = *first;
      *first = unit;
    }
  }
  *end = 0;
  return destination;
}

template <class Unit>
QUVEX_INLINE int32_t to_integer(const Unit* source) {
  if (!source) return 0;
  while (*source == ' ' || *source == '\t') ++source;
  const bool negative = *source == '-';
  if (negative) ++source;
  uint32_t number = 0;
  QUVEX_ROLLED
  for (uint32_t digit; (digit = *source - uint32_t{'0'}) < 10; ++source) {
    uint32_t eightfold = number * 8;
#if defined(__riscv) && !defined(__riscv_mul)
    __asm__("" : "+r"(eightfold));  // Both as one, clang would multiply, which calls the compiler's library here.
#endif
    number = eightfold + number * 2 + digit;
  }
  if (negative) number = 0 - number;
  return static_cast<int32_t>(number);
}

}  // namespace

QUVEX_EXPORT quvex_narrow* QUVEX_002003(int32_t value, quvex_narrow* destination, int32_t radix) {
  return to_text(value, destination, radix);
}
QUVEX_EXPORT quvex_wide* QUVEX_002004(int32_t value, quvex_wide* destination, int32_t radix) {
  return to_text(value, destination, radix);
}

QUVEX_EXPORT int32_t QUVEX_002000(const quvex_narrow* source) { return to_integer(source); }
QUVEX_EXPORT int32_t QUVEX_002053(const quvex_wide* source) { return to_integer(source); }
