/** @file
    For lines of text, in C and C++: a number that was read or was not, the fields of a line, a text of fixed capacity.
    Composed of operations and inline; to be included beside quvex_names.h or quvex.hpp, whose rules hold here.

    - `read_integer(text, least, most)`: a decimal number with an optional `-`, from the first unit on: no blank, no
      `+`. The result has the `value` and, as `length`, how many units it takes: where the number ends. A length of 0
      says that there is none, or none from `least` to `most`. In C++ the two may be left out.
    - `read_hexadecimal(text, most)`: likewise, of hexadecimal digits after an optional `0x`, up to 32 bits, unsigned.
    - `next_field(line, cursor, set)`: the next field of a writable line, terminated in place, or null when there are no
      more. Any character of `set` ends a field, so that two in a row leave an empty one between them, and one at the
      end an empty one after it. Between quotes it ends none. Quotes are taken out; two in a row between quotes stand
      for one. The caller starts the cursor at 0 and leaves it alone. In C++ also
      `for (char* field : fields(line, set))`.
    - `text<Size>` in C++, `quvex_text` in C, begun with `quvex_text_in(array)` or `quvex_text_at(pointer, size)`:
      what is added to it stays within its size and ends with a terminator, and `is_cut` knows whether something did not
      fit. From then on nothing more is added. Text is cut between characters of UTF-8 and between surrogate pairs; an
      integer is added whole or not at all. */
#ifndef QUVEX_LINE_H
#define QUVEX_LINE_H

#ifdef __cplusplus
#include "quvex.hpp"
#define QUVEX_CAST(type, value) static_cast<type>(value)
#else
#include "quvex_names.h"
#define QUVEX_CAST(type, value) ((type)(value))
#endif

/** A decimal number; a hexadecimal one. */
typedef struct quvex_integer {
  int32_t value, length;
} quvex_integer;
typedef struct quvex_hexadecimal {
  uint32_t value;
  int32_t length;
} quvex_hexadecimal;

#define QUVEX_UNIT quvex_narrow
#define QUVEX_TWIN_OF(narrow, wide) narrow
#include "quvex_line.h"
#undef QUVEX_UNIT
#undef QUVEX_TWIN_OF
#define QUVEX_UNIT quvex_any_wide
#define QUVEX_TWIN_OF(narrow, wide) wide
#include "quvex_line.h"
#undef QUVEX_UNIT
#undef QUVEX_TWIN_OF

#ifdef __cplusplus

#define QUVEX_FORWARD __attribute__((always_inline)) inline

namespace quvex {

using integer = quvex_integer;
using hexadecimal = quvex_hexadecimal;

template <class Text>
QUVEX_FORWARD integer read_integer(Text&& text, int32_t least = INT32_MIN, int32_t most = INT32_MAX) noexcept {
  return detail::twin<detail::unit_of<Text>, quvex_read_integer_narrow, quvex_read_integer_wide>(reading<Text>(text),
                                                                                                 least, most);
}

template <class Text>
QUVEX_FORWARD hexadecimal read_hexadecimal(Text&& text, uint32_t most = UINT32_MAX) noexcept {
  return detail::twin<detail::unit_of<Text>, quvex_read_hexadecimal_narrow, quvex_read_hexadecimal_wide>(
      reading<Text>(text), most);
}

template <class String>
QUVEX_FORWARD pointer<String> next_field(String&& line, uint32_t* cursor, reading<String> set) noexcept {
  return reinterpret_cast<pointer<String>>(
      detail::twin<detail::unit_of<String>, quvex_next_field_narrow, quvex_next_field_wide>(changing<String>(line),
                                                                                            cursor, set));
}

/** The fields of a line as a range. */
template <class Char>
class fields {
 public:
  fields(Char* line, reading<Char*> set) noexcept : line_(line), set_(set) {}
  class iterator {
   public:
    explicit iterator(fields* range) noexcept : range_(range) { ++*this; }
    Char* operator*() const noexcept { return field_; }
    iterator& operator++() noexcept {
      field_ = next_field(range_->line_, &range_->cursor_, range_->set_);
      return *this;
    }
    bool operator!=(detail::null_type) const noexcept { return field_ != nullptr; }

   private:
    fields* range_;
    Char* field_ = nullptr;
  };
  iterator begin() noexcept { return iterator(this); }
  static detail::null_type end() noexcept { return nullptr; }

 private:
  Char* line_;
  const detail::unit_of<Char*>* set_;
  uint32_t cursor_ = 0;
};

/** A text of fixed capacity: `Size` units, the terminator included. */
template <detail::size_type Size, class Char = char>
class text {
  using unit = detail::unit_of<Char*>;

 public:
  text() noexcept { clear(); }
  text(const text&) = delete;
  text& operator=(const text&) = delete;
  void clear() noexcept {
    state_ = detail::twin<unit, quvex_text_at_narrow, quvex_text_at_wide>(units_, static_cast<int32_t>(Size));
  }
  text& add(reading<Char*> source) noexcept {
    detail::twin<unit, quvex_add_narrow, quvex_add_wide>(&state_, source);
    return *this;
  }
  text& add_character(number character) noexcept {
    detail::twin<unit, quvex_add_character_narrow, quvex_add_character_wide>(&state_, character);
    return *this;
  }
  text& add_integer(int32_t value, int32_t radix = 10) noexcept {
    detail::twin<unit, quvex_add_integer_narrow, quvex_add_integer_wide>(&state_, value, radix);
    return *this;
  }
  const Char* c_str() const noexcept { return reinterpret_cast<const Char*>(units_); }
  int32_t length() const noexcept { return state_.length; }
  bool is_cut() const noexcept { return state_.is_cut != 0; }

 private:
  decltype(detail::twin<unit, quvex_text_at_narrow, quvex_text_at_wide>(nullptr, 0)) state_;
  unit units_[Size];
};

}  // namespace quvex

#undef QUVEX_FORWARD

#else

/* clang-format off */
#define QUVEX_TEXT_KIND(text) _Generic((text), quvex_text*: 1, quvex_wide_text*: 2)
/* clang-format on */

#define quvex_read_integer(text, least, most) \
  (QUVEX_CHECK(QUVEX_READS(text)),            \
   QUVEX_TWIN(QUVEX_KIND(text), quvex_read_integer_narrow, quvex_read_integer_wide)((const void*)(text), least, most))
#define quvex_read_hexadecimal(text, most)                                                     \
  (QUVEX_CHECK(QUVEX_READS(text)), QUVEX_TWIN(QUVEX_KIND(text), quvex_read_hexadecimal_narrow, \
                                              quvex_read_hexadecimal_wide)((const void*)(text), most))
#define quvex_next_field(line, cursor, set)                                                                       \
  (QUVEX_CHECK(QUVEX_WRITES(line) QUVEX_READS(set) QUVEX_ALIKE(QUVEX_KIND(line) | QUVEX_KIND(set))),              \
   QUVEX_AS(line, QUVEX_TWIN(QUVEX_KIND(line) | QUVEX_KIND(set), quvex_next_field_narrow, quvex_next_field_wide)( \
                      (void*)(line), cursor, (const void*)(set))))
#define quvex_text_in(array)                                                               \
  (QUVEX_CHECK(QUVEX_WRITES(array) QUVEX_HAS_ROOM(array, "quvex_text_at(pointer, size)")), \
   QUVEX_TWIN(QUVEX_KIND(array), quvex_text_at_narrow, quvex_text_at_wide)((void*)(array), QUVEX_ROOM(array)))
#define quvex_text_at(pointer, size)                                                           \
  (QUVEX_CHECK(QUVEX_WRITES(pointer) QUVEX_WITHIN(size, pointer)),                             \
   QUVEX_TWIN(QUVEX_KIND(pointer), quvex_text_at_narrow, quvex_text_at_wide)((void*)(pointer), \
                                                                             quvex_lesser(size, QUVEX_ROOM(pointer))))
#define quvex_add(text, source)                                                              \
  (QUVEX_CHECK(QUVEX_READS(source) QUVEX_ALIKE(QUVEX_TEXT_KIND(text) | QUVEX_KIND(source))), \
   QUVEX_TWIN(QUVEX_TEXT_KIND(text), quvex_add_narrow, quvex_add_wide)(text, (const void*)(source)))
#define quvex_add_character(text, character)                                                                 \
  (QUVEX_CHECK(QUVEX_IS_CHARACTER(character)), QUVEX_TWIN(QUVEX_TEXT_KIND(text), quvex_add_character_narrow, \
                                                          quvex_add_character_wide)(text, QUVEX_NUMBER(character)))
#define quvex_add_integer(text, value, radix) \
  QUVEX_TWIN(QUVEX_TEXT_KIND(text), quvex_add_integer_narrow, quvex_add_integer_wide)(text, value, radix)

#endif

#elif defined(QUVEX_TWIN_OF)

/* ---- Numbers ---- */

QUVEX_COMPOSED quvex_hexadecimal QUVEX_TWIN_OF(quvex_read_digits_narrow, quvex_read_digits_wide)(const QUVEX_UNIT* text,
                                                                                                 uint32_t radix,
                                                                                                 uint32_t most) {
  quvex_hexadecimal number = {0, 0};
  for (;; ++number.length) {
    const uint32_t lower = QUVEX_CAST(uint32_t, QUVEX_002026(text[number.length]));
    const uint32_t digit = lower - '0' < 10 ? lower - '0' : lower - 'a' < 26 ? lower - 'a' + 10 : radix;
    if (digit >= radix) return number;
    if (digit > most || number.value > (most - digit) / radix) break;
    number.value = number.value * radix + digit;
  }
  number.value = 0;
  number.length = 0;
  return number;
}

QUVEX_COMPOSED quvex_integer QUVEX_TWIN_OF(quvex_read_integer_narrow, quvex_read_integer_wide)(const QUVEX_UNIT* text,
                                                                                               int32_t least,
                                                                                               int32_t most) {
  quvex_integer number = {0, 0};
  if (!text) return number;
  const int32_t sign = *text == '-';
  const quvex_hexadecimal magnitude =
      QUVEX_TWIN_OF(quvex_read_digits_narrow, quvex_read_digits_wide)(text + sign, 10, 0x7fffffffU + (sign ? 1U : 0U));
  const int32_t value = QUVEX_CAST(int32_t, sign ? 0 - magnitude.value : magnitude.value);
  if (magnitude.length == 0 || value < least || value > most) return number;
  number.value = value;
  number.length = magnitude.length + sign;
  return number;
}

QUVEX_COMPOSED quvex_hexadecimal QUVEX_TWIN_OF(quvex_read_hexadecimal_narrow,
                                               quvex_read_hexadecimal_wide)(const QUVEX_UNIT* text, uint32_t most) {
  quvex_hexadecimal number = {0, 0};
  if (!text) return number;
  const int32_t prefix = *text == '0' && QUVEX_002026(text[1]) == 'x' ? 2 : 0;
  number = QUVEX_TWIN_OF(quvex_read_digits_narrow, quvex_read_digits_wide)(text + prefix, 16, most);
  if (number.length != 0) number.length += prefix;
  return number;
}

/* ---- Fields ---- */

QUVEX_COMPOSED QUVEX_UNIT* QUVEX_TWIN_OF(quvex_next_field_narrow, quvex_next_field_wide)(QUVEX_UNIT* line,
                                                                                         uint32_t* cursor,
                                                                                         const QUVEX_UNIT* set) {
  if (!line || !cursor || !set || *cursor == UINT32_MAX) return QUVEX_NULL;
  QUVEX_UNIT* field = line + *cursor;
  QUVEX_UNIT* to = field;
  const QUVEX_UNIT* from = field;
  int is_quoted = 0;
  for (; *from && (is_quoted || !QUVEX_TWIN_OF(QUVEX_002007, QUVEX_002032)(set, *from)); ++from) {
    if (*from == '"' && !(is_quoted && from[1] == '"')) {
      is_quoted = !is_quoted;
      continue;
    }
    if (*from == '"') ++from;
    *to++ = *from;
  }
  *cursor = *from ? QUVEX_CAST(uint32_t, from + 1 - line) : UINT32_MAX;
  *to = 0;
  return field;
}

/* ---- A text of fixed capacity ---- */

typedef struct QUVEX_TWIN_OF(quvex_text, quvex_wide_text) {
  QUVEX_UNIT* units;
  int32_t size, length, is_cut;
} QUVEX_TWIN_OF(quvex_text, quvex_wide_text);

QUVEX_COMPOSED QUVEX_TWIN_OF(quvex_text, quvex_wide_text)
    QUVEX_TWIN_OF(quvex_text_at_narrow, quvex_text_at_wide)(QUVEX_UNIT* units, int32_t size) {
  const QUVEX_TWIN_OF(quvex_text, quvex_wide_text) text = {units, size, 0, !units || size < 1};
  QUVEX_TWIN_OF(QUVEX_002010, QUVEX_002035)(units, size, QUVEX_NULL);
  return text;
}

QUVEX_COMPOSED void QUVEX_TWIN_OF(quvex_add_narrow, quvex_add_wide)(QUVEX_TWIN_OF(quvex_text, quvex_wide_text) * text,
                                                                    const QUVEX_UNIT* source) {
  if (text->is_cut || !source) return;
  QUVEX_UNIT* end = text->units + text->length;
  QUVEX_TWIN_OF(QUVEX_002010, QUVEX_002035)(end, text->size - text->length, source);
  int32_t added = QUVEX_TWIN_OF(QUVEX_002014, QUVEX_002039)(end);
  text->is_cut = source[added] != 0;
  /* A unit that continues a character is never the first that is left out. */
  while (added > 0 && (source[added] & QUVEX_TWIN_OF(0xc0, 0xfc00)) == QUVEX_TWIN_OF(0x80, 0xdc00)) --added;
  end[added] = 0;
  text->length += added;
}

QUVEX_COMPOSED void QUVEX_TWIN_OF(quvex_add_character_narrow,
                                  quvex_add_character_wide)(QUVEX_TWIN_OF(quvex_text, quvex_wide_text) * text,
                                                            int32_t character) {
  const QUVEX_UNIT string[2] = {QUVEX_CAST(QUVEX_UNIT, character), 0};
  QUVEX_TWIN_OF(quvex_add_narrow, quvex_add_wide)(text, string);
}

QUVEX_COMPOSED void QUVEX_TWIN_OF(quvex_add_integer_narrow,
                                  quvex_add_integer_wide)(QUVEX_TWIN_OF(quvex_text, quvex_wide_text) * text,
                                                          int32_t value, int32_t radix) {
  QUVEX_UNIT digits[34];
  QUVEX_TWIN_OF(QUVEX_002003, QUVEX_002004)(value, digits, radix);
  if (QUVEX_TWIN_OF(QUVEX_002014, QUVEX_002039)(digits) < text->size - text->length) {
    QUVEX_TWIN_OF(quvex_add_narrow, quvex_add_wide)(text, digits);
  } else {
    text->is_cut = 1;
  }
}

#endif
