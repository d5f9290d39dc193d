// Every string up to a bound over an alphabet of its interesting units, with every number around it.
#include <cstdlib>

#include "expectation.h"

using namespace oracle;
using namespace std::string_view_literals;

namespace {

constexpr int unused = -99;
enum Number { none, bound, any, radix };

// Each alphabet is written for wide strings; in a narrow one, what does not fit becomes its low byte with the high bit
// set. The lengths are those of the longest strings, less than the bound by so many.
struct Family {
  Op op;
  Text alphabet;
  int longest[3];
  Number n, m;
};

constexpr Text plain = u"a\u0141b"sv, cased = u"aA\u0141"sv, sorted = u"aA[{\u8061"sv, letters = u"@AZ[`az{\u0141"sv;
constexpr Text list = u"a,;\u812C"sv, zeros = u"a\0\u80FF"sv;

const Family families[] = {
#include "families.def"
};

// The next string of its length in the alphabet's order, from `start` on; false, and the first again, after the last.
bool advance(std::u16string& string, Text alphabet, size_t start) {
  for (size_t i = string.size(); i-- > start;) {
    const size_t next = alphabet.find(string[i]) + 1;
    string[i] = alphabet[next % alphabet.size()];
    if (next < alphabet.size()) return true;
  }
  return false;
}

// Null, then every string that continues a start of the alphabet's first unit, up to a length.
template <class Visit>
void each_string(Text alphabet, int start, int longest, Visit visit) {
  visit(Text());
  for (int length = start; length <= longest; ++length) {
    std::u16string string(size_t(length), alphabet[0]);
    do visit(string);
    while (advance(string, alphabet, size_t(start)));
  }
}

template <class Visit>
void each_number(Number kind, const Case& c, Visit visit) {
  if (kind == none) return visit(0);
  for (const int32_t extreme : {INT32_MIN, INT32_MIN + 1, INT32_MAX - 1, INT32_MAX}) visit(extreme);
  const auto range = [&](int from, int to) {
    for (int i = from; i <= to; ++i) visit(i);
  };
  const int size = int(c.text[first].size()), other = c.op < Op::compare ? int(c.text[second].size()) : 0;
  if (kind == bound && c.op >= Op::widen_units) return range(-1, room / 2);
  if (kind == bound) return range(-1, (c.op == Op::escape ? 9 : 1) * size + other + 2);
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

long cases = 0, wrong = 0;

void tally(Case c) {
  for (const int place : {0, 1, 2}) {
    c.provided = place != 0;
    c.in_place = place == 2;
    const uint32_t places = uint32_t(cases) * 2654435761u >> 28;  // Each in its turn, without a pattern.
    c.skew[0] = int(places % 4);
    c.skew[1] = int(places / 4);
    const int reach = c.op == Op::copy_units && c.in_place ? 4 : 0;
    for (c.shift = -reach; c.shift <= reach; ++c.shift) {
      if (!is_valid(c)) continue;
      ++cases;
      if (wrong < 20) wrong += check(c);
    }
  }
}

void run(const Family& family, bool wide, int start, int longest) {
  char16_t units[16];
  const auto fit = [=](char16_t unit) { return wide || unit < 256 ? unit : char16_t((unit & 0xFF) | 0x80); };
  const Text alphabet(units,
                      size_t(std::transform(family.alphabet.begin(), family.alphabet.end(), units, fit) - units));
  const auto up_to = [&](int slot) {
    return family.longest[slot] == unused ? -1 : start + std::max(1, longest + family.longest[slot]);
  };
  each_string(alphabet, start, up_to(first), [&](Text a) {
    each_string(alphabet, start, up_to(second), [&](Text b) {
      each_string(alphabet, start, up_to(third), [&](Text r) {
        Case c{family.op, wide, {a, b, r}, true, false, 0, {0, 0}, 0, 0};
        each_number(family.n, c, [&](int32_t n) {
          c.n = n;
          each_number(family.m, c, [&](int32_t m) {
            c.m = m;
            tally(c);
          });
        });
      });
    });
  });
}

}  // namespace

int main(int argc, char** argv) {
  const int longest = argc > 1 ? std::atoi(argv[1]) : 3;
  for (const Family& family : families) {
    for (const bool wide : {false, true}) {
      run(family, wide, 0, longest);
      // Behind a start that takes an unrolled loop round once.
      if (family.longest[first] != unused) run(family, wide, 7, longest - 2);
    }
  }
  std::printf("%ld cases up to %d units, digest %08lx, %ld wrong\n", cases, longest,
              static_cast<unsigned long>(digest >> 32), wrong);
  return wrong || !cases;
}
