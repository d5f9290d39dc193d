/** @file
    What quvex.hpp and quvex_names.h call where no operation bounds what it writes: composed of operations, in both
    languages. Callers use the readable names. */
#ifndef QUVEX_BOUNDED_H
#define QUVEX_BOUNDED_H

#include "quvex.h"

/* No link name is added: in C++ inline as its rules ask, in C local. */
#ifdef __cplusplus
#define QUVEX_COMPOSED QUVEX_NOTHROW inline
#define QUVEX_NULL nullptr
#else
#define QUVEX_COMPOSED QUVEX_NOTHROW static inline
#define QUVEX_NULL 0
#endif

/* Text of any 16-bit type, and pointers to text of any type. */
typedef quvex_wide __attribute__((may_alias)) quvex_any_wide;
typedef void* __attribute__((may_alias)) quvex_any_pointer;

/* The least radix in which `size` units hold every value: a sign, all digits of 2^31, the terminator. */
#define QUVEX_LEAST_RADIX(size) \
  ((size) >= 34   ? 2           \
   : (size) >= 22 ? 3           \
   : (size) >= 18 ? 4           \
   : (size) >= 16 ? 5           \
   : (size) >= 14 ? 6           \
   : (size) >= 13 ? 8           \
   : (size) >= 12 ? 9           \
   : (size) >= 11 ? 11          \
   : (size) >= 10 ? 15          \
   : (size) >= 9  ? 22          \
   : (size) >= 8  ? 36          \
                  : INT32_MAX)

QUVEX_COMPOSED int32_t quvex_lesser(int32_t first, int32_t second) { return first < second ? first : second; }

/* This file again, once for each width. */
#define QUVEX_UNIT quvex_narrow
#define QUVEX_TWIN_OF(narrow, wide) narrow
#include "quvex_bounded.h"
#undef QUVEX_UNIT
#undef QUVEX_TWIN_OF
#define QUVEX_UNIT quvex_any_wide
#define QUVEX_TWIN_OF(narrow, wide) wide
#include "quvex_bounded.h"
#undef QUVEX_UNIT
#undef QUVEX_TWIN_OF

#elif defined(QUVEX_TWIN_OF)

/* A count beyond the size makes it the size-bounded copy, which always ends with a terminator. */
QUVEX_COMPOSED void QUVEX_TWIN_OF(quvex_copy_counted_narrow,
                                  quvex_copy_counted_wide)(QUVEX_UNIT* destination, int32_t size,
                                                           const QUVEX_UNIT* source, int32_t count) {
  if (count > size) {
    QUVEX_TWIN_OF(QUVEX_002010, QUVEX_002035)(destination, size, source);
  } else {
    QUVEX_TWIN_OF(QUVEX_002017, QUVEX_002044)(destination, source, count);
  }
}

/* The number of tokens, negated if `slots` were too few for all of them. */
QUVEX_COMPOSED int32_t QUVEX_TWIN_OF(quvex_split_narrow, quvex_split_wide)(QUVEX_UNIT* string, const QUVEX_UNIT* set,
                                                                           quvex_any_pointer* array, int32_t slots) {
  int32_t count = 0;
  uint32_t cursor = 0;
  if (!string || !set || !array) return 0;
  while (count < slots) {
    QUVEX_UNIT* token = QUVEX_TWIN_OF(QUVEX_002023, QUVEX_002050)(string, &cursor, set);
    if (!token) return count;
    array[count++] = token;
  }
  for (; string[cursor]; ++cursor) {
    if (!QUVEX_TWIN_OF(QUVEX_002007, QUVEX_002032)(set, string[cursor])) return -count;
  }
  return count;
}

/* The length that the result needs; one that does not fit becomes the empty string. */
QUVEX_COMPOSED int32_t QUVEX_TWIN_OF(quvex_replace_narrow, quvex_replace_wide)(const QUVEX_UNIT* source,
                                                                               const QUVEX_UNIT* pattern,
                                                                               const QUVEX_UNIT* replacement,
                                                                               QUVEX_UNIT* destination, int32_t size) {
  const int32_t length = QUVEX_TWIN_OF(QUVEX_002020, QUVEX_002047)(source, pattern, replacement, QUVEX_NULL);
  if (!destination) return length;
  if (destination == source && length > QUVEX_TWIN_OF(QUVEX_002014, QUVEX_002039)(source)) return 0;
  if (length < size) return QUVEX_TWIN_OF(QUVEX_002020, QUVEX_002047)(source, pattern, replacement, destination);
  QUVEX_TWIN_OF(QUVEX_002010, QUVEX_002035)(destination, size, QUVEX_NULL);
  return length;
}

/* The empty string where the radix may need more units, as for a radix of 0; the greatest needs 4. */
QUVEX_COMPOSED QUVEX_UNIT* QUVEX_TWIN_OF(quvex_to_text_narrow, quvex_to_text_wide)(int32_t value,
                                                                                   QUVEX_UNIT* destination,
                                                                                   int32_t size, int32_t radix) {
  if (size < 4) {
    QUVEX_TWIN_OF(QUVEX_002010, QUVEX_002035)(destination, size, QUVEX_NULL);
    return destination;
  }
  return QUVEX_TWIN_OF(QUVEX_002003, QUVEX_002004)(value, destination,
                                                   radix < 2 || radix >= QUVEX_LEAST_RADIX(size) ? radix : 0);
}

#endif
