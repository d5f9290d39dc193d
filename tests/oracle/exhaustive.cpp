// Short strings: all of them up to a bound, and those that show what longer ones, other units and overlaps may do.
#include <cstdlib>

#include "families.h"

namespace oracle {
namespace {

// The next string of its length in the alphabet's order, from `prefix` on; false, and the first again, after the last.
bool advance(std::u16string& string, Text alphabet, size_t prefix) {
  for (size_t i = string.size(); i-- > prefix;) {
    const size_t next = alphabet.find(string[i]) + 1;
    string[i] = alphabet[next % alphabet.size()];
    if (next < alphabet.size()) return true;
  }
  return false;
}

// Null, then every string that continues a prefix of the alphabet's first unit, up to a length.
template <class Visit>
void each_string(Text alphabet, int prefix, int longest, Visit visit) {
  visit(Text());
  for (int length = prefix; length <= longest; ++length) {
    std::u16string string(size_t(length), alphabet[0]);
    do visit(string);
    while (advance(string, alphabet, size_t(prefix)));
  }
}

template <class Visit>
void each_number(Numbers kind, const Call& c, Visit visit) {
  if (kind == none) return visit(0);
  for (const int32_t extreme : {INT32_MIN, INT32_MIN + 1, INT32_MAX - 1, INT32_MAX}) visit(extreme);
  const auto range = [&](int from, int to) {
    for (int i = from; i <= to; ++i) visit(i);
  };
  const int a = int(c.text[first].size()), b = int(c.text[second].size());
  if (kind == size) return range(-1, a + b + 2);
  if (kind == count) return range(-1, a + 2);
  if (kind == units) return range(-1, room);
  if (kind == pieces) return range(-1, 9 * a + 2);
  if (kind == radix) return range(-1, 40), range(168, 171), range(255, 257), visit(65537);
  range(-360, 360);
  range(65590, 65670);  // The letters' low bytes.
  range(0x8120, 0x812F);
  for (int64_t base : {2, 10, 36, 37}) {
    for (int64_t power = base * base; power < INT32_MAX; power *= base) {
      for (const int64_t value : {-power, power - 1, power, power + 1}) visit(int32_t(value));
    }
  }
}

void each_call_of_strings(const Family& family, bool wide, int prefix, int longest) {
  const std::u16string alphabet = alphabet_of(family, wide);
  const auto limit = [&](int slot) {
    return family.longest[slot] == unused ? -1 : prefix + std::max(1, longest + family.longest[slot]);
  };
  each_string(alphabet, prefix, limit(first), [&](Text a) {
    each_string(alphabet, prefix, limit(second), [&](Text b) {
      each_string(alphabet, prefix, limit(third), [&](Text r) {
        Call c{family.op, wide, {a, b, r}, {}, {}, 0, 0, 0};
        each_number(family.n, c, [&](int32_t n) {
          c.n = n;
          each_number(family.m, c, [&](int32_t m) {
            c.m = m;
            attempt_anywhere(c);
          });
        });
      });
    });
  });
}

// The numbers around the lengths.
template <class Visit>
void each_number_around(Numbers kind, const Call& c, Text alphabet, Visit visit) {
  if (kind == none) return visit(0);
  if (kind == any) return visit(alphabet.front()), visit(alphabet.back());
  const auto a = int32_t(c.text[first].size()), b = int32_t(c.text[second].size());
  const int32_t around = kind == size ? a + b : kind == pieces ? 9 * a : a;
  for (int32_t number = -1; number <= 1; ++number) visit(number);
  for (int32_t number = around - 1; number <= around + 2; ++number) visit(number);
  visit(INT32_MAX);
}

// Longer strings of every length, sizes and counts around it.
void each_call_of_runs(const Family& family, bool wide, bool all) {
  const std::u16string alphabet = alphabet_of(family, wide);
  const int some[] = {0, 1, 2, 7, 9, 14, 23, 40};
  const auto each = [&](int slot, int step, int longest, auto visit) {
    if (family.longest[slot] == unused) return visit(Text());
    for (int i = 0; i <= longest; i += step) {
      if (all || std::count(std::begin(some), std::end(some), i)) each_run(alphabet, i, visit);
    }
  };
  each(first, 1, 40, [&](Text a) {
    each(second, 1, 40, [&](Text b) {
      each(third, 1, 9, [&](Text r) {
        Call c{family.op, wide, {a, b, r}, {}, {}, 0, 0, 0};
        each_number_around(family.n, c, alphabet, [&](int32_t n) {
          c.n = n;
          each_number_around(family.m, c, alphabet, [&](int32_t m) {
            c.m = m;
            attempt_anywhere(c);
          });
        });
      });
    });
  });
}

// A unit alone, and a string of one that differs from it in one bit: `every` unit, or those that are narrow and some.
void each_call_of_pairs(const Family& family, bool wide, bool every) {
  const bool narrow = unit_size({family.op, wide, {}, {}, {}, 0, 0, 0}, first) == 1;
  const int bits = family.n == any && family.longest[first] == unused ? 32 : 17;
  for (int32_t value = 1; value < (narrow ? 0x100 : 0x10000); value += every || value < 0x100 ? 1 : 509) {
    for (int bit = family.n == any || family.longest[second] != unused ? 0 : 16; bit < bits; ++bit) {
      const auto changed = int32_t(uint32_t(value) ^ (bit == 16 ? 0 : uint32_t{1} << bit));
      const char16_t a[] = {char16_t(value), u'!'}, b = char16_t(changed);
      if (narrow && changed > 0xFF && family.n != any) continue;
      Call c{family.op, wide, {}, Placing::apart, {}, 0, changed, 10};
      if (family.longest[first] != unused) c.text[first] = Text(a, 2);
      if (family.longest[second] != unused) c.text[second] = Text(&b, b != 0);
      if (family.longest[third] != unused) c.text[third] = u"+"sv;
      if (family.n != any) c.n = family.op == Op::next_token ? 0 : family.n == pieces ? 11 : 2;
      cases += is_allowed(c);
      if (is_allowed(c) && wrong < most_wrong) wrong += !holds(c);
    }
  }
}

// Sets and needles of many units that all differ: each of their units is looked for, and partial matches of each length.
void each_call_of_sequences(Op op, bool wide, char16_t start) {
  std::u16string ascending(30, start);
  std::iota(ascending.begin(), ascending.end(), start);
  for (size_t length = 1; length <= ascending.size(); ++length) {
    const Text sequence = Text(ascending).substr(0, length);
    for (size_t i = 0; i < length; ++i) {
      const std::u16string member(1, sequence[i]), other(1, char16_t(sequence[i] ^ 0x80));
      const std::u16string changed(1, char16_t(sequence[i] ^ 0x20));
      const std::u16string partly(sequence.substr(0, i)), whole = partly + std::u16string(sequence);
      const std::u16string in_case = partly + changed + std::u16string(sequence.substr(i + 1));
      for (const std::u16string& text :
           {other + member + other, member + other + member, whole, in_case, partly + other}) {
        attempt_anywhere({op, wide, {text, sequence, u"+"sv}, {}, {}, 0, 0, 0});
      }
    }
  }
}

// The wide unit copy over every distance of overlap.
void each_overlap() {
  std::u16string text(room / 2, u'a');
  std::iota(text.begin(), text.end(), u'\x80FE');
  text[3] = 0;
  for (int shift = -room / 2; shift <= room / 2; ++shift) {
    for (int n = 0; n <= room / 2; ++n) {
      for (const int odd : {0, 1}) {
        attempt({Op::copy_units, true, {text}, {}, {std::max(0, -shift) + odd}, shift, n, 0});
      }
    }
  }
}

void run(int longest, std::string_view link) {
  const auto is_asked = [&](Op op, bool wide) {
    return link.empty() || link == (wide ? operation(op).wide : operation(op).narrow);
  };
  for (const Family& family : families) {
    for (const bool wide : {false, true}) {
      if (!is_asked(family.op, wide)) continue;
      each_call_of_strings(family, wide, 0, longest);
      // After a prefix of seven, so that unrolled loops complete a full iteration.
      if (family.longest[first] != unused) each_call_of_strings(family, wide, 7, longest - 2);
      if (family.longest[first] != unused) each_call_of_runs(family, wide, longest > 5);
      each_call_of_pairs(family, wide, longest > 5);
    }
  }
  for (const Op op : {Op::find, Op::find_folded, Op::next_token, Op::split, Op::trim, Op::replace}) {
    for (const bool wide : {false, true}) {
      if (!is_asked(op, wide)) continue;
      for (const char16_t start : wide ? u"aA\xF8\x8141"sv : u"aA\x90\xC0"sv) each_call_of_sequences(op, wide, start);
    }
  }
  if (is_asked(Op::copy_units, true)) each_overlap();
}

}  // namespace
}  // namespace oracle

// exhaustive [UNITS [LINK_NUMBER]]: all operations; or one, up to its first wrong call.
int main(int argc, char** argv) {
  const int longest = argc > 1 ? std::atoi(argv[1]) : 3;
  if (argc > 2) oracle::most_wrong = 1;
  oracle::run(longest, argc > 2 ? argv[2] : "");
  return oracle::report("cases", longest);
}
