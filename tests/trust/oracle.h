#ifndef QUVEX_TESTS_TRUST_ORACLE_H
#define QUVEX_TESTS_TRUST_ORACLE_H

#include <cctype>
#include <charconv>
#include <string>

#include "scene.h"

// What a call must leave behind and may touch, told by the standard library.
namespace trust {

struct Expectation {
  State state;
  uint64_t readable[cursor + 1] = {}, needed[cursor + 1] = {}, writable[cursor + 1] = {};  // A bit for each unit.

  static uint64_t bits(int64_t from, int64_t to) {
    return to <= from ? 0 : (~uint64_t{0} >> (room - (to - from))) << from;
  }
  void may_read(int slot, int64_t from, int64_t to) { readable[slot] |= bits(from, to); }
  void reads(int slot, int64_t from, int64_t to) { may_read(slot, from, to), needed[slot] |= bits(from, to); }
  void write(int slot, int64_t index, Text units) {
    writable[slot] |= bits(index, index + int64_t(units.size()));
    std::copy(units.begin(), units.end(), state.unit[slot] + index);
  }
  void write_ended(int slot, int64_t index, Text text) {
    write(slot, index, text);
    write(slot, index + int64_t(text.size()), Text(u"", 1));
  }
};

inline char16_t lower(char16_t c) { return c < 128 ? char16_t(std::tolower(c)) : c; }
inline char16_t upper(char16_t c) { return c < 128 ? char16_t(std::toupper(c)) : c; }

inline std::u16string digits(uint32_t magnitude, uint32_t radix) {
  if (radix <= 36) {
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, magnitude, int(radix)).ptr};
  }
  const auto last = char16_t(magnitude % radix + (magnitude % radix < 10 ? '0' : 'a' - 10));
  return (magnitude < radix ? u"" : digits(magnitude / radix, radix)) + last;
}

inline uint32_t number(const std::string& text) {  // In pieces that a word holds.
  const size_t rest = text.size() > 9 ? text.size() - 9 : 0;
  uint32_t piece = 0;
  std::from_chars(text.data() + rest, text.data() + text.size(), piece);
  return rest ? number(text.substr(0, rest)) * 1000000000u + piece : piece;
}

inline Expectation expect(const Case& c, const State& start) {
  Expectation e{start};
  const Op op = c.op;
  const Text a = c.text[first], b = c.text[second], replacement = c.text[third];
  const bool x = a.data(), y = b.data(), same = c.in_place, writes = c.provided && !same;
  const auto size = [](Text text) { return int64_t(text.size()); };
  const auto up_to = [](Text text, int64_t limit) { return text.substr(0, size_t(std::max<int64_t>(limit, 0))); };
  const int64_t skew = c.skew[0], x_end = skew + size(a) + 1, y_end = size(b) + 1;
  const Text ended(start.unit[first] + skew, a.size() + 1), other_ended(start.unit[second], b.size() + 1);
  const int to = same ? first : destination;
  const int64_t base = same ? skew + c.shift : c.skew[1], target = c.provided ? to * 1000 + base : null_pointer;
  const auto found = [&](size_t index) { return index == Text::npos ? null_pointer : skew + int64_t(index); };
  const auto copy = [&](int slot, int64_t index, int64_t limit, int64_t bound) {
    e.write_ended(slot, index, up_to(a, limit));
    e.reads(first, skew, skew + size(up_to(a, limit)));
    if (x) e.may_read(first, skew, std::min(skew + bound, x_end));
  };
  switch (op) {
    case Op::length:
      e.state.result = size(a);
      if (x) e.reads(first, skew, x_end);
      break;
    case Op::copy:
      if (writes) copy(to, base, room, room);
      break;
    case Op::copy_bounded:
      if (writes && c.n > 0) copy(to, base, c.n - 1, c.n);
      break;
    case Op::widen:
      e.state.result = target;
      if (writes) copy(to, base, int64_t{c.n} - 1, c.n);
      break;
    case Op::copy_counted:
      if (!writes) break;
      e.write_ended(to, base, u"");
      if (x) e.write(to, base, up_to(ended, c.n));
      if (x) e.reads(first, skew, skew + size(up_to(ended, c.n)));
      break;
    case Op::append:
    case Op::append_bounded:
    case Op::append_counted:
    case Op::append_bounded_counted: {
      if (!x || !y) break;
      e.reads(second, 0, y_end);
      const bool sized = op == Op::append_bounded || op == Op::append_bounded_counted;
      const int64_t fitting = sized ? c.n - y_end : room, count = op == Op::append_counted ? c.n : c.m;
      const int64_t limit = op < Op::append_counted ? fitting : std::min(fitting, count);
      if (fitting > 0) copy(second, size(b), limit, limit > 0 ? limit + 1 : 0);
      break;
    }
    case Op::character_to_lower:
    case Op::character_to_upper:
      e.state.result = c.n & ~127 ? c.n : op == Op::character_to_lower ? std::tolower(c.n) : std::toupper(c.n);
      break;
    case Op::to_lower:
    case Op::to_upper:
      if (x) e.reads(first, skew, x_end);
      for (size_t i = 0; i < a.size(); ++i) {
        const char16_t mapped = op == Op::to_lower ? lower(a[i]) : upper(a[i]);
        if (mapped != a[i]) e.write(first, skew + int64_t(i), Text(&mapped, 1));
      }
      break;
    case Op::compare:
    case Op::compare_counted:
    case Op::compare_folded:
    case Op::compare_folded_counted: {
      e.state.result = same ? 0 : x - y;
      if (same || !x || !y) break;
      const auto key = [=](char16_t unit) { return op < Op::compare_folded ? unit : lower(unit); };
      const int64_t count = op == Op::compare || op == Op::compare_folded ? room : c.n;
      const Text p = up_to(ended, count), q = up_to(other_ended, count);
      const auto equal = [=](char16_t u, char16_t v) { return key(u) == key(v); };
      const auto [i, j] = std::mismatch(p.begin(), p.end(), q.begin(), q.end(), equal);
      const bool differ = i != p.end() && j != q.end();
      const int64_t shared = i - p.begin();
      if (differ) e.state.result = key(*i) > key(*j) ? shared + 1 : -shared - 1;
      e.reads(first, skew, skew + shared + differ);
      e.reads(second, 0, shared + differ);
      break;
    }
    case Op::find_character: {
      const size_t index = c.n > 0 && c.n <= 0xFFFF ? a.find(char16_t(c.n)) : Text::npos;
      e.state.result = found(index);
      if (x) e.reads(first, skew, skew + size(up_to(ended, int64_t(std::min(index, a.size())) + 1)));
      break;
    }
    case Op::find:
    case Op::find_folded: {
      e.state.result = null_pointer;
      if (!x || !y) break;
      e.may_read(first, skew, x_end);
      e.may_read(second, 0, y_end);
      const auto equal = [=](char16_t u, char16_t v) { return op == Op::find ? u == v : lower(u) == lower(v); };
      const auto match = std::search(a.begin(), a.end(), b.begin(), b.end(), equal);
      if (match == a.end()) break;
      e.state.result = skew + (match - a.begin());
      e.reads(first, skew, e.state.result + size(b));
      e.reads(second, 0, y_end);
      break;
    }
    case Op::next_token:
    case Op::split: {
      e.state.result = op == Op::split ? 0 : null_pointer;
      if (!x || !y || !c.provided) break;
      e.may_read(second, 0, y_end);
      size_t from = op == Op::split ? 0 : size_t(c.n);
      for (bool more = true; more;) {
        const size_t token = a.find_first_not_of(b, from), end = std::min(a.find_first_of(b, token), a.size());
        e.reads(first, skew + int64_t(from), skew + int64_t(end) + 1);
        from = end;
        if (from < a.size()) e.write_ended(first, skew + int64_t(from++), u"");
        more = op == Op::split && token != Text::npos;
        const auto place = char16_t(found(token));
        if (more) e.write(array, e.state.result++, Text(&place, 1));
        if (op == Op::next_token) e.state.result = found(token);
      }
      if (op == Op::split) break;
      e.state.cursor = uint32_t(from);
      e.reads(cursor, 0, 1);
      e.writable[cursor] = 1;
      break;
    }
    case Op::trim: {
      e.reads(first, skew, x_end);
      e.may_read(second, 0, y ? y_end : 0);
      e.write_ended(first, x_end - 1, u"");
      const size_t from = std::min(a.find_first_not_of(b), a.size()), last = a.find_last_not_of(b);
      const Text kept = a.substr(from, last - from + 1);
      e.state.result = size(kept);
      if (!kept.empty()) e.write_ended(first, skew + int64_t(last) + 1, u"");
      if (from) e.write_ended(first, skew, kept);
      break;
    }
    case Op::replace: {
      e.may_read(second, 0, y ? y_end : 0);
      if (!x || !replacement.data() || b.empty()) break;
      e.reads(first, skew, x_end);
      e.may_read(third, 0, size(replacement) + 1);
      std::u16string result(a);
      for (size_t i = 0; (i = result.find(b, i)) != Text::npos; i += replacement.size()) {
        result.replace(i, b.size(), replacement);
      }
      e.state.result = size(result);
      // In place, what stands before the first occurrence stays.
      const size_t kept = same ? std::min(a.find(b), a.size() + 1) : 0;
      if (c.provided && kept <= a.size()) e.write_ended(to, base + int64_t(kept), Text(result).substr(kept));
      break;
    }
    case Op::to_text: {
      e.state.result = target;
      std::u16string text;
      if (c.m > 1 || (c.m == 1 && !c.n))
        text = digits(c.n < 0 ? 0u - uint32_t(c.n) : uint32_t(c.n), c.n ? uint32_t(c.m) : 2);
      if (c.n < 0 && !text.empty()) text.insert(0, 1, u'-');
      for (char16_t& unit : text) unit = c.wide ? unit : unit & 0xFF;
      if (writes) e.write_ended(to, base, text);
      e.readable[to] = e.writable[to];
      break;
    }
    case Op::to_integer: {
      const size_t sign = std::min(a.find_first_not_of(u" \t"), a.size()), from = sign + (a.substr(sign, 1) == u"-");
      const size_t end = std::min(a.find_first_not_of(u"0123456789", from), a.size());
      if (x) e.reads(first, skew, skew + int64_t(end) + 1);
      const uint32_t value = number({a.begin() + from, a.begin() + end});
      e.state.result = int32_t(from > sign ? 0 - value : value);
      break;
    }
    case Op::escape: {
      e.state.result = c.provided ? target : empty_constant;
      std::u16string text, piece;
      for (size_t i = 0; writes && x && size(text) < std::max<int64_t>(c.n, 1); text += piece, ++i) {
        e.may_read(first, skew, skew + int64_t(i) + 1);
        if (i == a.size()) break;
        const bool plain = a[i] < 128 && std::isprint(a[i]);
        piece = plain ? a.substr(i, 1) : u"&(0x" + digits(a[i], 16) + u")";
        if (size(text + piece) >= c.n) break;
      }
      if (writes) e.write_ended(to, base, text);
      e.readable[to] = e.writable[to];
      break;
    }
    case Op::widen_units:
    case Op::copy_units:
      if (!x || !c.provided || c.n <= 0) break;
      e.reads(first, skew, skew + c.n);
      for (int i = 0; i < c.n; ++i) {  // What lies behind its source repeats it.
        e.write(to, base + i, Text(start.unit[first] + skew + (same && c.shift > 0 ? i % c.shift : i), 1));
      }
      break;
    case Op::end:
      break;
  }
  return e;
}

}  // namespace trust

#endif
