#ifndef TESTS_ORACLE_EXPECTATION_H
#define TESTS_ORACLE_EXPECTATION_H

#include <cctype>
#include <charconv>
#include <cstdio>
#include <cstring>
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

inline char16_t lower(char16_t unit) { return unit < 128 ? char16_t(std::tolower(unit)) : unit; }
inline Text up_to(Text text, int64_t limit) { return text.substr(0, size_t(std::max<int64_t>(limit, 0))); }
inline int64_t length_of(Text text) { return int64_t(text.size()); }

// What a call must leave behind and may touch, told by the standard library.
struct Expectation {
  State state;
  uint64_t readable[cursor + 1] = {}, writable[cursor + 1] = {};  // A bit for each unit.

  Expectation(const Case& call, const State& start) : state(start), c(call) { expect(start); }

  const Case& c;
  const Op op = c.op;
  const Text a = c.text[first], b = c.text[second], r = c.text[third];
  const bool x = a.data(), y = b.data(), apart = c.provided && !c.in_place;
  const int to = c.in_place ? first : destination;
  const int64_t skew = c.skew[0], base = c.in_place ? skew + c.shift : c.skew[1];
  static constexpr int64_t all = room;  // Of a text, with its terminator.

  void expect(const State& start) {
    if (op == Op::widen) state.result = provided();
    if (op == Op::length) state.result = length_of(a);
    if (op == Op::length) return read(first, all);
    if (op <= Op::append_bounded_counted || op == Op::widen) return take();
    if (op <= Op::to_upper) return map();
    if (op <= Op::compare_folded_counted) return compare();
    if (op <= Op::find_folded) return find();
    if (op <= Op::split) return cut();
    if (op == Op::trim) return trim();
    if (op == Op::replace) return replace();
    if (op <= Op::escape) return convert();
    if (!x || !c.provided) return;
    read(first, c.n);
    for (int i = 0; i < c.n; ++i) {  // What lies behind its source repeats it.
      write(to, base + i, Text(start.unit[first] + skew + (c.in_place && c.shift > 0 ? i % c.shift : i), 1));
    }
  }

  static uint64_t bits(int64_t from, int64_t end) {
    return end <= from ? 0 : (~uint64_t{0} >> (room - (end - from))) << from;
  }
  void read(int slot, int64_t count, int64_t from = 0) {
    const int64_t start = slot == first ? skew : 0;
    const int64_t end = op < Op::widen_units ? std::min(count, length_of(c.text[slot]) + 1) : count;
    if (c.text[slot].data()) readable[slot] |= bits(start + from, start + end);
  }
  void write(int slot, int64_t index, Text units) {
    writable[slot] |= bits(index, index + length_of(units));
    std::copy(units.begin(), units.end(), state.unit[slot] + index);
  }
  void write_ended(int slot, int64_t index, Text text) {
    write(slot, index, text);
    write(slot, index + length_of(text), Text(u"", 1));
  }
  int64_t place(size_t index) const { return index == Text::npos ? null_pointer : skew + int64_t(index); }
  int64_t provided() const { return c.provided ? to * 1000 + base : null_pointer; }

  // The copies, the appends and the widening: characters up to a limit, source units read up to a bound.
  void take() {
    int64_t limit = room, bound = room, at = base;
    int slot = to;
    if (op == Op::copy_bounded || op == Op::widen) limit = int64_t{c.n} - 1, bound = c.n;
    if (op == Op::copy_counted) limit = bound = c.n;
    if (op >= Op::append && op != Op::widen) {
      if (!x || !y) return;
      read(second, all);
      if (op == Op::append_bounded || op == Op::append_bounded_counted) limit = c.n - length_of(b) - 1;
      if (limit <= 0) return;
      if (op >= Op::append_counted) limit = std::min<int64_t>(limit, op == Op::append_counted ? c.n : c.m);
      bound = limit > 0 ? limit + 1 : 0;
      slot = second, at = length_of(b);
    } else if (!apart || (op == Op::copy_bounded && limit < 0)) {
      return;
    }
    const Text body = up_to(a, limit);
    write(slot, at, body);
    if (op != Op::copy_counted || length_of(a) < limit || body.empty()) write(slot, at + length_of(body), Text(u"", 1));
    read(first, std::min(bound, length_of(body) + 1));
  }

  void map() {
    const bool lowers = op == Op::character_to_lower || op == Op::to_lower;
    const auto mapped = [=](int32_t unit) {
      return unit & ~127 ? unit : lowers ? std::tolower(unit) : std::toupper(unit);
    };
    if (op <= Op::character_to_upper) state.result = mapped(c.n);
    if (op <= Op::character_to_upper) return;
    read(first, all);
    for (size_t i = 0; i < a.size(); ++i) {
      const auto unit = char16_t(mapped(a[i]));
      if (unit != a[i]) write(first, skew + int64_t(i), Text(&unit, 1));
    }
  }

  void compare() {
    if (c.in_place) return;
    state.result = x - y;
    if (!x || !y) return;
    const auto key = [=](char16_t unit) { return op < Op::compare_folded ? unit : lower(unit); };
    const auto equal = [=](char16_t u, char16_t v) { return key(u) == key(v); };
    const int64_t count = op == Op::compare || op == Op::compare_folded ? room : c.n;
    const Text p = up_to(Text(state.unit[first] + skew, a.size() + 1), count);  // With the terminators.
    const Text q = up_to(Text(state.unit[second], b.size() + 1), count);
    const auto [i, j] = std::mismatch(p.begin(), p.end(), q.begin(), q.end(), equal);
    const bool differ = i != p.end() && j != q.end();
    const int64_t shared = i - p.begin();
    state.result = !differ ? 0 : key(*i) > key(*j) ? shared + 1 : -shared - 1;
    read(first, shared + differ);
    read(second, shared + differ);
  }

  void find() {
    state.result = null_pointer;
    if (op == Op::find_character) {
      const size_t index = c.n > 0 && c.n <= 0xFFFF ? a.find(char16_t(c.n)) : Text::npos;
      state.result = place(index);
      return read(first, index == Text::npos ? all : int64_t(index) + 1);
    }
    if (!x || !y) return;
    read(first, all);
    read(second, all);
    const auto equal = [=](char16_t u, char16_t v) { return op == Op::find ? u == v : lower(u) == lower(v); };
    const auto match = std::search(a.begin(), a.end(), b.begin(), b.end(), equal);
    if (match != a.end()) state.result = skew + (match - a.begin());
  }

  void cut() {
    const bool splits = op == Op::split;
    if (!splits) state.result = null_pointer;
    if (!x || !y || !c.provided) return;
    read(second, all);
    size_t from = splits ? 0 : size_t(c.n);
    for (bool more = true; more;) {
      const size_t token = a.find_first_not_of(b, from), end = std::min(a.find_first_of(b, token), a.size());
      const auto pointer = char16_t(place(token));
      read(first, int64_t(end) + 1, int64_t(from));
      from = end;
      if (end < a.size()) write_ended(first, skew + int64_t(from++), u"");
      more = splits && token != Text::npos;
      if (more) write(array, state.result++, Text(&pointer, 1));
      if (!splits) state.result = place(token);
    }
    if (splits) return;
    state.cursor = uint32_t(from);
    readable[cursor] = writable[cursor] = 1;
  }

  void trim() {
    read(first, all);
    read(second, all);
    write_ended(first, skew + length_of(a), u"");
    const size_t from = std::min(a.find_first_not_of(b), a.size()), last = a.find_last_not_of(b);
    const Text kept = a.substr(from, last - from + 1);
    state.result = length_of(kept);
    if (!kept.empty()) write_ended(first, place(last) + 1, u"");
    if (from) write_ended(first, skew, kept);
  }

  void replace() {
    read(second, all);
    if (!x || !r.data() || b.empty()) return;
    read(first, all);
    read(third, all);
    std::u16string text(a);
    for (size_t i = 0; (i = text.find(b, i)) != Text::npos; i += r.size()) text.replace(i, b.size(), r);
    state.result = length_of(text);
    const size_t kept = c.in_place ? a.find(b) : 0;  // What stands before the first occurrence stays.
    if (c.provided && kept != Text::npos) write_ended(to, base + int64_t(kept), Text(text).substr(kept));
    readable[to] |= writable[to];  // It may measure what it has written.
  }

  void convert() {
    const size_t sign = std::min(a.find_first_not_of(u" \t"), a.size()), from = sign + (a.substr(sign, 1) == u"-");
    const size_t end = std::min(a.find_first_not_of(u"0123456789", from), a.size());
    if (op == Op::to_integer) {
      const std::string text(a.begin() + from, a.begin() + end);
      uint64_t value = 0;
      std::from_chars(text.data(), text.data() + text.size(), value);
      state.result = int32_t(from > sign ? 0 - value : value);
      return read(first, int64_t(end) + 1);
    }
    state.result = c.provided || op == Op::to_text ? provided() : empty_constant;
    if (!apart) return;
    std::u16string text, piece;
    if (op == Op::to_text && (c.m > 1 || (c.m == 1 && !c.n))) {
      text = (c.n < 0 ? u"-" : u"") + digits(c.n < 0 ? 0u - uint32_t(c.n) : uint32_t(c.n), c.n ? uint32_t(c.m) : 2);
      for (char16_t& unit : text) unit = c.wide ? unit : unit & 0xFF;
    }
    for (size_t i = 0; op == Op::escape && x && length_of(text) < std::max<int64_t>(c.n, 1); text += piece, ++i) {
      read(first, int64_t(i) + 1);
      if (i == a.size()) break;
      piece = a[i] < 128 && std::isprint(a[i]) ? a.substr(i, 1) : u"&(0x" + digits(a[i], 16) + u")";
      if (length_of(text + piece) >= c.n) break;
    }
    write_ended(to, base, text);
    readable[to] = writable[to];
  }
};

inline uint64_t digest = 14695981039346656037u;  // Of all that the calls left behind.

// 1, and a line that says what is wrong, if a call leaves anything but what it must or touches what it must not.
inline int check(const Case& c) {
  const State start = before(c);
  const Expectation expected(c, start);
  footprint = {c.op, {}, {}, false, false, c.skew[0] + int(c.text[first].size()), false, false};
  const State state = after(start, c);
  uint64_t words[sizeof state.unit / sizeof(uint64_t)];
  std::memcpy(words, state.unit, sizeof words);
  for (const uint64_t word : words) digest = (digest ^ word) * 1099511628211u;
  digest = (digest ^ uint64_t(state.result) ^ state.cursor) * 1099511628211u;
  const char* wrong = nullptr;
  if (state.result != expected.state.result || state.cursor != expected.state.cursor) wrong = "the result or cursor";
  if (std::memcmp(state.unit, expected.state.unit, sizeof state.unit) != 0) wrong = "the memory left behind";
  for (int slot = first; slot <= cursor; ++slot) {
    if (footprint.read[slot] & ~expected.readable[slot]) wrong = "a unit read beyond the contract";
    if (footprint.written[slot] & ~expected.writable[slot]) wrong = "a unit written beyond the contract";
  }
  if (footprint.again && (c.op == Op::find || c.op == Op::find_folded)) wrong = "a search on from the end";
  if (footprint.stray) wrong = "an access outside every argument";
  if (footprint.broad) wrong = "an access wider than a unit, or not aligned";
  if (!wrong) return 0;
  const char* const place = !c.provided ? "null" : c.in_place ? "in place" : "apart";
  std::fprintf(stderr, "%s, wide %d, n %ld, m %ld, %s, shift %d, skew %d %d: %s", traits[int(c.op)].name, c.wide,
               long(c.n), long(c.m), place, c.shift, c.skew[0], c.skew[1], wrong);
  for (const Text text : c.text) {
    std::fprintf(stderr, text.data() ? "; text" : "; null");
    for (const char16_t unit : text) std::fprintf(stderr, " %x", unsigned(unit));
  }
  std::fprintf(stderr, "\n");
  return 1;
}

}  // namespace oracle

#endif
