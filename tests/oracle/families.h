#ifndef TESTS_ORACLE_FAMILIES_H
#define TESTS_ORACLE_FAMILIES_H

#include "expectation.h"

// What the strings and numbers of each operation are made of, for the short strings and the long.
namespace oracle {

using namespace std::string_view_literals;

constexpr int unused = -99;
enum Numbers { none, size, count, units, pieces, any, radix };

struct Family {
  Op op;
  Text alphabet;  // Written for wide strings.
  int longest[destination];
  Numbers n, m;
};

constexpr Text plain = u"a\u0141b"sv, cased = u"aA\u0141"sv, sorted = u"aA[{\u8061"sv, list = u"a,;\u812C"sv;

const Family families[] = {
#include "families.def"
};

// In a narrow string, what does not fit becomes its low byte with the high bit set.
inline char16_t fit(char16_t unit, bool wide) { return wide || unit < 256 ? unit : char16_t((unit & 0xFF) | 0x80); }

inline std::u16string alphabet_of(const Family& family, bool wide) {
  std::u16string alphabet(family.alphabet);
  for (char16_t& unit : alphabet) unit = fit(unit, wide);
  return alphabet;
}

// One unit repeated, with at most one other at the front, in the middle or at the end; and the two alternating.
template <class Visit>
void each_run(Text alphabet, int length, Visit visit) {
  std::u16string run(size_t(length), alphabet.front());
  visit(Text(run));
  for (const int i : {0, length / 2, length - 1}) {
    if (!length) break;
    run[size_t(i)] = alphabet.back();
    visit(Text(run));
    run[size_t(i)] = alphabet.front();
  }
  for (size_t i = 1; i < run.size(); i += 2) run[i] = alphabet.back();
  if (length > 2) visit(Text(run));
}

inline long cases = 0, wrong = 0, most_wrong = 20;

// Makes a call in every placing that it can have.
inline void attempt(Call c) {
  for (const Placing placing : {Placing::null, Placing::apart, Placing::in_place}) {
    c.placing = placing;
    if (!is_allowed(c)) continue;
    ++cases;
    if (wrong < most_wrong) wrong += !holds(c);
  }
}

// The same, where its strings begin at other places each time.
inline void attempt_anywhere(Call c) {
  const uint32_t places = uint32_t(cases) * 2654435761u;  // Without a pattern.
  for (int slot = first; slot < strings; ++slot) c.at[slot] = int(places >> (30 - 2 * slot)) % 4;
  attempt(c);
}

inline int report(const char* what, int limit) {
  std::printf("%ld %s up to %d units, digest %08lx, %ld wrong\n", cases, what, limit,
              static_cast<unsigned long>(digest >> 32), wrong);
  return wrong || !cases;
}

}  // namespace oracle

#endif
