/** @file
    The operations of quvex.h under readable names for C11 and later, one name for both widths: `quvex_length(text)`.

    - Text is a pointer to, or an array of, `char`, `unsigned char` (narrow), `uint16_t` or `char16_t` (wide): literals
      too. A pointer that comes back is one to the caller's own type, `const` if the text was.
    - What is written into is bounded. An array bounds by its size; a pointer is refused where no size or count is
      given. What cannot fit does not compile where sizes are known: a literal into a smaller array, a size or count
      beyond an array, `quvex_to_text` into fewer units than a radix can need. Names that end in `_unbounded` check
      nothing.
    - Narrow and wide text do not mix: such a call does not compile. `NULL`, and C23's `nullptr`, is taken wherever
      quvex.h takes null; where it decides which twin is called, it counts as narrow. Another `void*` is no text.
    - A size or count of wide text is a signed number: `sizeof` would count bytes.
    - Every name is a macro that evaluates its arguments once. It forwards to the operation of its name; four forms that
      no operation bounds are composed of several. Where a function's address is wanted, take that of the link name. */
#ifndef QUVEX_NAMES_H
#define QUVEX_NAMES_H

#ifdef __cplusplus
#error "In C++ include quvex.hpp."
#elif !defined(__STDC_VERSION__) || __STDC_VERSION__ < 201112L
#error "quvex_names.h needs C11. With C99, call the link names of quvex.h."
#elif !defined(__GNUC__)
#error "quvex_names.h needs GCC or clang. With another compiler, call the link names of quvex.h."
#endif

#include "quvex.h"
#include "quvex_bounded.h"

/* The formatter does not know _Generic. */
/* clang-format off */

/* What an argument is: 1 narrow, 2 wide, 4 more if const; 0 C23's nullptr; 8 void*, and so NULL; 16 wchar_t; 32 no
   text. */
#if __STDC_VERSION__ >= 202311L
#define QUVEX_KIND_OF_NULLPTR , __typeof__(nullptr): 0
#else
#define QUVEX_KIND_OF_NULLPTR
#endif
#if __SIZEOF_WCHAR_T__ != 2  /* else it may be the type of wide text */
#define QUVEX_KIND_OF_WCHAR_T , __WCHAR_TYPE__*: 16, const __WCHAR_TYPE__*: 16
#else
#define QUVEX_KIND_OF_WCHAR_T
#endif
#define QUVEX_KIND(text) \
  _Generic((text), char*: 1, unsigned char*: 1, uint16_t*: 2, const char*: 5, const unsigned char*: 5, \
           const uint16_t*: 6, void*: 8, default: 32 QUVEX_KIND_OF_NULLPTR QUVEX_KIND_OF_WCHAR_T)
#define QUVEX_SLOTS_KIND(array) _Generic((array), char**: 1, unsigned char**: 1, uint16_t**: 2, default: 32)
#define QUVEX_IS_WIDE(kinds) (((kinds) & 2) != 0)

/* Whether a void* is the constant NULL: only that takes the type of the other side. */
#define QUVEX_IS_NULL(text) \
  _Generic(1 ? _Generic((text), void*: (text), default: (void*)1) : (int*)0, int*: 1, default: 0)

/* An array, and how many units one of this kind holds; a pointer never stops anything. */
#define QUVEX_DECAYED(text) __typeof__(((void)0, (text)))
#define QUVEX_IS_ARRAY(text) (!__builtin_types_compatible_p(__typeof__(text), QUVEX_DECAYED(text)))
#define QUVEX_SIZE(text) ((int32_t)(sizeof(__typeof__(text)) / (QUVEX_KIND(text) & 2 ? 2 : 1)))
#define QUVEX_ROOM(text) (QUVEX_IS_ARRAY(text) ? QUVEX_SIZE(text) : INT32_MAX)
/* The same where a constant is wanted: an array of variable length stops nothing before the program runs. */
#define QUVEX_FIXED_ROOM(text) \
  __builtin_choose_expr(__builtin_constant_p(sizeof(__typeof__(text))), QUVEX_ROOM(text), INT32_MAX)
/* A constant as itself, anything else as 0: both are constants. */
#define QUVEX_CONSTANT(number) __builtin_choose_expr(__builtin_constant_p(number), (number), 0)

/* Each sentence is what a mistake is answered with. A caller's arguments stand in `sizeof`, which evaluates nothing;
   clang would print them in front of the sentence, but for the chosen 0. */
#define QUVEX_CHECK(...) ((void)sizeof(struct { __VA_ARGS__ int quvex_checked; }))
#define QUVEX_UNLESS(mistake, sentence) _Static_assert(__builtin_choose_expr((mistake), 0, 1), "quvex: " sentence);
#define QUVEX_READS(text) \
  QUVEX_UNLESS(QUVEX_KIND(text) == 16, "wchar_t is no text here: write uint16_t or char16_t, with u before a literal") \
  QUVEX_UNLESS(QUVEX_KIND(text) == 32, \
               "text is a pointer to or an array of char, unsigned char, uint16_t or char16_t") \
  QUVEX_UNLESS(QUVEX_KIND(text) == 8 && !QUVEX_IS_NULL(text), \
               "void* is no text: cast it to what it points to, or write NULL")
#define QUVEX_WRITES(text) \
  QUVEX_READS(text) \
  QUVEX_UNLESS((QUVEX_KIND(text) & 4) || (QUVEX_IS_ARRAY(text) && __builtin_constant_p(text)), \
               "text that is written to cannot be const")
#define QUVEX_IS_CHARACTER(character) \
  QUVEX_UNLESS(QUVEX_KIND(character) != 32, "a character is wanted here, not text: write it between single quotes")
#define QUVEX_ALIKE(kinds) QUVEX_UNLESS(((kinds) & 3) == 3, "narrow and wide text do not mix")
#define QUVEX_HAS_ROOM(destination, instead) \
  QUVEX_UNLESS(!QUVEX_IS_ARRAY(destination), "a pointer does not tell how much it holds: write " instead)
#define QUVEX_FITS(source, destination) \
  QUVEX_UNLESS(__builtin_constant_p(source) && QUVEX_IS_ARRAY(source) && \
               QUVEX_FIXED_ROOM(source) > QUVEX_FIXED_ROOM(destination), \
               "the literal does not fit in the destination")
#define QUVEX_IS_BYTES(number, text) ((QUVEX_KIND(text) & 2) && sizeof(number) >= 4 && (__typeof__(number))-1 > 0)
#define QUVEX_COUNTS(number, text) \
  QUVEX_UNLESS(QUVEX_IS_BYTES(number, text), \
               "wide text is counted in units, where sizeof counts bytes: give an int32_t, or an array alone")
#define QUVEX_WITHIN(number, destination) \
  QUVEX_COUNTS(number, destination) \
  QUVEX_UNLESS(!QUVEX_IS_BYTES(number, destination) && QUVEX_CONSTANT(number) > QUVEX_FIXED_ROOM(destination), \
               "this is more than the array holds")

/* The twin for text of these kinds, joined with `|`. */
#define QUVEX_TWIN(kinds, narrow, wide) __builtin_choose_expr(QUVEX_IS_WIDE(kinds), wide, narrow)
/* A result as a pointer to the caller's own type. */
#define QUVEX_AS(text, result) ((QUVEX_DECAYED(text))(void*)(result))

#define QUVEX_AS_CONST(text, result) \
  _Generic((text), char*: (const char*)(const void*)(result), default: (const quvex_narrow*)(const void*)(result))
#define QUVEX_SLOTS(array) (QUVEX_IS_ARRAY(array) ? (int32_t)(sizeof(__typeof__(array)) / sizeof(void*)) : INT32_MAX)

/* A character's number: `char` counts as unsigned. */
#define QUVEX_NUMBER(character) \
  _Generic((character), char: (unsigned char)(character), char*: 0, const char*: 0, default: (character))

/* clang-format on */

/* ---- Length and copy ---- */

#define quvex_length(string) \
  (QUVEX_CHECK(QUVEX_READS(string)), QUVEX_TWIN(QUVEX_KIND(string), QUVEX_002014, QUVEX_002039)((const void*)(string)))
#define quvex_copy(destination, source)                                                                                \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source)) \
                   QUVEX_HAS_ROOM(destination, "quvex_copy_bounded(destination, size, source)")                        \
                       QUVEX_FITS(source, destination)),                                                               \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), QUVEX_002010, QUVEX_002035)(                               \
       (void*)(destination), QUVEX_ROOM(destination), (const void*)(source)))
#define quvex_copy_bounded(destination, size, source)                                                                  \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source)) \
                   QUVEX_WITHIN(size, destination)),                                                                   \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), QUVEX_002010, QUVEX_002035)(                               \
       (void*)(destination), quvex_lesser(size, QUVEX_ROOM(destination)), (const void*)(source)))
#define quvex_copy_unbounded(destination, source)                                                                      \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source)) \
                   QUVEX_FITS(source, destination)),                                                                   \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), QUVEX_002009, QUVEX_002034)((void*)(destination),          \
                                                                                        (const void*)(source)))
/* Where the count turns out to be more than an array holds, the size-bounded copy. */
#define quvex_copy_counted(destination, source, count)                                                                 \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source)) \
                   QUVEX_WITHIN(count, destination)),                                                                  \
   __builtin_choose_expr(                                                                                              \
       QUVEX_IS_ARRAY(destination),                                                                                    \
       QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), quvex_copy_counted_narrow, quvex_copy_counted_wide)(   \
           (void*)(destination), QUVEX_ROOM(destination), (const void*)(source), count),                               \
       QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), QUVEX_002017, QUVEX_002044)(                           \
           (void*)(destination), (const void*)(source), count)))

/* ---- Append ---- */

#define quvex_append(destination, source)                                                                              \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source)) \
                   QUVEX_HAS_ROOM(destination, "quvex_append_bounded(destination, size, source)")                      \
                       QUVEX_FITS(source, destination)),                                                               \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), QUVEX_002006, QUVEX_002031)(                               \
       (void*)(destination), QUVEX_ROOM(destination), (const void*)(source)))
#define quvex_append_bounded(destination, size, source)                                                                \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source)) \
                   QUVEX_WITHIN(size, destination)),                                                                   \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), QUVEX_002006, QUVEX_002031)(                               \
       (void*)(destination), quvex_lesser(size, QUVEX_ROOM(destination)), (const void*)(source)))
#define quvex_append_unbounded(destination, source)                                                                    \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source)) \
                   QUVEX_FITS(source, destination)),                                                                   \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source), QUVEX_002005, QUVEX_002030)((void*)(destination),          \
                                                                                        (const void*)(source)))
#define quvex_append_counted(destination, source, count)                                                             \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source)                                                         \
                   QUVEX_ALIKE(2 | QUVEX_KIND(destination) | QUVEX_KIND(source))                                     \
                       QUVEX_HAS_ROOM(destination, "quvex_append_bounded_counted(destination, size, source, count)") \
                           QUVEX_COUNTS(count, destination)),                                                        \
   QUVEX_TWIN(2 | QUVEX_KIND(destination) | QUVEX_KIND(source), 0, QUVEX_002042)(                                    \
       (void*)(destination), QUVEX_ROOM(destination), (const void*)(source), count))
#define quvex_append_bounded_counted(destination, size, source, count)                                           \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source)                                                     \
                   QUVEX_ALIKE(2 | QUVEX_KIND(destination) | QUVEX_KIND(source)) QUVEX_WITHIN(size, destination) \
                       QUVEX_COUNTS(count, destination)),                                                        \
   QUVEX_TWIN(2 | QUVEX_KIND(destination) | QUVEX_KIND(source), 0, QUVEX_002042)(                                \
       (void*)(destination), quvex_lesser(size, QUVEX_ROOM(destination)), (const void*)(source), count))
#define quvex_append_counted_unbounded(destination, source, count)                                                  \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source)                                                        \
                   QUVEX_ALIKE(2 | QUVEX_KIND(destination) | QUVEX_KIND(source)) QUVEX_COUNTS(count, destination)), \
   QUVEX_TWIN(2 | QUVEX_KIND(destination) | QUVEX_KIND(source), 0, QUVEX_002041)((void*)(destination),              \
                                                                                 (const void*)(source), count))

/* ---- Case ---- */

#define quvex_character_to_lower(character) \
  (QUVEX_CHECK(QUVEX_IS_CHARACTER(character)), QUVEX_002026(QUVEX_NUMBER(character)))
#define quvex_character_to_upper(character) \
  (QUVEX_CHECK(QUVEX_IS_CHARACTER(character)), QUVEX_002027(QUVEX_NUMBER(character)))
#define quvex_to_lower(string) \
  (QUVEX_CHECK(QUVEX_WRITES(string)), QUVEX_TWIN(QUVEX_KIND(string), QUVEX_002015, QUVEX_002040)((void*)(string)))
#define quvex_to_upper(string) \
  (QUVEX_CHECK(QUVEX_WRITES(string)), QUVEX_TWIN(QUVEX_KIND(string), QUVEX_002025, QUVEX_002052)((void*)(string)))

/* ---- Compare ---- */

#define quvex_compare(first, second)                                                                        \
  (QUVEX_CHECK(QUVEX_READS(first) QUVEX_READS(second) QUVEX_ALIKE(QUVEX_KIND(first) | QUVEX_KIND(second))), \
   QUVEX_TWIN(QUVEX_KIND(first) | QUVEX_KIND(second), QUVEX_002008, QUVEX_002033)((const void*)(first),     \
                                                                                  (const void*)(second)))
#define quvex_compare_counted(first, second, count)                                                       \
  (QUVEX_CHECK(QUVEX_READS(first) QUVEX_READS(second) QUVEX_ALIKE(QUVEX_KIND(first) | QUVEX_KIND(second)) \
                   QUVEX_COUNTS(count, first)),                                                           \
   QUVEX_TWIN(QUVEX_KIND(first) | QUVEX_KIND(second), QUVEX_002016, QUVEX_002043)((const void*)(first),   \
                                                                                  (const void*)(second), count))
#define quvex_compare_folded(first, second)                                                                 \
  (QUVEX_CHECK(QUVEX_READS(first) QUVEX_READS(second) QUVEX_ALIKE(QUVEX_KIND(first) | QUVEX_KIND(second))), \
   QUVEX_TWIN(QUVEX_KIND(first) | QUVEX_KIND(second), QUVEX_002012, QUVEX_002037)((const void*)(first),     \
                                                                                  (const void*)(second)))
#define quvex_compare_folded_counted(first, second, count)                                                \
  (QUVEX_CHECK(QUVEX_READS(first) QUVEX_READS(second) QUVEX_ALIKE(QUVEX_KIND(first) | QUVEX_KIND(second)) \
                   QUVEX_COUNTS(count, first)),                                                           \
   QUVEX_TWIN(QUVEX_KIND(first) | QUVEX_KIND(second), QUVEX_002019, QUVEX_002046)((const void*)(first),   \
                                                                                  (const void*)(second), count))

/* ---- Search ---- */

#define quvex_find_character(string, character)                                                       \
  (QUVEX_CHECK(QUVEX_READS(string) QUVEX_IS_CHARACTER(character)),                                    \
   QUVEX_AS(string, QUVEX_TWIN(QUVEX_KIND(string), QUVEX_002007, QUVEX_002032)((const void*)(string), \
                                                                               QUVEX_NUMBER(character))))
#define quvex_find(haystack, needle)                                                                              \
  (QUVEX_CHECK(QUVEX_READS(haystack) QUVEX_READS(needle) QUVEX_ALIKE(QUVEX_KIND(haystack) | QUVEX_KIND(needle))), \
   QUVEX_AS(haystack, QUVEX_TWIN(QUVEX_KIND(haystack) | QUVEX_KIND(needle), QUVEX_002022, QUVEX_002049)(          \
                          (const void*)(haystack), (const void*)(needle))))
#define quvex_find_folded(haystack, needle)                                                                       \
  (QUVEX_CHECK(QUVEX_READS(haystack) QUVEX_READS(needle) QUVEX_ALIKE(QUVEX_KIND(haystack) | QUVEX_KIND(needle))), \
   QUVEX_AS(haystack, QUVEX_TWIN(QUVEX_KIND(haystack) | QUVEX_KIND(needle), QUVEX_002013, QUVEX_002038)(          \
                          (const void*)(haystack), (const void*)(needle))))

/* ---- Tokenize, trim, replace ---- */

#define quvex_next_token(string, cursor, set)                                                            \
  (QUVEX_CHECK(QUVEX_WRITES(string) QUVEX_READS(set) QUVEX_ALIKE(QUVEX_KIND(string) | QUVEX_KIND(set))), \
   QUVEX_AS(string, QUVEX_TWIN(QUVEX_KIND(string) | QUVEX_KIND(set), QUVEX_002023, QUVEX_002050)(        \
                        (void*)(string), cursor, (const void*)(set))))
/* An array with too few slots for all tokens is filled, and the result is their number, negated. A slot for every
   token that the text's own array can hold leaves nothing to bound. */
#define quvex_split(string, set, array)                                                                          \
  (QUVEX_CHECK(QUVEX_WRITES(string) QUVEX_READS(set) QUVEX_ALIKE(QUVEX_KIND(string) | QUVEX_KIND(set))           \
                   QUVEX_UNLESS(QUVEX_SLOTS_KIND(array) != QUVEX_KIND(string),                                   \
                                "the array of split holds pointers to the characters of its text")               \
                       QUVEX_UNLESS(!QUVEX_IS_ARRAY(array),                                                      \
                                    "a pointer does not tell how many slots it has: write "                      \
                                    "quvex_split_bounded(string, set, array, slots)")),                          \
   __builtin_choose_expr(QUVEX_CONSTANT(QUVEX_SLOTS(array)) >= QUVEX_FIXED_ROOM(string) / 2,                     \
                         QUVEX_TWIN(QUVEX_KIND(string) | QUVEX_KIND(set), QUVEX_002021, QUVEX_002048)(           \
                             (void*)(string), (const void*)(set), (void*)(array)),                               \
                         QUVEX_TWIN(QUVEX_KIND(string) | QUVEX_KIND(set), quvex_split_narrow, quvex_split_wide)( \
                             (void*)(string), (const void*)(set), (void*)(array), QUVEX_SLOTS(array))))
#define quvex_split_bounded(string, set, array, slots)                                                               \
  (QUVEX_CHECK(QUVEX_WRITES(string) QUVEX_READS(set) QUVEX_ALIKE(QUVEX_KIND(string) | QUVEX_KIND(set)) QUVEX_UNLESS( \
       QUVEX_SLOTS_KIND(array) != QUVEX_KIND(string),                                                                \
       "the array of split holds pointers to the characters of its text")                                            \
                   QUVEX_UNLESS(QUVEX_CONSTANT((slots) > QUVEX_SLOTS(array)), "this is more than the array holds")), \
   QUVEX_TWIN(QUVEX_KIND(string) | QUVEX_KIND(set), quvex_split_narrow, quvex_split_wide)(                           \
       (void*)(string), (const void*)(set), (void*)(array), quvex_lesser(slots, QUVEX_SLOTS(array))))
#define quvex_split_unbounded(string, set, array)                                                                    \
  (QUVEX_CHECK(QUVEX_WRITES(string) QUVEX_READS(set) QUVEX_ALIKE(QUVEX_KIND(string) | QUVEX_KIND(set))               \
                   QUVEX_UNLESS(QUVEX_SLOTS_KIND(array) != QUVEX_KIND(string),                                       \
                                "the array of split holds pointers to the characters of its text")),                 \
   QUVEX_TWIN(QUVEX_KIND(string) | QUVEX_KIND(set), QUVEX_002021, QUVEX_002048)((void*)(string), (const void*)(set), \
                                                                                (void*)(array)))
#define quvex_trim(string, set)                                                                          \
  (QUVEX_CHECK(QUVEX_WRITES(string) QUVEX_READS(set) QUVEX_ALIKE(QUVEX_KIND(string) | QUVEX_KIND(set))), \
   QUVEX_TWIN(QUVEX_KIND(string) | QUVEX_KIND(set), QUVEX_002024, QUVEX_002051)((void*)(string), (const void*)(set)))
/* A result that does not fit becomes the empty string, and its length tells. NULL asks for the length alone. */
#define quvex_replace(source, pattern, replacement, destination)                                                       \
  (QUVEX_CHECK(                                                                                                        \
       QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_READS(pattern) QUVEX_READS(replacement)                     \
           QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source) | QUVEX_KIND(pattern) | QUVEX_KIND(replacement))   \
               QUVEX_UNLESS(!QUVEX_IS_ARRAY(destination) && QUVEX_KIND(destination) & 7,                               \
                            "a pointer does not tell how much it holds: write quvex_replace_bounded(source, pattern, " \
                            "replacement, destination, size)")),                                                       \
   __builtin_choose_expr(                                                                                              \
       QUVEX_IS_ARRAY(destination),                                                                                    \
       QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source) | QUVEX_KIND(pattern) | QUVEX_KIND(replacement),        \
                  quvex_replace_narrow, quvex_replace_wide)((const void*)(source), (const void*)(pattern),             \
                                                            (const void*)(replacement), (void*)(destination),          \
                                                            QUVEX_ROOM(destination)),                                  \
       QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source) | QUVEX_KIND(pattern) | QUVEX_KIND(replacement),        \
                  QUVEX_002020, QUVEX_002047)((const void*)(source), (const void*)(pattern),                           \
                                              (const void*)(replacement), (void*)(destination))))
#define quvex_replace_bounded(source, pattern, replacement, destination, size)                              \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_READS(pattern) QUVEX_READS(replacement)  \
                   QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source) | QUVEX_KIND(pattern) |         \
                               QUVEX_KIND(replacement)) QUVEX_WITHIN(size, destination)),                   \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source) | QUVEX_KIND(pattern) | QUVEX_KIND(replacement), \
              quvex_replace_narrow, quvex_replace_wide)((const void*)(source), (const void*)(pattern),      \
                                                        (const void*)(replacement), (void*)(destination),   \
                                                        quvex_lesser(size, QUVEX_ROOM(destination))))
#define quvex_replace_unbounded(source, pattern, replacement, destination)                                             \
  (QUVEX_CHECK(                                                                                                        \
       QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_READS(pattern) QUVEX_READS(replacement)                     \
           QUVEX_ALIKE(QUVEX_KIND(destination) | QUVEX_KIND(source) | QUVEX_KIND(pattern) | QUVEX_KIND(replacement))), \
   QUVEX_TWIN(QUVEX_KIND(destination) | QUVEX_KIND(source) | QUVEX_KIND(pattern) | QUVEX_KIND(replacement),            \
              QUVEX_002020, QUVEX_002047)((const void*)(source), (const void*)(pattern), (const void*)(replacement),   \
                                          (void*)(destination)))

/* ---- Integer and text ---- */

/* In a radix that could need more than the array holds: the empty string. */
#define quvex_to_text(value, destination, radix)                                                                    \
  (QUVEX_CHECK(QUVEX_WRITES(destination)                                                                            \
                   QUVEX_HAS_ROOM(destination, "quvex_to_text_bounded(value, destination, size, radix)")            \
                       QUVEX_UNLESS(QUVEX_FIXED_ROOM(destination) < 8 ||                                            \
                                        (QUVEX_CONSTANT(radix) > 1 &&                                               \
                                         QUVEX_CONSTANT(radix) < QUVEX_LEAST_RADIX(QUVEX_FIXED_ROOM(destination))), \
                                    "to_text needs 12 units in radix 10, 10 in radix 16, 34 in radix 2")),          \
   QUVEX_AS(destination, QUVEX_TWIN(QUVEX_KIND(destination), quvex_to_text_narrow, quvex_to_text_wide)(             \
                             value, (void*)(destination), QUVEX_ROOM(destination), radix)))

#define quvex_to_text_bounded(value, destination, size, radix)                                          \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_WITHIN(size, destination)),                              \
   QUVEX_AS(destination, QUVEX_TWIN(QUVEX_KIND(destination), quvex_to_text_narrow, quvex_to_text_wide)( \
                             value, (void*)(destination), quvex_lesser(size, QUVEX_ROOM(destination)), radix)))
#define quvex_to_text_unbounded(value, destination, radix) \
  (QUVEX_CHECK(QUVEX_WRITES(destination)),                 \
   QUVEX_AS(destination,                                   \
            QUVEX_TWIN(QUVEX_KIND(destination), QUVEX_002003, QUVEX_002004)(value, (void*)(destination), radix)))
#define quvex_to_integer(source) \
  (QUVEX_CHECK(QUVEX_READS(source)), QUVEX_TWIN(QUVEX_KIND(source), QUVEX_002000, QUVEX_002053)((const void*)(source)))

/* ---- From one width to the other ---- */

/* The size may be left out where the destination is an array. */
#define quvex_escape(...) QUVEX_PICK(__VA_ARGS__, QUVEX_ESCAPE_SIZED, QUVEX_ESCAPE, 0)(__VA_ARGS__)
#define quvex_widen(...) QUVEX_PICK(__VA_ARGS__, QUVEX_WIDEN_SIZED, QUVEX_WIDEN, 0)(__VA_ARGS__)
#define QUVEX_PICK(first, second, third, picked, ...) picked
#define QUVEX_CROSSING(wide, narrow) (2 | QUVEX_KIND(wide) | QUVEX_KIND(narrow) >> 1)
#define QUVEX_ESCAPE(source, destination)                                                                     \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_CROSSING(source, destination)) \
                   QUVEX_HAS_ROOM(destination, "quvex_escape(source, destination, size)")                     \
                       QUVEX_FITS(source, destination)),                                                      \
   QUVEX_AS_CONST(destination, QUVEX_002029((const void*)(source), (void*)(destination), QUVEX_ROOM(destination))))
#define QUVEX_ESCAPE_SIZED(source, destination, size)                                                         \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_CROSSING(source, destination)) \
                   QUVEX_WITHIN(size, destination)),                                                          \
   QUVEX_AS_CONST(destination, QUVEX_002029((const void*)(source), (void*)(destination),                      \
                                            quvex_lesser(size, QUVEX_ROOM(destination)))))
#define QUVEX_WIDEN(source, destination)                                                                      \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_CROSSING(destination, source)) \
                   QUVEX_HAS_ROOM(destination, "quvex_widen(source, destination, size)")                      \
                       QUVEX_FITS(source, destination)),                                                      \
   QUVEX_AS(destination, QUVEX_002001((const void*)(source), (void*)(destination), QUVEX_ROOM(destination))))
#define QUVEX_WIDEN_SIZED(source, destination, size)                                                          \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_CROSSING(destination, source)) \
                   QUVEX_WITHIN(size, destination)),                                                          \
   QUVEX_AS(destination,                                                                                      \
            QUVEX_002001((const void*)(source), (void*)(destination), quvex_lesser(size, QUVEX_ROOM(destination)))))
#define quvex_widen_units(source, destination, count)                                                                 \
  (QUVEX_CHECK(                                                                                                       \
       QUVEX_WRITES(destination) QUVEX_READS(source) QUVEX_ALIKE(QUVEX_CROSSING(destination, source))                 \
           QUVEX_UNLESS(QUVEX_CONSTANT(count) > QUVEX_FIXED_ROOM(destination), "this is more than the array holds")), \
   QUVEX_002002((const void*)(source), (void*)(destination), quvex_lesser(count, QUVEX_ROOM(destination))))
#define quvex_copy_units(source, destination, count)                                                                \
  (QUVEX_CHECK(QUVEX_WRITES(destination) QUVEX_READS(source)                                                        \
                   QUVEX_ALIKE(2 | QUVEX_KIND(source) | QUVEX_KIND(destination)) QUVEX_WITHIN(count, destination)), \
   QUVEX_002028((const void*)(source), (void*)(destination), quvex_lesser(count, QUVEX_ROOM(destination))))

#endif
