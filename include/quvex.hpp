/** @file
    The operations of quvex.h under readable names for C++17 and later, one name for both widths.

    - Text is a pointer to, or an array of, `char`, `unsigned char`, `char8_t` (narrow), `char16_t` or `uint16_t`
      (wide), literals too; a `std::array` of them; and, where it is only read, a string with `c_str()`. A pointer that
      comes back is one to the caller's own character type, `const` if the text was.
    - What is written into is bounded. An array or `std::array` bounds by its size, a span or vector (anything with
      `data()` and `size()`) by its own; a pointer is refused where no size or count is given. What cannot fit does not
      compile where sizes are known: a literal into a smaller array, `to_text` into fewer units than a radix can need.
      Names that end in `_unbounded` check nothing.
    - Narrow and wide text do not mix: such a call does not compile.
    - `nullptr` and `NULL` are taken wherever quvex.h takes null; where it decides which twin is called, it counts as
      narrow.
    - A character passed as `char` arrives as its unsigned value, 0 to 255. A size or count of wide text is a signed
      number: `sizeof` would count bytes.
    - Every function forwards to the operation of its name; four forms that no operation bounds are composed of
      several. */
#ifndef QUVEX_HPP
#define QUVEX_HPP

#if __cplusplus < 201703L
#error "quvex.hpp needs C++17. With an older standard, call the link names of quvex.h."
#else

#include "quvex.h"
#include "quvex_bounded.h"

// Inlined in debug builds too: nothing stands between the caller and the operation.
#define QUVEX_FORWARD __attribute__((always_inline)) inline

namespace quvex {

namespace detail {

using size_type = decltype(sizeof 0);
using null_type = decltype(nullptr);

template <class Type>
inline constexpr bool never = false;
template <class First, class Second>
inline constexpr bool is_same = false;
template <class Type>
inline constexpr bool is_same<Type, Type> = true;
template <class Type>
inline constexpr bool is_const = false;
template <class Type>
inline constexpr bool is_const<const Type> = true;

// The unit of a character type.
template <class Type>
struct unit {
  static_assert(!is_same<Type, wchar_t>,
                "quvex: wchar_t is no text here: write uint16_t or char16_t, with u before a literal");
  static_assert(is_same<Type, wchar_t> || never<Type>,
                "quvex: text is a pointer to or an array of char, unsigned char, char8_t, char16_t or uint16_t");
  using type = quvex_narrow;
};
template <>
struct unit<char> {
  using type = quvex_narrow;
};
template <>
struct unit<unsigned char> : unit<char> {};
#ifdef __cpp_char8_t
template <>
struct unit<char8_t> : unit<char> {};
#endif
template <>
struct unit<char16_t> {
  using type = quvex_wide;
};
template <>
struct unit<quvex_wide> : unit<char16_t> {};
template <class Type>
struct unit<const Type> : unit<Type> {};

template <class Type>
Type& value();
template <class Type>
struct plain {
  using type = Type;
};
template <class Type>
struct plain<Type&> : plain<Type> {};

// Integers, NULL among them.
template <class Type, class = void>
inline constexpr bool is_integer = false;
template <class Type>
inline constexpr bool is_integer<Type, decltype(void(Type() % 1))> = true;
template <bool Condition>
struct only_if {};
template <>
struct only_if<true> {
  using type = int;
};
template <class Argument>
using if_text = typename only_if<!is_integer<typename plain<Argument>::type>>::type;

// A string that keeps its own terminator; what knows how many units it has.
template <class Type, class = void>
inline constexpr bool is_string = false;
template <class Type>
inline constexpr bool is_string<Type, decltype(void(value<Type>().c_str()))> = true;
template <class Type, class = void>
inline constexpr bool is_sized = false;
template <class Type>
inline constexpr bool
    is_sized<Type, decltype(static_cast<void>(value<Type>().data()), static_cast<void>(value<Type>().size()))> = true;

// The size in a type: of an array, of std::array<Element, Size> and its like; 0 if it holds none.
template <class Type>
inline constexpr size_type fixed_size = 0;
template <class Element, size_type Size>
inline constexpr size_type fixed_size<Element[Size]> = Size;
template <template <class, size_type> class Array, class Element, size_type Size>
inline constexpr size_type fixed_size<Array<Element, Size>> = Size + 1 == 0 ? 0 : Size;  // a span's: not known
template <class Type>
inline constexpr size_type fixed_size<const Type> = fixed_size<Type>;
template <class Element, size_type Size>
inline constexpr size_type fixed_size<const Element[Size]> = Size;
template <class Argument>
inline constexpr size_type size_of = fixed_size<typename plain<Argument>::type>;

// A view holds no units of its own: nothing says that a terminator follows them. A std::array is an aggregate.
template <class Argument, class Type = typename plain<Argument>::type>
inline constexpr bool is_view = is_sized<Type> && !is_string<Type> && (size_of<Type> == 0 || !__is_aggregate(Type));

// The first unit of text; anything else is passed on as it is.
template <class Type>
QUVEX_FORWARD constexpr auto first(Type& text) noexcept {
  if constexpr (is_string<Type>) {
    return text.c_str();
  } else if constexpr (is_sized<Type>) {
    return text.data();
  } else {
    return text;
  }
}
template <class Argument>
struct pointee {
  using type = void;
};
template <class Type>
struct pointee<Type*> {
  using type = Type;
};
template <>
struct pointee<null_type> : pointee<char*> {};
template <class Argument>
using type_of = typename pointee<decltype(first(value<typename plain<Argument>::type>()))>::type;
template <class Argument>
using unit_of = typename unit<type_of<Argument>>::type;

// How much a destination holds.
template <class Destination>
inline constexpr bool has_room = size_of<Destination> != 0 || is_sized<typename plain<Destination>::type>;
template <class Destination>
QUVEX_FORWARD constexpr int32_t room([[maybe_unused]] Destination& destination) noexcept {
  if constexpr (size_of<Destination> != 0) {
    return static_cast<int32_t>(size_of<Destination>);
  } else if constexpr (is_sized<Destination>) {
    return static_cast<int32_t>(destination.size());
  } else {
    return INT32_MAX;
  }
}

// The first unit of a destination; null if it turns out to hold none, not even a terminator.
template <class Unit, class Destination>
QUVEX_FORWARD Unit* into(Destination& destination) noexcept {
  static_assert(sizeof(unit_of<Destination>) == sizeof(Unit), "quvex: narrow and wide text do not mix");
  static_assert(!is_string<Destination>, "quvex: a string object is read here, never written: write into an array");
  static_assert(is_string<Destination> || !is_const<type_of<Destination>>,
                "quvex: text that is written to cannot be const");
  if constexpr (is_const<type_of<Destination>>) {
    return nullptr;
  } else {
    if (has_room<Destination> && size_of<Destination> == 0 && room(destination) == 0) return nullptr;
    return reinterpret_cast<Unit*>(static_cast<type_of<Destination>*>(first(destination)));
  }
}

[[gnu::error("quvex: to_text needs 12 units in radix 10, 10 in radix 16, 34 in radix 2")]]  //
void too_few_units_for_this_radix() noexcept;

// The operation of the unit's width.
template <class Unit, auto Narrow, auto Wide>
inline constexpr auto twin = Narrow;
template <auto Narrow, auto Wide>
inline constexpr auto twin<quvex_wide, Narrow, Wide> = Wide;

}  // namespace detail

/** A pointer to units of a string, which is read or changed in place, or null. A literal must not be larger than
    `Room`, unless that is 0. */
template <class Unit, detail::size_type Room = 0>
class units {
 public:
  // Implicit, so that a call reads like any other.
  // cppcheck-suppress noExplicitConstructor
  QUVEX_FORWARD units(detail::null_type) noexcept : first_(nullptr) {}
  template <class Text, detail::if_text<Text> = 0>
  // A copy of this class cannot come here: unit_of knows no such text.
  // cppcheck-suppress noExplicitConstructor
  QUVEX_FORWARD units(Text&& text) noexcept : first_(of(text)) {  // NOLINT(bugprone-forwarding-reference-overload)
    static_assert(Room == 0 || !detail::is_const<detail::type_of<Text>> || detail::size_of<Text> <= Room,
                  "quvex: the literal does not fit in the destination");
  }
  // A number, where null, a number that is text, comes to the first.
  template <class Text = int>
  // cppcheck-suppress noExplicitConstructor
  units(...) noexcept : first_(nullptr) {
    static_assert(detail::never<Text>, "quvex: this is a number where text is wanted");
  }
  QUVEX_FORWARD operator Unit*() const noexcept { return first_; }

 private:
  template <class Text>
  QUVEX_FORWARD static Unit* of(Text& text) noexcept {
    using type = detail::type_of<Text>;
    constexpr bool changes = !detail::is_const<Unit>;
    static_assert(sizeof(detail::unit_of<Text>) == sizeof(Unit), "quvex: narrow and wide text do not mix");
    static_assert(!detail::is_view<Text>,
                  "quvex: nothing says that a terminator follows a view: copy it with copy_counted, and terminate it");
    static_assert(!changes || !detail::is_string<Text>,
                  "quvex: a string object is read here, never written: write into an array");
    static_assert(!changes || detail::is_string<Text> || !detail::is_const<type>,
                  "quvex: text that is written to cannot be const");
    if constexpr (changes && detail::is_const<type>) {
      return nullptr;
    } else {
      return reinterpret_cast<Unit*>(static_cast<type*>(detail::first(text)));
    }
  }

  Unit* first_;
};

/** Text that is read, text that is changed in place, and text that is to fit in a destination, in the width of an
    argument. */
template <class Text>
using reading = units<const detail::unit_of<Text>>;
template <class Text>
using changing = units<detail::unit_of<Text>>;
template <class Destination>
using fitting = units<const detail::unit_of<Destination>, detail::size_of<Destination>>;

/** Null in the place of narrow text that is read. */
using null = units<const quvex_narrow>;

/** A pointer into an argument, as the caller's own character type. */
template <class Text>
using pointer = detail::type_of<Text>*;

/** A size or a count of units. */
template <class Unit>
class quantity {
 public:
  template <class Integer, class = decltype(Integer() % 1)>
  // cppcheck-suppress noExplicitConstructor
  constexpr quantity(Integer number) noexcept : number_(static_cast<int32_t>(number)) {
    static_assert(
        sizeof(Unit) == 1 || sizeof(Integer) < 4 || static_cast<Integer>(-1) < Integer(),
        "quvex: wide text is counted in units, where sizeof counts bytes: give an int32_t, or an array alone");
  }
  constexpr operator int32_t() const noexcept { return number_; }

 private:
  int32_t number_;
};
template <class Text>
using quantity_of = quantity<detail::unit_of<Text>>;

/** A character's number. */
class number {
 public:
  // cppcheck-suppress noExplicitConstructor
  constexpr number(char character) noexcept : value_(static_cast<unsigned char>(character)) {}
  template <class Integer, class = decltype(Integer() % 1)>
  // cppcheck-suppress noExplicitConstructor
  constexpr number(Integer character) noexcept : value_(static_cast<int32_t>(character)) {
    static_assert(sizeof(Integer) <= sizeof(int32_t), "quvex: a character has at most 32 bits");
  }
  template <class Text>
  // cppcheck-suppress noExplicitConstructor
  constexpr number(const Text*) noexcept : value_(0) {
    static_assert(detail::never<Text>, "quvex: a character is wanted here, not text: write it between single quotes");
  }
  constexpr operator int32_t() const noexcept { return value_; }

 private:
  int32_t value_;
};

// ---- Length and copy ----

template <class String, detail::if_text<String> = 0>
QUVEX_FORWARD int32_t length(String&& string) noexcept {
  return detail::twin<detail::unit_of<String>, QUVEX_002014, QUVEX_002039>(reading<String>(string));
}

QUVEX_FORWARD int32_t length(null string) noexcept { return QUVEX_002014(string); }

/** Copy, bounded by the destination. */
template <class Destination>
QUVEX_FORWARD void copy(Destination&& destination, fitting<Destination> source) noexcept {
  static_assert(detail::has_room<Destination>,
                "quvex: a pointer does not tell how much it holds: write copy_bounded(destination, size, source)");
  detail::twin<detail::unit_of<Destination>, QUVEX_002010, QUVEX_002035>(
      detail::into<detail::unit_of<Destination>>(destination), detail::room(destination), source);
}

template <class Destination>
QUVEX_FORWARD void copy_bounded(Destination&& destination, quantity_of<Destination> size,
                                reading<Destination> source) noexcept {
  detail::twin<detail::unit_of<Destination>, QUVEX_002010, QUVEX_002035>(
      detail::into<detail::unit_of<Destination>>(destination), quvex_lesser(size, detail::room(destination)), source);
}

template <class Destination>
QUVEX_FORWARD void copy_unbounded(Destination&& destination, fitting<Destination> source) noexcept {
  detail::twin<detail::unit_of<Destination>, QUVEX_002009, QUVEX_002034>(
      detail::into<detail::unit_of<Destination>>(destination), source);
}

/** Count-bounded copy; where the destination's own size is less than `count`, size-bounded copy. */
template <class Destination>
QUVEX_FORWARD void copy_counted(Destination&& destination, reading<Destination> source,
                                quantity_of<Destination> count) noexcept {
  detail::unit_of<Destination>* first = detail::into<detail::unit_of<Destination>>(destination);
  if constexpr (detail::has_room<Destination>) {
    detail::twin<detail::unit_of<Destination>, quvex_copy_counted_narrow, quvex_copy_counted_wide>(
        first, detail::room(destination), source, count);
  } else {
    detail::twin<detail::unit_of<Destination>, QUVEX_002017, QUVEX_002044>(first, source, count);
  }
}

// ---- Append ----

/** Append, bounded by the destination. */
template <class Destination>
QUVEX_FORWARD void append(Destination&& destination, fitting<Destination> source) noexcept {
  static_assert(detail::has_room<Destination>,
                "quvex: a pointer does not tell how much it holds: write append_bounded(destination, size, source)");
  detail::twin<detail::unit_of<Destination>, QUVEX_002006, QUVEX_002031>(
      detail::into<detail::unit_of<Destination>>(destination), detail::room(destination), source);
}

template <class Destination>
QUVEX_FORWARD void append_bounded(Destination&& destination, quantity_of<Destination> size,
                                  reading<Destination> source) noexcept {
  detail::twin<detail::unit_of<Destination>, QUVEX_002006, QUVEX_002031>(
      detail::into<detail::unit_of<Destination>>(destination), quvex_lesser(size, detail::room(destination)), source);
}

template <class Destination>
QUVEX_FORWARD void append_unbounded(Destination&& destination, fitting<Destination> source) noexcept {
  detail::twin<detail::unit_of<Destination>, QUVEX_002005, QUVEX_002030>(
      detail::into<detail::unit_of<Destination>>(destination), source);
}

/** Count-bounded append, bounded by the destination. */
template <class Destination>
QUVEX_FORWARD void append_counted(Destination&& destination, units<const quvex_wide> source,
                                  quantity<quvex_wide> count) noexcept {
  static_assert(detail::has_room<Destination>,
                "quvex: a pointer does not tell how much it holds: write append_bounded_counted(destination, size, "
                "source, count)");
  QUVEX_002042(detail::into<quvex_wide>(destination), detail::room(destination), source, count);
}

template <class Destination>
QUVEX_FORWARD void append_bounded_counted(Destination&& destination, quantity<quvex_wide> size,
                                          units<const quvex_wide> source, quantity<quvex_wide> count) noexcept {
  QUVEX_002042(detail::into<quvex_wide>(destination), quvex_lesser(size, detail::room(destination)), source, count);
}

template <class Destination>
QUVEX_FORWARD void append_counted_unbounded(Destination&& destination, units<const quvex_wide> source,
                                            quantity<quvex_wide> count) noexcept {
  QUVEX_002041(detail::into<quvex_wide>(destination), source, count);
}

// ---- Case ----

QUVEX_FORWARD int32_t character_to_lower(number character) noexcept { return QUVEX_002026(character); }

QUVEX_FORWARD int32_t character_to_upper(number character) noexcept { return QUVEX_002027(character); }

template <class String>
QUVEX_FORWARD void to_lower(String&& string) noexcept {
  detail::twin<detail::unit_of<String>, QUVEX_002015, QUVEX_002040>(changing<String>(string));
}

template <class String>
QUVEX_FORWARD void to_upper(String&& string) noexcept {
  detail::twin<detail::unit_of<String>, QUVEX_002025, QUVEX_002052>(changing<String>(string));
}

// ---- Compare ----

template <class First, detail::if_text<First> = 0>
QUVEX_FORWARD int32_t compare(First&& first, reading<First> second) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002008, QUVEX_002033>(reading<First>(first), second);
}

QUVEX_FORWARD int32_t compare(null first, reading<char*> second) noexcept { return QUVEX_002008(first, second); }

template <class First, detail::if_text<First> = 0>
QUVEX_FORWARD int32_t compare_counted(First&& first, reading<First> second, quantity_of<First> count) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002016, QUVEX_002043>(reading<First>(first), second, count);
}

QUVEX_FORWARD int32_t compare_counted(null first, reading<char*> second, quantity_of<char*> count) noexcept {
  return QUVEX_002016(first, second, count);
}

template <class First, detail::if_text<First> = 0>
QUVEX_FORWARD int32_t compare_folded(First&& first, reading<First> second) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002012, QUVEX_002037>(reading<First>(first), second);
}

QUVEX_FORWARD int32_t compare_folded(null first, reading<char*> second) noexcept { return QUVEX_002012(first, second); }

template <class First, detail::if_text<First> = 0>
QUVEX_FORWARD int32_t compare_folded_counted(First&& first, reading<First> second, quantity_of<First> count) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002019, QUVEX_002046>(reading<First>(first), second, count);
}

QUVEX_FORWARD int32_t compare_folded_counted(null first, reading<char*> second, quantity_of<char*> count) noexcept {
  return QUVEX_002019(first, second, count);
}

// ---- Search ----

template <class String, detail::if_text<String> = 0>
QUVEX_FORWARD pointer<String> find_character(String&& string, number character) noexcept {
  return reinterpret_cast<pointer<String>>(
      detail::twin<detail::unit_of<String>, QUVEX_002007, QUVEX_002032>(reading<String>(string), character));
}

QUVEX_FORWARD const char* find_character(null string, number character) noexcept {
  return reinterpret_cast<const char*>(QUVEX_002007(string, character));
}

template <class Haystack, detail::if_text<Haystack> = 0>
QUVEX_FORWARD pointer<Haystack> find(Haystack&& haystack, reading<Haystack> needle) noexcept {
  return reinterpret_cast<pointer<Haystack>>(
      detail::twin<detail::unit_of<Haystack>, QUVEX_002022, QUVEX_002049>(reading<Haystack>(haystack), needle));
}

QUVEX_FORWARD const char* find(null haystack, reading<char*> needle) noexcept {
  return reinterpret_cast<const char*>(QUVEX_002022(haystack, needle));
}

template <class Haystack, detail::if_text<Haystack> = 0>
QUVEX_FORWARD pointer<Haystack> find_folded(Haystack&& haystack, reading<Haystack> needle) noexcept {
  return reinterpret_cast<pointer<Haystack>>(
      detail::twin<detail::unit_of<Haystack>, QUVEX_002013, QUVEX_002038>(reading<Haystack>(haystack), needle));
}

QUVEX_FORWARD const char* find_folded(null haystack, reading<char*> needle) noexcept {
  return reinterpret_cast<const char*>(QUVEX_002013(haystack, needle));
}

// ---- Tokenize, trim, replace ----

template <class String>
QUVEX_FORWARD pointer<String> next_token(String&& string, uint32_t* cursor, reading<String> set) noexcept {
  return reinterpret_cast<pointer<String>>(
      detail::twin<detail::unit_of<String>, QUVEX_002023, QUVEX_002050>(changing<String>(string), cursor, set));
}

/** Split; where the array has too few slots for all tokens, it is filled and the result is their number, negated. */
template <class String, class Array>
QUVEX_FORWARD int32_t split(String&& string, reading<String> set, Array&& array) noexcept {
  static_assert(detail::has_room<Array>,
                "quvex: a pointer does not tell how many slots it has: write split_bounded(string, set, array, slots)");
  constexpr bool is_fixed = detail::is_const<detail::type_of<String>>;
  static_assert(!is_fixed, "quvex: text that is written to cannot be const");
  static_assert(is_fixed || detail::is_same<detail::type_of<Array>, pointer<String>>,
                "quvex: the array of split holds pointers to the characters of its text");
  if constexpr (is_fixed || !detail::is_same<detail::type_of<Array>, pointer<String>>) {
    return 0;
    // A slot for every token that the text's own array can hold: nothing to bound.
  } else if constexpr (detail::size_of<String> != 0 && detail::size_of<Array> >= detail::size_of<String> / 2) {
    return detail::twin<detail::unit_of<String>, QUVEX_002021, QUVEX_002048>(
        changing<String>(string), set, reinterpret_cast<detail::unit_of<String>**>(detail::first(array)));
  } else {
    return detail::twin<detail::unit_of<String>, quvex_split_narrow, quvex_split_wide>(
        changing<String>(string), set, reinterpret_cast<quvex_any_pointer*>(detail::first(array)), detail::room(array));
  }
}

template <class String, class Array>
QUVEX_FORWARD int32_t split_bounded(String&& string, reading<String> set, Array&& array, int32_t slots) noexcept {
  pointer<String>* first = detail::first(array);
  return detail::twin<detail::unit_of<String>, quvex_split_narrow, quvex_split_wide>(
      changing<String>(string), set, reinterpret_cast<quvex_any_pointer*>(first),
      quvex_lesser(slots, detail::room(array)));
}

template <class String>
QUVEX_FORWARD int32_t split_unbounded(String&& string, reading<String> set, pointer<String>* array) noexcept {
  return detail::twin<detail::unit_of<String>, QUVEX_002021, QUVEX_002048>(
      changing<String>(string), set, reinterpret_cast<detail::unit_of<String>**>(array));
}

template <class String>
QUVEX_FORWARD int32_t trim(String&& string, reading<String> set) noexcept {
  return detail::twin<detail::unit_of<String>, QUVEX_002024, QUVEX_002051>(changing<String>(string), set);
}

/** Replace, bounded by the destination: a result that does not fit becomes the empty string, and its length tells. */
template <class Source, class Destination, detail::if_text<Destination> = 0>
QUVEX_FORWARD int32_t replace(Source&& source, reading<Source> pattern, reading<Source> replacement,
                              Destination&& destination) noexcept {
  static_assert(detail::has_room<Destination>,
                "quvex: a pointer does not tell how much it holds: write replace_bounded(source, pattern, replacement, "
                "destination, size)");
  return detail::twin<detail::unit_of<Source>, quvex_replace_narrow, quvex_replace_wide>(
      reading<Source>(source), pattern, replacement, detail::into<detail::unit_of<Source>>(destination),
      detail::room(destination));
}

/** The length that the result would have. */
template <class Source>
QUVEX_FORWARD int32_t replace(Source&& source, reading<Source> pattern, reading<Source> replacement,
                              detail::null_type) noexcept {
  return detail::twin<detail::unit_of<Source>, QUVEX_002020, QUVEX_002047>(reading<Source>(source), pattern,
                                                                           replacement, nullptr);
}

template <class Source, class Destination>
QUVEX_FORWARD int32_t replace_bounded(Source&& source, reading<Source> pattern, reading<Source> replacement,
                                      Destination&& destination, quantity_of<Source> size) noexcept {
  return detail::twin<detail::unit_of<Source>, quvex_replace_narrow, quvex_replace_wide>(
      reading<Source>(source), pattern, replacement, detail::into<detail::unit_of<Source>>(destination),
      quvex_lesser(size, detail::room(destination)));
}

template <class Source>
QUVEX_FORWARD int32_t replace_unbounded(Source&& source, reading<Source> pattern, reading<Source> replacement,
                                        changing<Source> destination) noexcept {
  return detail::twin<detail::unit_of<Source>, QUVEX_002020, QUVEX_002047>(reading<Source>(source), pattern,
                                                                           replacement, destination);
}

// ---- Integer and text ----

/** Integer to text, bounded by the destination: the empty string in a radix that could need more. */
template <class Destination>
QUVEX_FORWARD pointer<Destination> to_text(int32_t value, Destination&& destination, int32_t radix) noexcept {
  static_assert(
      detail::has_room<Destination>,
      "quvex: a pointer does not tell how much it holds: write to_text_bounded(value, destination, size, radix)");
  static_assert(detail::size_of<Destination> == 0 || detail::size_of<Destination> >= 8,
                "quvex: to_text needs 12 units in radix 10, 10 in radix 16, 34 in radix 2");
#ifdef __OPTIMIZE__
  if (detail::size_of<Destination> != 0 && __builtin_constant_p(radix) && radix > 1 &&
      radix < QUVEX_LEAST_RADIX(detail::room(destination))) {
    detail::too_few_units_for_this_radix();
  }
#endif
  return reinterpret_cast<pointer<Destination>>(
      detail::twin<detail::unit_of<Destination>, quvex_to_text_narrow, quvex_to_text_wide>(
          value, detail::into<detail::unit_of<Destination>>(destination), detail::room(destination), radix));
}

template <class Destination>
QUVEX_FORWARD pointer<Destination> to_text_bounded(int32_t value, Destination&& destination,
                                                   quantity_of<Destination> size, int32_t radix) noexcept {
  return reinterpret_cast<pointer<Destination>>(
      detail::twin<detail::unit_of<Destination>, quvex_to_text_narrow, quvex_to_text_wide>(
          value, detail::into<detail::unit_of<Destination>>(destination), quvex_lesser(size, detail::room(destination)),
          radix));
}

template <class Destination>
QUVEX_FORWARD pointer<Destination> to_text_unbounded(int32_t value, Destination&& destination, int32_t radix) noexcept {
  return reinterpret_cast<pointer<Destination>>(detail::twin<detail::unit_of<Destination>, QUVEX_002003, QUVEX_002004>(
      value, detail::into<detail::unit_of<Destination>>(destination), radix));
}

template <class Source, detail::if_text<Source> = 0>
QUVEX_FORWARD int32_t to_integer(Source&& source) noexcept {
  return detail::twin<detail::unit_of<Source>, QUVEX_002000, QUVEX_002053>(reading<Source>(source));
}

QUVEX_FORWARD int32_t to_integer(null source) noexcept { return QUVEX_002000(source); }

// ---- From one width to the other ----

template <class Destination>
QUVEX_FORWARD const detail::type_of<Destination>* escape(units<const quvex_wide> source, Destination&& destination,
                                                         quantity<quvex_narrow> size) noexcept {
  return reinterpret_cast<const detail::type_of<Destination>*>(
      QUVEX_002029(source, detail::into<quvex_narrow>(destination), quvex_lesser(size, detail::room(destination))));
}

/** Escaped narrowing, bounded by the destination. */
template <class Destination>
QUVEX_FORWARD const detail::type_of<Destination>* escape(units<const quvex_wide, detail::size_of<Destination>> source,
                                                         Destination&& destination) noexcept {
  static_assert(detail::has_room<Destination>,
                "quvex: a pointer does not tell how much it holds: write escape(source, destination, size)");
  return reinterpret_cast<const detail::type_of<Destination>*>(
      QUVEX_002029(source, detail::into<quvex_narrow>(destination), detail::room(destination)));
}

template <class Destination>
QUVEX_FORWARD pointer<Destination> widen(units<const quvex_narrow> source, Destination&& destination,
                                         quantity<quvex_wide> size) noexcept {
  return reinterpret_cast<pointer<Destination>>(
      QUVEX_002001(source, detail::into<quvex_wide>(destination), quvex_lesser(size, detail::room(destination))));
}

/** Widening copy, bounded by the destination. */
template <class Destination>
QUVEX_FORWARD pointer<Destination> widen(units<const quvex_narrow, detail::size_of<Destination>> source,
                                         Destination&& destination) noexcept {
  static_assert(detail::has_room<Destination>,
                "quvex: a pointer does not tell how much it holds: write widen(source, destination, size)");
  return reinterpret_cast<pointer<Destination>>(
      QUVEX_002001(source, detail::into<quvex_wide>(destination), detail::room(destination)));
}

/** Widening unit copy of `count` units, or as many as the destination's own size. */
template <class Destination>
QUVEX_FORWARD void widen_units(units<const quvex_narrow> source, Destination&& destination,
                               quantity<quvex_narrow> count) noexcept {
  QUVEX_002002(source, detail::into<quvex_wide>(destination), quvex_lesser(count, detail::room(destination)));
}

/** Wide unit copy of `count` units, or as many as the destination's own size. */
template <class Destination>
QUVEX_FORWARD void copy_units(units<const quvex_wide> source, Destination&& destination,
                              quantity<quvex_wide> count) noexcept {
  QUVEX_002028(source, detail::into<quvex_wide>(destination), quvex_lesser(count, detail::room(destination)));
}

}  // namespace quvex

#undef QUVEX_FORWARD

#endif
#endif
