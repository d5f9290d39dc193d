/** @file
    Strings for firmware: fifty operations over zero-terminated strings of 8-bit (narrow) and 16-bit (wide) units.

    Conventions, stated once:

    - Unit: one `quvex_narrow` or `quvex_wide`, the terminator included; a character is a unit before the terminator.
      A unit is an unsigned number, never an encoding: no sign, no surrogate pair, no locale.
    - String: units ended by the first zero unit. A string that is read must be terminated, unless its operation says
      how far it reads.
    - Twins: the narrow operation stands first, its wide twin below it. They behave alike, unit for unit.
    - Lengths, positions, sizes and counts are in units of the string's own width, never in bytes. No string, and no
      result, is longer than 2147483647 or takes up half of the address space, as with any object of C: with 32-bit
      addresses, a string and its terminator are at most 2^31 - 1 narrow or 2^30 - 1 wide units.
    - Alignment: as C asks, so that the address of a wide unit is even.
    - Size: how many units a destination can hold, terminator included. Count: how many units are taken from a source.
      Both are signed: 2^31 or more arrives as a negative number and acts as one.
    - Null: every pointer may be null, with the result that is stated; the one exception is the string of trim.
    - Errors: there are none to report. Every argument that the caller may pass has a defined result.
    - Overlap: a destination must not overlap a source, unless the operation says what happens.
    - Letters: `A` to `Z` (65 to 90) and `a` to `z` (97 to 122), tested on the whole value; their cases differ by 32.
    - What is not mentioned is not touched: nothing is read past a terminator or a bound, and every destination unit
      that a contract does not name keeps its value.
    - Reentrant, without state or allocation: calls may run at once if none writes a buffer that another uses. */
#ifndef QUVEX_H
#define QUVEX_H

#include <stdint.h>

/** The version of this header, and one number to compare: `#if QUVEX_VERSION >= 10200` asks for 1.2.0. */
#define QUVEX_VERSION_MAJOR 1
#define QUVEX_VERSION_MINOR 0
#define QUVEX_VERSION_PATCH 0
#define QUVEX_VERSION (QUVEX_VERSION_MAJOR * 10000 + QUVEX_VERSION_MINOR * 100 + QUVEX_VERSION_PATCH)

/** A code unit of a narrow string: 0 to 255. */
typedef uint8_t quvex_narrow;

/** A code unit of a wide string: 0 to 65535, 16 bits on every target. */
typedef uint16_t quvex_wide;

/* An attribute, not `noexcept`, which is part of the type: other declarations of these names must stay compatible. */
#if defined(__GNUC__)
#define QUVEX_NOTHROW __attribute__((nothrow))
#else
#define QUVEX_NOTHROW
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Length and copy ---- */

/** `length`: the number of characters in `string`; 0 for null. */
QUVEX_NOTHROW int32_t QUVEX_002014(const quvex_narrow* string);
QUVEX_NOTHROW int32_t QUVEX_002039(const quvex_wide* string);

/** `copy`: copy `source` with its terminator.
    `destination` must hold length + 1 units. A null source gives the empty string. Nothing is written if `destination`
    is null or is `source` itself. */
QUVEX_NOTHROW void QUVEX_002009(quvex_narrow* destination, const quvex_narrow* source);
QUVEX_NOTHROW void QUVEX_002034(quvex_wide* destination, const quvex_wide* source);

/** `copy_bounded`: copy as much of `source` as fits in `size` units, always terminated.
    The first min(length, size - 1) characters are copied. A null source gives the empty string. Nothing is written if
    `destination` is null or is `source` itself, or if `size` is 0 or less. `destination` must hold `size` units or
    length + 1, whichever is fewer. `source` is read up to its terminator or index size - 1, whichever comes first, and
    needs no terminator after that. */
QUVEX_NOTHROW void QUVEX_002010(quvex_narrow* destination, int32_t size, const quvex_narrow* source);
QUVEX_NOTHROW void QUVEX_002035(quvex_wide* destination, int32_t size, const quvex_wide* source);

/** `copy_counted`: copy at most `count` units of `source`, up to and including its terminator.
    If its length is `count` or more, exactly `count` characters are written, and no terminator. The rest of the
    destination is not filled.
    A null source, or a count of 0 or less, gives the empty string. Nothing is written if `destination` is null or is
    `source` itself. `destination` must hold min(length + 1, count) units, and at least 1. No source unit at index
    `count` or beyond is read: `source` may be a field without a terminator. */
QUVEX_NOTHROW void QUVEX_002017(quvex_narrow* destination, const quvex_narrow* source, int32_t count);
QUVEX_NOTHROW void QUVEX_002044(quvex_wide* destination, const quvex_wide* source, int32_t count);

/* ---- Append: the destination is a terminated string, of length L, measured to its end on every call ---- */

/** `append`: append `source` with its terminator.
    `destination` must hold L + length + 1 units. Nothing is written if either is null. */
QUVEX_NOTHROW void QUVEX_002005(quvex_narrow* destination, const quvex_narrow* source);
QUVEX_NOTHROW void QUVEX_002030(quvex_wide* destination, const quvex_wide* source);

/** `append_bounded`: append as much of `source` as fits in `size` units, the size of the whole destination.
    The first n = min(length, size - L - 1) characters are appended and terminated; source units 0 to n are read.
    Nothing is written if either is null, or if `size` is L + 1 or less: a destination that is full, or longer than
    `size` allows, is neither changed nor shortened. */
QUVEX_NOTHROW void QUVEX_002006(quvex_narrow* destination, int32_t size, const quvex_narrow* source);
QUVEX_NOTHROW void QUVEX_002031(quvex_wide* destination, int32_t size, const quvex_wide* source);

/** `append_counted` (wide only): append at most `count` characters of `source`, always terminated.
    The first n = min(length, count) characters are appended, none for a negative count. `destination` must hold L + n +
    1 units. Source units 0 to n are read, or none if `count` is 0 or less. Nothing is written if either is null. */
QUVEX_NOTHROW void QUVEX_002041(quvex_wide* destination, const quvex_wide* source, int32_t count);

/** `append_bounded_counted` (wide only): append at most `count` characters of `source`, and no more than fit in `size`
    units, the size of the whole destination.
    The first n = min(length, count, size - L - 1) characters are appended, none for a negative count, and always
    terminated. Source units 0 to n are read, or none if `count` is 0 or less. Nothing is written if either is null, or
    if `size` is L + 1 or less. */
QUVEX_NOTHROW void QUVEX_002042(quvex_wide* destination, int32_t size, const quvex_wide* source, int32_t count);

/* ---- Case ---- */

/** `character_to_lower`: one character in lower case.
    A value from 65 to 90 plus 32; every other 32-bit value unchanged. Serves both widths. */
QUVEX_NOTHROW int32_t QUVEX_002026(int32_t character);

/** `character_to_upper`: one character in upper case.
    A value from 97 to 122 minus 32; every other 32-bit value unchanged. Serves both widths. */
QUVEX_NOTHROW int32_t QUVEX_002027(int32_t character);

/** `to_lower`: change a string to lower case, in place. Only units that change are written; null is left alone. */
QUVEX_NOTHROW void QUVEX_002015(quvex_narrow* string);
QUVEX_NOTHROW void QUVEX_002040(quvex_wide* string);

/** `to_upper`: change a string to upper case, in place. Only units that change are written; null is left alone. */
QUVEX_NOTHROW void QUVEX_002025(quvex_narrow* string);
QUVEX_NOTHROW void QUVEX_002052(quvex_wide* string);

/* ---- Compare: the result tells the order and the place ----

   0: the strings are equal. i + 1: they first differ at index i, where `first` has the greater unit; -(i + 1): where it
   has the smaller one. The terminator compares as 0, so a prefix orders first. Null orders before every string: 1 if
   only `second` is null, -1 if only `first` is. The same pointer twice, null included, gives 0, and nothing is read.
   Both strings are read to the first difference, the common terminator or the bound. They must not agree in 2147483647
   or more units. */

/** `compare`: the order of two strings and the place of their first difference. */
QUVEX_NOTHROW int32_t QUVEX_002008(const quvex_narrow* first, const quvex_narrow* second);
QUVEX_NOTHROW int32_t QUVEX_002033(const quvex_wide* first, const quvex_wide* second);

/** `compare_counted`: compare at most the first `count` units of each string.
    They need no terminator among them. A count of 0 or less compares nothing and gives 0, unless one string is null:
    null is ordered before the count is looked at. */
QUVEX_NOTHROW int32_t QUVEX_002016(const quvex_narrow* first, const quvex_narrow* second, int32_t count);
QUVEX_NOTHROW int32_t QUVEX_002043(const quvex_wide* first, const quvex_wide* second, int32_t count);

/** `compare_folded`: compare without case.
    Both units are folded to lower case before they are compared, for equality and order, so that the six characters
    from 91 to 96 order below every letter. */
QUVEX_NOTHROW int32_t QUVEX_002012(const quvex_narrow* first, const quvex_narrow* second);
QUVEX_NOTHROW int32_t QUVEX_002037(const quvex_wide* first, const quvex_wide* second);

/** `compare_folded_counted`: compare at most the first `count` units of each string, without case.
    Folded as by `compare_folded`, bounded as by `compare_counted`. */
QUVEX_NOTHROW int32_t QUVEX_002019(const quvex_narrow* first, const quvex_narrow* second, int32_t count);
QUVEX_NOTHROW int32_t QUVEX_002046(const quvex_wide* first, const quvex_wide* second, int32_t count);

/* ---- Search: the result points into the string that was passed, and may be written through if that may ---- */

/** `find_character`: the first unit of `string` equal to `character`, or null.
    The whole 32-bit value is compared: only 1 to 255 (narrow) or 1 to 65535 (wide) can match. The terminator is never
    found. Null in a null string. */
QUVEX_NOTHROW quvex_narrow* QUVEX_002007(const quvex_narrow* string, int32_t character);
QUVEX_NOTHROW quvex_wide* QUVEX_002032(const quvex_wide* string, int32_t character);

/** `find`: the start of the leftmost occurrence of `needle` in `haystack`, or null.
    In an empty haystack nothing is found, not even an empty needle; in any other the empty needle is found at its
    start. Null if either is null. The scan is a plain one: at worst, its time grows with the product of the lengths. It
    ends at a partial match that runs into the haystack's terminator. */
QUVEX_NOTHROW quvex_narrow* QUVEX_002022(const quvex_narrow* haystack, const quvex_narrow* needle);
QUVEX_NOTHROW quvex_wide* QUVEX_002049(const quvex_wide* haystack, const quvex_wide* needle);

/** `find_folded`: the start of the leftmost occurrence of `needle` in `haystack`, without case, or null.
    As `find`, with the units of both folded to lower case. */
QUVEX_NOTHROW quvex_narrow* QUVEX_002013(const quvex_narrow* haystack, const quvex_narrow* needle);
QUVEX_NOTHROW quvex_wide* QUVEX_002038(const quvex_wide* haystack, const quvex_wide* needle);

/* ---- Tokenize, trim, replace: a set is a string; a character belongs to it if it equals one of the set's ---- */

/** `next_token`: cut off the next token.
    The result is the start of the first run of characters outside `set` at or after index `*cursor`, or null when none
    is left. A delimiter that ends the token is overwritten with zero, and the cursor moves just past it; a token that
    ends the string leaves the cursor on the terminator, and so does a null result. Adjacent delimiters therefore count
    as one; a caller who wants empty fields looks at `string[*cursor]` before each call.
    With an empty set the token is the rest of the string. Null, and nothing touched, if a pointer is null.
    `string` is read from the cursor to the end of the token, never before. The caller starts the cursor at 0, or
    elsewhere up to the terminator but not beyond it, and may pass another set on each call. */
QUVEX_NOTHROW quvex_narrow* QUVEX_002023(quvex_narrow* string, uint32_t* cursor, const quvex_narrow* set);
QUVEX_NOTHROW quvex_wide* QUVEX_002050(quvex_wide* string, uint32_t* cursor, const quvex_wide* set);

/** `split`: cut `string` into all its tokens and store a pointer to each in `array`.
    The tokens are those that calls of `next_token` would give from the start on.
    The result is their number; no end marker is stored. 0, and nothing touched, if a pointer is null.
    `array` must have a slot for every token: at most (length + 1) / 2, or 1 with an empty set. */
QUVEX_NOTHROW int32_t QUVEX_002021(quvex_narrow* string, const quvex_narrow* set, quvex_narrow** array);
QUVEX_NOTHROW int32_t QUVEX_002048(quvex_wide* string, const quvex_wide* set, quvex_wide** array);

/** `trim`: strip the characters of `set` from both ends, in place.
    What is kept moves to the start of `string`. The result is its length. A null or empty set strips nothing. `string`
    must not be null, and must be writable even if nothing is stripped. The unit that followed these characters in their
    old place becomes zero, too; nothing beyond the old terminator is touched. */
QUVEX_NOTHROW int32_t QUVEX_002024(quvex_narrow* string, const quvex_narrow* set);
QUVEX_NOTHROW int32_t QUVEX_002051(quvex_wide* string, const quvex_wide* set);

/** `replace`: replace every occurrence of `pattern`, or tell the length of the result alone.
    Occurrences are found from left to right, never overlapping, and the result is written to `destination`. The result
    is its length: S + n * (R - P) for n occurrences and the lengths S, P and R of source, pattern and replacement. Text
    that was put in is not searched again.
    `destination` must hold that length + 1 units; null asks for the length alone, and nothing is written.
    0, and nothing written, if a string is null or `pattern` is empty.
    In place: `destination` may be `source` if `replacement` is shorter than `pattern`, and also if there is no
    occurrence, when nothing is written. Otherwise it must not overlap anything. */
QUVEX_NOTHROW int32_t QUVEX_002020(const quvex_narrow* source, const quvex_narrow* pattern,
                                   const quvex_narrow* replacement, quvex_narrow* destination);
QUVEX_NOTHROW int32_t QUVEX_002047(const quvex_wide* source, const quvex_wide* pattern, const quvex_wide* replacement,
                                   quvex_wide* destination);

/* ---- Integer and text ---- */

/** `to_text`: an integer as text in any radix.
    `-` for a negative value, then the digits of its magnitude, `0` to `9` and `a` to `z`, terminated.
    Returns `destination`, null included. It must hold 34 units for any value in any radix, 12 in radix 10, 10 in radix
    16.
    A radix of 0 or less gives the empty string. In a radix above 36 the digits go on after `z`: digit d is the unit
    d + 87, modulo 256 (narrow) or 65536 (wide); one that comes out as zero ends the text early. In radix 1 only the
    value 0 has a text; any other gives the empty string. */
QUVEX_NOTHROW quvex_narrow* QUVEX_002003(int32_t value, quvex_narrow* destination, int32_t radix);
QUVEX_NOTHROW quvex_wide* QUVEX_002004(int32_t value, quvex_wide* destination, int32_t radix);

/** `to_integer`: decimal text as an integer.
    Blanks and tabs, an optional `-`, then decimal digits, read up to the first unit that is no digit.
    Modulo 2^32, without an overflow test. No `+` is read. 0 for null and for text that holds no number there. */
QUVEX_NOTHROW int32_t QUVEX_002000(const quvex_narrow* source);
QUVEX_NOTHROW int32_t QUVEX_002053(const quvex_wide* source);

/* ---- From one width to the other ---- */

/** `escape`: wide text as printable ASCII, every other unit as a visible escape.
    A unit from 32 to 126 stays one character; any other becomes `&(0x`, its 1 to 4 hexadecimal digits in lower case,
    and `)`. The result is always terminated. It ends before the first character or escape that does not fit whole, and
    nothing after that is read.
    Returns `destination`; if that is null, a constant empty string, the same on every call, which must not be written
    to. A null source gives the empty string, and so does a size of 1 or less: `destination` must hold at least 1 unit,
    whatever `size` says. */
QUVEX_NOTHROW const quvex_narrow* QUVEX_002029(const quvex_wide* source, quvex_narrow* destination, int32_t size);

/** `widen`: copy as much of narrow text as fits in `size` wide units, always terminated.
    The first min(length, size - 1) characters are copied, each as the wide unit of the same number. Returns
    `destination`, null included. A null source gives the empty string, and so does a size of 1 or less: `destination`
    must hold at least 1 unit, whatever `size` says. No source unit beyond index size - 1 is read. */
QUVEX_NOTHROW quvex_wide* QUVEX_002001(const quvex_narrow* source, quvex_wide* destination, int32_t size);

/** `widen_units`: copy exactly `count` narrow units, zeros among them, to wide ones.
    Each becomes the wide unit of the same number; no terminator is added. Nothing happens if either is null or `count`
    is 0 or less. */
QUVEX_NOTHROW void QUVEX_002002(const quvex_narrow* source, quvex_wide* destination, int32_t count);

/** `copy_units`: copy exactly `count` wide units, zeros among them.
    No terminator is added. The two may overlap: the result is that of a copy unit by unit from index 0 on, so that it
    moves text towards the front, and repeats the first d units when `destination` lies d units after `source`. Nothing
    happens if either is null or `count` is 0 or less. */
QUVEX_NOTHROW void QUVEX_002028(const quvex_wide* source, quvex_wide* destination, int32_t count);

#ifdef __cplusplus
}
#endif

#endif
