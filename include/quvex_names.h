/** @file
    The operations of quvex.h under readable names for C11 and later, one name for both widths: `quvex_length(text)`.

    - Text is a pointer to, or an array of, `char`, `unsigned char` (narrow), `uint16_t` or `char16_t` (wide): literals
      too. A pointer that comes back is one to the caller's own type, `const` if the text was.
    - Narrow and wide text do not mix: such a call does not compile. `NULL` is taken wherever quvex.h takes null; where
      it decides which twin is called, it counts as narrow.
    - Every name is a macro that evaluates its arguments once and only forwards: the contract is that of the link names
      in its line, narrow first. Where a function's address is wanted, take that of the link name. */
#ifndef QUVEX_NAMES_H
#define QUVEX_NAMES_H

#include "quvex.h"

#ifdef __cplusplus
#error "In C++ include quvex.hpp."
#elif !defined(__STDC_VERSION__) || __STDC_VERSION__ < 201112L
#error "quvex_names.h needs C11. With C99, call the link names of quvex.h."
#endif

/* The formatter does not know _Generic. */
/* clang-format off */

/* 1 for narrow text, 2 for wide text, 0 for NULL. Text that is written must not be const. */
#define QUVEX_WIDTH(text) \
  _Generic((text), void*: 0, char*: 1, const char*: 1, unsigned char*: 1, const unsigned char*: 1, \
           uint16_t*: 2, const uint16_t*: 2)
#define QUVEX_WRITABLE_WIDTH(text) _Generic((text), void*: 0, char*: 1, unsigned char*: 1, uint16_t*: 2)
#define QUVEX_ARRAY_WIDTH(array) _Generic((array), void*: 0, char**: 1, unsigned char**: 1, uint16_t**: 2)

/* A character's number: `char` counts as unsigned. */
#define QUVEX_NUMBER(character) _Generic((character), char: (unsigned char)(character), default: (character))

/* The twin for text of these widths, joined with `|`. Mixed widths choose a function that no call can match. */
#define QUVEX_TWIN(widths, narrow, wide) \
  _Generic((char(*)[(widths) + 1])0, char(*)[1]: narrow, char(*)[2]: narrow, char(*)[3]: wide, \
           char(*)[4]: quvex_narrow_and_wide_text_do_not_mix)
int quvex_narrow_and_wide_text_do_not_mix(void);

/* A result as a pointer to the caller's own type. */
#define QUVEX_AS(text, result) \
  _Generic((text), void*: quvex_as_void, char*: quvex_as_char, const char*: quvex_as_const_char, \
           unsigned char*: quvex_as_narrow, const unsigned char*: quvex_as_const_narrow, \
           uint16_t*: quvex_as_wide, const uint16_t*: quvex_as_const_wide)(result)
#define QUVEX_AS_CONST(text, result) \
  _Generic((text), void*: quvex_as_const_char, char*: quvex_as_const_char, \
           unsigned char*: quvex_as_const_narrow)(result)

/* clang-format on */

static inline void* quvex_as_void(void* text) { return text; }
static inline char* quvex_as_char(void* text) { return (char*)text; }
static inline const char* quvex_as_const_char(const void* text) { return (const char*)text; }
static inline quvex_narrow* quvex_as_narrow(void* text) { return (quvex_narrow*)text; }
static inline const quvex_narrow* quvex_as_const_narrow(const void* text) { return (const quvex_narrow*)text; }
static inline quvex_wide* quvex_as_wide(void* text) { return (quvex_wide*)text; }
static inline const quvex_wide* quvex_as_const_wide(const void* text) { return (const quvex_wide*)text; }

/* ---- Length and copy ---- */

#define quvex_length(string) QUVEX_TWIN(QUVEX_WIDTH(string), QUVEX_002014, QUVEX_002039)((const void*)(string))
#define quvex_copy(destination, source)                                                           \
  QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), QUVEX_002009, QUVEX_002034) \
  ((void*)(destination), (const void*)(source))
#define quvex_copy_bounded(destination, size, source)                                             \
  QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), QUVEX_002010, QUVEX_002035) \
  ((void*)(destination), size, (const void*)(source))
#define quvex_copy_counted(destination, source, count)                                            \
  QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), QUVEX_002017, QUVEX_002044) \
  ((void*)(destination), (const void*)(source), count)

/* ---- Append ---- */

#define quvex_append(destination, source)                                                         \
  QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), QUVEX_002005, QUVEX_002030) \
  ((void*)(destination), (const void*)(source))
#define quvex_append_bounded(destination, size, source)                                           \
  QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), QUVEX_002006, QUVEX_002031) \
  ((void*)(destination), size, (const void*)(source))
#define quvex_append_counted(destination, source, count)                                   \
  QUVEX_TWIN(2 | QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), 0, QUVEX_002041) \
  ((void*)(destination), (const void*)(source), count)
#define quvex_append_bounded_counted(destination, size, source, count)                     \
  QUVEX_TWIN(2 | QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), 0, QUVEX_002042) \
  ((void*)(destination), size, (const void*)(source), count)

/* ---- Case ---- */

#define quvex_character_to_lower(character) QUVEX_002026(QUVEX_NUMBER(character))
#define quvex_character_to_upper(character) QUVEX_002027(QUVEX_NUMBER(character))
#define quvex_to_lower(string) QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(string), QUVEX_002015, QUVEX_002040)((void*)(string))
#define quvex_to_upper(string) QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(string), QUVEX_002025, QUVEX_002052)((void*)(string))

/* ---- Compare ---- */

#define quvex_compare(first, second)                                               \
  QUVEX_TWIN(QUVEX_WIDTH(first) | QUVEX_WIDTH(second), QUVEX_002008, QUVEX_002033) \
  ((const void*)(first), (const void*)(second))
#define quvex_compare_counted(first, second, count)                                \
  QUVEX_TWIN(QUVEX_WIDTH(first) | QUVEX_WIDTH(second), QUVEX_002016, QUVEX_002043) \
  ((const void*)(first), (const void*)(second), count)
#define quvex_compare_folded(first, second)                                        \
  QUVEX_TWIN(QUVEX_WIDTH(first) | QUVEX_WIDTH(second), QUVEX_002012, QUVEX_002037) \
  ((const void*)(first), (const void*)(second))
#define quvex_compare_folded_counted(first, second, count)                         \
  QUVEX_TWIN(QUVEX_WIDTH(first) | QUVEX_WIDTH(second), QUVEX_002019, QUVEX_002046) \
  ((const void*)(first), (const void*)(second), count)

/* ---- Search ---- */

#define quvex_find_character(string, character)                                                       \
  QUVEX_AS(string, QUVEX_TWIN(QUVEX_WIDTH(string), QUVEX_002007, QUVEX_002032)((const void*)(string), \
                                                                               QUVEX_NUMBER(character)))
#define quvex_find(haystack, needle)                                                                      \
  QUVEX_AS(haystack, QUVEX_TWIN(QUVEX_WIDTH(haystack) | QUVEX_WIDTH(needle), QUVEX_002022, QUVEX_002049)( \
                         (const void*)(haystack), (const void*)(needle)))
#define quvex_find_folded(haystack, needle)                                                               \
  QUVEX_AS(haystack, QUVEX_TWIN(QUVEX_WIDTH(haystack) | QUVEX_WIDTH(needle), QUVEX_002013, QUVEX_002038)( \
                         (const void*)(haystack), (const void*)(needle)))

/* ---- Tokenize, trim, replace ---- */

#define quvex_next_token(string, cursor, set)                                                               \
  QUVEX_AS(string, QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(string) | QUVEX_WIDTH(set), QUVEX_002023, QUVEX_002050)( \
                       (void*)(string), cursor, (const void*)(set)))
#define quvex_split(string, set, array)                                                                              \
  QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(string) | QUVEX_WIDTH(set) | QUVEX_ARRAY_WIDTH(array), QUVEX_002021, QUVEX_002048) \
  ((void*)(string), (const void*)(set), (void*)(array))
#define quvex_trim(string, set)                                                           \
  QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(string) | QUVEX_WIDTH(set), QUVEX_002024, QUVEX_002051) \
  ((void*)(string), (const void*)(set))
#define quvex_replace(source, pattern, replacement, destination)                                                 \
  QUVEX_TWIN(                                                                                                    \
      QUVEX_WIDTH(source) | QUVEX_WIDTH(pattern) | QUVEX_WIDTH(replacement) | QUVEX_WRITABLE_WIDTH(destination), \
      QUVEX_002020, QUVEX_002047)                                                                                \
  ((const void*)(source), (const void*)(pattern), (const void*)(replacement), (void*)(destination))

/* ---- Integer and text ---- */

#define quvex_to_text(value, destination, radix)                                                   \
  QUVEX_AS(destination, QUVEX_TWIN(QUVEX_WRITABLE_WIDTH(destination), QUVEX_002003, QUVEX_002004)( \
                            value, (void*)(destination), radix))
#define quvex_to_integer(source) QUVEX_TWIN(QUVEX_WIDTH(source), QUVEX_002000, QUVEX_002053)((const void*)(source))

/* ---- From one width to the other ---- */

#define quvex_escape(source, destination, size)                                                               \
  QUVEX_AS_CONST(destination, QUVEX_TWIN(2 | QUVEX_WIDTH(source) | QUVEX_WRITABLE_WIDTH(destination) >> 1, 0, \
                                         QUVEX_002029)((const void*)(source), (void*)(destination), size))
#define quvex_widen(source, destination, size)                                                                         \
  QUVEX_AS(destination, QUVEX_TWIN(2 | QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source) >> 1, 0, QUVEX_002001)( \
                            (const void*)(source), (void*)(destination), size))
#define quvex_widen_units(source, destination, count)                                           \
  QUVEX_TWIN(2 | QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source) >> 1, 0, QUVEX_002002) \
  ((const void*)(source), (void*)(destination), count)
#define quvex_copy_units(source, destination, count)                                       \
  QUVEX_TWIN(2 | QUVEX_WRITABLE_WIDTH(destination) | QUVEX_WIDTH(source), 0, QUVEX_002028) \
  ((const void*)(source), (void*)(destination), count)

#endif
