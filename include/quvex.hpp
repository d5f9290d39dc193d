/** @file
    The operations of quvex.h under readable names for C++17 and later, one name for both widths.

    - Text is a pointer to, or an array of, `char`, `unsigned char`, `char8_t` (narrow), `char16_t` or `uint16_t`
      (wide): literals too. A pointer that comes back is one to the caller's own character type, `const` if the text
      was.
    - Where the destination is an array, `copy`, `append`, `escape` and `widen` are bounded by it and take no size. A
      literal (any array of `const` characters) that is larger than the destination does not compile.
    - Narrow and wide text do not mix: such a call does not compile.
    - `nullptr` is taken wherever quvex.h takes null; where it decides which twin is called, it counts as narrow.
    - A character passed as `char` arrives as its unsigned value, 0 to 255.
    - Every function only forwards: the contract is that of the link names in its body, narrow first. */
#ifndef QUVEX_HPP
#define QUVEX_HPP

#if __cplusplus < 201703L
#error "quvex.hpp needs C++17. With an older standard, call the link names of quvex.h."
#else

#include "quvex.h"

#if defined(__GNUC__)
// Inlined in debug builds too: nothing stands between the caller and the operation.
#define QUVEX_FORWARD __attribute__((always_inline)) inline
#else
#define QUVEX_FORWARD inline
#endif

namespace quvex {

namespace detail {

using size_type = decltype(sizeof 0);
using null_type = decltype(nullptr);

// The unit of a character type.
template <class Type>
struct unit {
  static_assert(sizeof(Type*) == 0,
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

// What an argument points to.
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

// How many of them an array argument holds; 0 for a pointer.
template <class Argument>
inline constexpr size_type size_of = 0;
template <class Type, size_type Size>
inline constexpr size_type size_of<Type (&)[Size]> = Size;

// Arrays as the pointers that they decay to.
template <class Type>
Type* decayed(Type*);
null_type decayed(null_type);
void decayed(...);
template <class Argument>
Argument&& value();

template <class Argument>
using type_of = typename pointee<decltype(decayed(value<Argument>()))>::type;
template <class Argument>
using unit_of = typename unit<type_of<Argument>>::type;

template <class Type>
inline constexpr bool is_const = false;
template <class Type>
inline constexpr bool is_const<const Type> = true;

// The operation of the unit's width.
template <class Unit, auto Narrow, auto Wide>
inline constexpr auto twin = Narrow;
template <auto Narrow, auto Wide>
inline constexpr auto twin<quvex_wide, Narrow, Wide> = Wide;

}  // namespace detail

/** A pointer to units from text of their width or from null. A literal must not be larger than `Room`, unless that is
    0. */
template <class Unit, detail::size_type Room = 0>
class units {
 public:
  // Implicit, so that a call reads like any other.
  // cppcheck-suppress noExplicitConstructor
  QUVEX_FORWARD units(detail::null_type) noexcept : first_(nullptr) {}
  template <class Text>
  // A copy of this class cannot come here: unit_of knows no such text.
  // cppcheck-suppress noExplicitConstructor
  QUVEX_FORWARD units(Text&& text) noexcept  // NOLINT(bugprone-forwarding-reference-overload)
      : first_(reinterpret_cast<Unit*>(static_cast<detail::type_of<Text>*>(text))) {
    using type = detail::type_of<Text>;
    static_assert(sizeof(detail::unit_of<Text>) == sizeof(Unit), "quvex: narrow and wide text do not mix");
    static_assert(detail::is_const<Unit> || !detail::is_const<type>, "quvex: text that is written to cannot be const");
    static_assert(Room == 0 || !detail::is_const<type> || detail::size_of<Text> <= Room,
                  "quvex: the literal does not fit in the destination");
  }
  QUVEX_FORWARD operator Unit*() const noexcept { return first_; }

 private:
  Unit* first_;
};

/** Text that is read, text that is written, and text that is to fit in a destination, in the width of an argument. */
template <class Text>
using reading = units<const detail::unit_of<Text>>;
template <class Text>
using writing = units<detail::unit_of<Text>>;
template <class Destination>
using fitting = units<const detail::unit_of<Destination>, detail::size_of<Destination>>;

/** A pointer into an argument, as the caller's own character type. */
template <class Text>
using pointer = detail::type_of<Text>*;

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
  constexpr operator int32_t() const noexcept { return value_; }

 private:
  int32_t value_;
};

// ---- Length and copy ----

template <class String>
QUVEX_FORWARD int32_t length(String&& string) noexcept {
  return detail::twin<detail::unit_of<String>, QUVEX_002014, QUVEX_002039>(reading<String>(string));
}

/** Copy, size-bounded if the destination is an array. */
template <class Destination>
QUVEX_FORWARD void copy(Destination&& destination, fitting<Destination> source) noexcept {
  if constexpr (detail::size_of<Destination> != 0) {
    const int32_t size = static_cast<int32_t>(detail::size_of<Destination>);
    detail::twin<detail::unit_of<Destination>, QUVEX_002010, QUVEX_002035>(writing<Destination>(destination), size,
                                                                           source);
  } else {
    detail::twin<detail::unit_of<Destination>, QUVEX_002009, QUVEX_002034>(writing<Destination>(destination), source);
  }
}

template <class Destination>
QUVEX_FORWARD void copy_bounded(Destination&& destination, int32_t size, reading<Destination> source) noexcept {
  detail::twin<detail::unit_of<Destination>, QUVEX_002010, QUVEX_002035>(writing<Destination>(destination), size,
                                                                         source);
}

template <class Destination>
QUVEX_FORWARD void copy_counted(Destination&& destination, reading<Destination> source, int32_t count) noexcept {
  detail::twin<detail::unit_of<Destination>, QUVEX_002017, QUVEX_002044>(writing<Destination>(destination), source,
                                                                         count);
}

// ---- Append ----

/** Append, size-bounded if the destination is an array. */
template <class Destination>
QUVEX_FORWARD void append(Destination&& destination, fitting<Destination> source) noexcept {
  if constexpr (detail::size_of<Destination> != 0) {
    const int32_t size = static_cast<int32_t>(detail::size_of<Destination>);
    detail::twin<detail::unit_of<Destination>, QUVEX_002006, QUVEX_002031>(writing<Destination>(destination), size,
                                                                           source);
  } else {
    detail::twin<detail::unit_of<Destination>, QUVEX_002005, QUVEX_002030>(writing<Destination>(destination), source);
  }
}

template <class Destination>
QUVEX_FORWARD void append_bounded(Destination&& destination, int32_t size, reading<Destination> source) noexcept {
  detail::twin<detail::unit_of<Destination>, QUVEX_002006, QUVEX_002031>(writing<Destination>(destination), size,
                                                                         source);
}

QUVEX_FORWARD void append_counted(units<quvex_wide> destination, units<const quvex_wide> source,
                                  int32_t count) noexcept {
  QUVEX_002041(destination, source, count);
}

QUVEX_FORWARD void append_bounded_counted(units<quvex_wide> destination, int32_t size, units<const quvex_wide> source,
                                          int32_t count) noexcept {
  QUVEX_002042(destination, size, source, count);
}

// ---- Case ----

QUVEX_FORWARD int32_t character_to_lower(number character) noexcept { return QUVEX_002026(character); }

QUVEX_FORWARD int32_t character_to_upper(number character) noexcept { return QUVEX_002027(character); }

template <class String>
QUVEX_FORWARD void to_lower(String&& string) noexcept {
  detail::twin<detail::unit_of<String>, QUVEX_002015, QUVEX_002040>(writing<String>(string));
}

template <class String>
QUVEX_FORWARD void to_upper(String&& string) noexcept {
  detail::twin<detail::unit_of<String>, QUVEX_002025, QUVEX_002052>(writing<String>(string));
}

// ---- Compare ----

template <class First>
QUVEX_FORWARD int32_t compare(First&& first, reading<First> second) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002008, QUVEX_002033>(reading<First>(first), second);
}

template <class First>
QUVEX_FORWARD int32_t compare_counted(First&& first, reading<First> second, int32_t count) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002016, QUVEX_002043>(reading<First>(first), second, count);
}

template <class First>
QUVEX_FORWARD int32_t compare_folded(First&& first, reading<First> second) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002012, QUVEX_002037>(reading<First>(first), second);
}

template <class First>
QUVEX_FORWARD int32_t compare_folded_counted(First&& first, reading<First> second, int32_t count) noexcept {
  return detail::twin<detail::unit_of<First>, QUVEX_002019, QUVEX_002046>(reading<First>(first), second, count);
}

// ---- Search ----

template <class String>
QUVEX_FORWARD pointer<String> find_character(String&& string, number character) noexcept {
  return reinterpret_cast<pointer<String>>(
      detail::twin<detail::unit_of<String>, QUVEX_002007, QUVEX_002032>(reading<String>(string), character));
}

template <class Haystack>
QUVEX_FORWARD pointer<Haystack> find(Haystack&& haystack, reading<Haystack> needle) noexcept {
  return reinterpret_cast<pointer<Haystack>>(
      detail::twin<detail::unit_of<Haystack>, QUVEX_002022, QUVEX_002049>(reading<Haystack>(haystack), needle));
}

template <class Haystack>
QUVEX_FORWARD pointer<Haystack> find_folded(Haystack&& haystack, reading<Haystack> needle) noexcept {
  return reinterpret_cast<pointer<Haystack>>(
      detail::twin<detail::unit_of<Haystack>, QUVEX_002013, QUVEX_002038>(reading<Haystack>(haystack), needle));
}

// ---- Tokenize, trim, replace ----

template <class String>
QUVEX_FORWARD pointer<String> next_token(String&& string, uint32_t* cursor, reading<String> set) noexcept {
  return reinterpret_cast<pointer<String>>(
      detail::twin<detail::unit_of<String>, QUVEX_002023, QUVEX_002050>(writing<String>(string), cursor, set));
}

template <class String>
QUVEX_FORWARD int32_t split(String&& string, reading<String> set, pointer<String>* array) noexcept {
  return detail::twin<detail::unit_of<String>, QUVEX_002021, QUVEX_002048>(
      writing<String>(string), set, reinterpret_cast<detail::unit_of<String>**>(array));
}

template <class String>
QUVEX_FORWARD int32_t trim(String&& string, reading<String> set) noexcept {
  return detail::twin<detail::unit_of<String>, QUVEX_002024, QUVEX_002051>(writing<String>(string), set);
}

template <class Source>
QUVEX_FORWARD int32_t replace(Source&& source, reading<Source> pattern, reading<Source> replacement,
                              writing<Source> destination) noexcept {
  return detail::twin<detail::unit_of<Source>, QUVEX_002020, QUVEX_002047>(reading<Source>(source), pattern,
                                                                           replacement, destination);
}

// ---- Integer and text ----

template <class Destination>
QUVEX_FORWARD pointer<Destination> to_text(int32_t value, Destination&& destination, int32_t radix) noexcept {
  return reinterpret_cast<pointer<Destination>>(detail::twin<detail::unit_of<Destination>, QUVEX_002003, QUVEX_002004>(
      value, writing<Destination>(destination), radix));
}

template <class Source>
QUVEX_FORWARD int32_t to_integer(Source&& source) noexcept {
  return detail::twin<detail::unit_of<Source>, QUVEX_002000, QUVEX_002053>(reading<Source>(source));
}

// ---- From one width to the other ----

template <class Destination>
QUVEX_FORWARD const detail::type_of<Destination>* escape(units<const quvex_wide> source, Destination&& destination,
                                                         int32_t size) noexcept {
  return reinterpret_cast<const detail::type_of<Destination>*>(
      QUVEX_002029(source, units<quvex_narrow>(destination), size));
}

/** Escaped narrowing into an array, bounded by it. */
template <class Char, detail::size_type Size>
QUVEX_FORWARD const Char* escape(fitting<quvex_wide (&)[Size]> source, Char (&destination)[Size]) noexcept {
  return reinterpret_cast<const Char*>(
      QUVEX_002029(source, units<quvex_narrow>(destination), static_cast<int32_t>(Size)));
}

template <class Destination>
QUVEX_FORWARD pointer<Destination> widen(units<const quvex_narrow> source, Destination&& destination,
                                         int32_t size) noexcept {
  return reinterpret_cast<pointer<Destination>>(QUVEX_002001(source, units<quvex_wide>(destination), size));
}

/** Widening copy into an array, bounded by it. */
template <class Char, detail::size_type Size>
QUVEX_FORWARD Char* widen(fitting<quvex_narrow (&)[Size]> source, Char (&destination)[Size]) noexcept {
  return reinterpret_cast<Char*>(QUVEX_002001(source, units<quvex_wide>(destination), static_cast<int32_t>(Size)));
}

QUVEX_FORWARD void widen_units(units<const quvex_narrow> source, units<quvex_wide> destination,
                               int32_t count) noexcept {
  QUVEX_002002(source, destination, count);
}

QUVEX_FORWARD void copy_units(units<const quvex_wide> source, units<quvex_wide> destination, int32_t count) noexcept {
  QUVEX_002028(source, destination, count);
}

}  // namespace quvex

#undef QUVEX_FORWARD

#endif
#endif
