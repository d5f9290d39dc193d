#ifndef TESTS_ORACLE_EXPECTATION_H
#define TESTS_ORACLE_EXPECTATION_H

#include <cctype>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <numeric>
#include <string>

#include "call.h"

namespace oracle {

inline std::u16string digits(uint32_t magnitude, uint32_t radix) {
  if (radix <= 36) {
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, magnitude, int(radix)).ptr};
  }
  const auto last = char16_t(magnitude % radix + (magnitude % radix < 10 ? '0' : 'a' - 10));
  return (magnitude < radix ? u"" : digits(magnitude / radix, radix)) + last;
}

inline char16_t as_it_is(char16_t unit) { return unit; }
inline char16_t lower(char16_t unit) { return unit < 128 ? char16_t(std::tolower(unit)) : unit; }
inline char16_t upper(char16_t unit) { return unit < 128 ? char16_t(std::toupper(unit)) : unit; }
using Fold = char16_t (*)(char16_t);

inline Text up_to(Text text, int64_t limit) { return text.substr(0, size_t(std::max<int64_t>(limit, 0))); }
inline int64_t length_of(Text text) { return int64_t(text.size()); }
constexpr int64_t unbounded = room;

// What a call must leave behind and what it may touch, told by the standard library: a function for each family.
struct Expectation {
  State& state;  // At first what memory holds before the call.
  Units readable[slots], writable[slots];

  Expectation(const Call& call, State& before) : state(before), c(call) { expect(); }

  const Call& c;
  const Text a = c.text[first], b = c.text[second], r = c.text[third];
  const bool in_place = c.placing == Placing::in_place, apart = c.placing == Placing::apart;
  const int to = in_place ? first : destination;
  const int to_index = in_place ? c.at[first] + c.shift : c.at[destination];
  const int64_t output_place = c.placing == Placing::null ? null_pointer : place(to, to_index);

  void expect() {
    switch (c.op) {
      case Op::length:
        return length();
      case Op::copy:
        return copy();
      case Op::copy_bounded:
        return copy_bounded();
      case Op::copy_counted:
        return copy_counted();
      case Op::append:
        return append(unbounded, unbounded);
      case Op::append_bounded:
        return append(c.n, unbounded);
      case Op::append_counted:
        return append(unbounded, c.n);
      case Op::append_bounded_counted:
        return append(c.n, c.m);
      case Op::character_to_lower:
        return map_character(lower);
      case Op::character_to_upper:
        return map_character(upper);
      case Op::to_lower:
        return map_string(lower);
      case Op::to_upper:
        return map_string(upper);
      case Op::compare:
        return compare(as_it_is, unbounded);
      case Op::compare_counted:
        return compare(as_it_is, c.n);
      case Op::compare_folded:
        return compare(lower, unbounded);
      case Op::compare_folded_counted:
        return compare(lower, c.n);
      case Op::find_character:
        return find_character();
      case Op::find:
        return find(as_it_is);
      case Op::find_folded:
        return find(lower);
      case Op::next_token:
        return next_token();
      case Op::split:
        return split();
      case Op::trim:
        return trim();
      case Op::replace:
        return replace();
      case Op::to_text:
        return to_text();
      case Op::to_integer:
        return to_integer();
      case Op::escape:
        return escape();
      case Op::widen:
        return widen();
      case Op::widen_units:
      case Op::copy_units:
        return copy_units();
    }
  }

  static Units units(int64_t from, int64_t count) {
    return count <= 0 ? Units() : ~Units() >> size_t(room - count) << size_t(from);
  }
  // At most `count` units of a string, its terminator among them.
  void read(Slot slot, int64_t count, int64_t from = 0) {
    if (!c.text[slot].data()) return;
    readable[slot] |= units(c.at[slot] + from, std::min(count, length_of(c.text[slot]) + 1 - from));
  }
  void write(int slot, int64_t index, Text text) {
    for (const char16_t unit : text) {
      writable[slot].set(size_t(index));
      state.unit[slot][index++] = unit;
    }
  }
  void write_ended(int slot, int64_t index, Text text) {
    write(slot, index, text);
    write(slot, index + length_of(text), Text(u"", 1));
  }
  int64_t place_in_first(size_t index) const {
    return index == Text::npos ? null_pointer : place(first, c.at[first] + int64_t(index));
  }
  Text with_terminator(Slot slot) const { return Text(state.unit[slot] + c.at[slot], c.text[slot].size() + 1); }

  void length() {
    state.result = length_of(a);
    read(first, unbounded);
  }

  void copy() {
    if (!apart) return;
    write_ended(to, to_index, a);
    read(first, unbounded);
  }

  void copy_bounded() {
    if (!apart || c.n <= 0) return;
    write_ended(to, to_index, up_to(a, c.n - 1));
    read(first, c.n);
  }

  void copy_counted() {
    if (!apart) return;
    write_ended(to, to_index, u"");
    if (a.data()) write(to, to_index, up_to(with_terminator(first), c.n));
    read(first, c.n);
  }

  void append(int64_t size, int64_t count) {
    if (!a.data() || !b.data()) return;
    read(second, unbounded);
    const int64_t left = size - length_of(b) - 1;
    if (left <= 0) return;
    const Text appended = up_to(a, std::min(left, count));
    write_ended(second, c.at[second] + length_of(b), appended);
    if (count > 0) read(first, length_of(appended) + 1);
  }

  void map_character(Fold fold) { state.result = c.n >= 0 && c.n < 128 ? fold(char16_t(c.n)) : c.n; }

  void map_string(Fold fold) {
    read(first, unbounded);
    for (size_t i = 0; i < a.size(); ++i) {
      const char16_t mapped = fold(a[i]);
      if (mapped != a[i]) write(first, c.at[first] + int64_t(i), Text(&mapped, 1));
    }
  }

  void compare(Fold fold, int64_t count) {
    if (in_place) return;
    state.result = int(a.data() != nullptr) - int(b.data() != nullptr);
    if (!a.data() || !b.data()) return;
    const Text one = up_to(with_terminator(first), count), two = up_to(with_terminator(second), count);
    const auto [u, v] = std::mismatch(one.begin(), one.end(), two.begin(), two.end(),
                                      [=](char16_t x, char16_t y) { return fold(x) == fold(y); });
    const bool differ = u != one.end() && v != two.end();
    const int64_t shared = u - one.begin();
    state.result = !differ ? 0 : fold(*u) > fold(*v) ? shared + 1 : -shared - 1;
    read(first, shared + differ);
    read(second, shared + differ);
  }

  void find_character() {
    const size_t index = c.n > 0 && c.n <= 0xFFFF ? a.find(char16_t(c.n)) : Text::npos;
    state.result = place_in_first(index);
    read(first, index == Text::npos ? unbounded : int64_t(index) + 1);
  }

  void find(Fold fold) {
    state.result = null_pointer;
    if (!a.data() || !b.data()) return;
    read(first, unbounded);
    read(second, unbounded);
    const auto match =
        std::search(a.begin(), a.end(), b.begin(), b.end(), [=](char16_t x, char16_t y) { return fold(x) == fold(y); });
    if (match != a.end()) state.result = place_in_first(size_t(match - a.begin()));
  }

  struct Token {
    size_t begin, end, next;
  };
  Token cut(size_t from) {
    const size_t begin = a.find_first_not_of(b, from), end = std::min(a.find_first_of(b, begin), a.size());
    if (end == a.size()) return {begin, end, end};
    write_ended(first, c.at[first] + int64_t(end), u"");
    return {begin, end, end + 1};
  }

  void next_token() {
    state.result = null_pointer;
    if (!a.data() || !b.data() || !apart) return;
    const Token token = cut(size_t(c.n));
    state.result = place_in_first(token.begin);
    state.cursor = uint32_t(token.next);
    read(second, unbounded);
    read(first, int64_t(token.end) + 1 - c.n, c.n);
    readable[cursor].set(0);
    writable[cursor].set(0);
  }

  void split() {
    if (!a.data() || !b.data() || !apart) return;
    read(first, unbounded);
    read(second, unbounded);
    for (Token token = cut(0); token.begin != Text::npos; token = cut(token.next)) {
      state.token[state.result] = int32_t(place_in_first(token.begin));
      writable[tokens].set(size_t(state.result++));
    }
  }

  void trim() {
    read(first, unbounded);
    read(second, unbounded);
    const size_t from = std::min(a.find_first_not_of(b), a.size()), last = a.find_last_not_of(b);
    const Text kept = a.substr(from, last - from + 1);
    state.result = length_of(kept);
    write_ended(first, c.at[first] + length_of(a), u"");
    if (!kept.empty()) write_ended(first, c.at[first] + int64_t(last) + 1, u"");
    if (from) write_ended(first, c.at[first], kept);
  }

  void replace() {
    if (!a.data() || !b.data()) return;
    read(second, 1);  // An empty pattern is looked for before a null replacement.
    if (!r.data() || b.empty()) return;
    for (const Slot slot : {first, second, third}) read(slot, unbounded);
    std::u16string text;
    size_t from = 0;
    for (size_t next; (next = a.find(b, from)) != Text::npos; from = next + b.size()) {
      text.append(a, from, next - from).append(r);
    }
    text.append(a, from);
    state.result = length_of(text);
    const size_t unmoved = in_place ? a.find(b) : 0;  // What stands before the first occurrence.
    if (c.placing == Placing::null || unmoved == Text::npos) return;
    write_ended(to, to_index + int64_t(unmoved), Text(text).substr(unmoved));
    readable[to] |= writable[to];  // It may be measured.
  }

  void to_text() {
    state.result = output_place;
    if (!apart) return;
    const uint32_t magnitude = c.n < 0 ? 0 - uint32_t(c.n) : uint32_t(c.n);
    std::u16string text;
    if (c.m == 1 && c.n == 0) text = u"0";
    if (c.m > 1) text = (c.n < 0 ? u"-" : u"") + digits(magnitude, uint32_t(c.m));
    for (char16_t& unit : text) unit = c.wide ? unit : unit & 0xFF;
    write_ended(to, to_index, text);
    readable[to] = writable[to];  // The digits are reversed there.
  }

  void to_integer() {
    const size_t sign = std::min(a.find_first_not_of(u" \t"), a.size()), from = sign + (a.substr(sign, 1) == u"-");
    const size_t end = std::min(a.find_first_not_of(u"0123456789", from), a.size());
    const uint32_t value = std::accumulate(a.begin() + from, a.begin() + end, uint32_t{},
                                           [](uint32_t sum, char16_t digit) { return sum * 10 + (digit - u'0'); });
    state.result = int32_t(from > sign ? 0 - value : value);
    read(first, int64_t(end) + 1);
  }

  void escape() {
    state.result = c.placing == Placing::null ? empty_constant : output_place;
    if (!apart) return;
    std::u16string text;
    size_t taken = 0;
    for (; taken < a.size(); ++taken) {
      const char16_t unit = a[taken];
      const bool printable = unit < 128 && std::isprint(unit);
      const std::u16string piece = printable ? std::u16string(1, unit) : u"&(0x" + digits(unit, 16) + u")";
      if (length_of(text) + length_of(piece) >= c.n) break;
      text += piece;
    }
    read(first, int64_t(taken) + 1);
    write_ended(to, to_index, text);
    readable[to] = writable[to];  // Appended to.
  }

  void widen() {
    state.result = output_place;
    if (!apart) return;
    write_ended(to, to_index, up_to(a, int64_t{c.n} - 1));
    read(first, c.n);
  }

  // What lies after its source repeats it.
  void copy_units() {
    if (!a.data() || c.placing == Placing::null || c.n <= 0) return;
    const auto count = size_t(c.n);
    const Text source(state.unit[first] + c.at[first], count);
    std::u16string copied(source);
    const bool repeats = in_place && c.shift > 0;
    for (auto i = size_t(c.shift); repeats && i < count; ++i) copied[i] = copied[i - size_t(c.shift)];
    readable[first] |= units(c.at[first], c.n);
    write(to, to_index, copied);
  }
};

inline uint64_t digest = 14695981039346656037u;  // Of all that the calls left behind, on a machine of any byte order.

inline void add_to_digest(const Call& c, const State& state) {
  const auto add = [](uint64_t word) { digest = (digest ^ word) * 1099511628211u; };
  for (const auto& unit : state.unit) {
    for (int i = 0; i < room; i += 4) {
      add(unit[i] | uint64_t{unit[i + 1]} << 16 | uint64_t{unit[i + 2]} << 32 | uint64_t{unit[i + 3]} << 48);
    }
  }
  for (int i = 0; c.op == Op::split && i < room; ++i) add(uint32_t(state.token[i]));
  add(uint64_t(state.result) ^ state.cursor);
}

// What is wrong with what a call left behind and with what it touched, if anything is.
inline const char* fault_of(const Call& c, const State& state, const Expectation& expected) {
  if (footprint.stray) return "an access outside every argument";
  if (footprint.broad) return "an access wider than a unit, or not aligned";
  for (int slot = first; slot < slots; ++slot) {
    if ((footprint.read[slot] & ~expected.readable[slot]).any()) return "a unit read beyond the contract";
    if ((footprint.written[slot] & ~expected.writable[slot]).any()) return "a unit written beyond the contract";
  }
  if (footprint.searched_on && (c.op == Op::find || c.op == Op::find_folded)) return "a search on from the end";
  if (std::memcmp(state.unit, expected.state.unit, sizeof state.unit) != 0) return "the memory left behind";
  if (std::memcmp(state.token, expected.state.token, sizeof state.token) != 0) return "the tokens";
  if (state.result != expected.state.result) return "the result";
  return state.cursor != expected.state.cursor ? "the cursor" : nullptr;
}

// Whether a call leaves what it must and touches what it may; if not, a line says what is wrong.
inline bool holds(const Call& c) {
  static State state, expected_state;
  prepare(c, state);
  std::memcpy(&expected_state, &state, sizeof state);
  const Expectation expected(c, expected_state);
  footprint = {};
  footprint.op = c.op;
  footprint.terminator = c.at[first] + int(c.text[first].size());
  perform(c, state);
  add_to_digest(c, state);
  const char* const fault = fault_of(c, state, expected);
  if (!fault) return true;
  const char* const placings[] = {"null", "apart", "in place"};
  std::fprintf(stderr, "%s, wide %d, n %ld, m %ld, %s, shift %d, at %d %d %d %d: %s", operation(c.op).name, c.wide,
               long(c.n), long(c.m), placings[int(c.placing)], c.shift, c.at[first], c.at[second], c.at[third],
               c.at[destination], fault);
  for (const Text text : c.text) {
    std::fprintf(stderr, text.data() ? "; %ld units" : "; null", long(text.size()));
    for (const char16_t unit : up_to(text, 64)) std::fprintf(stderr, " %x", unsigned(unit));
  }
  std::fprintf(stderr, "\n");
  return false;
}

}  // namespace oracle

#endif
