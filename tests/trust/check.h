#ifndef QUVEX_TESTS_TRUST_CHECK_H
#define QUVEX_TESTS_TRUST_CHECK_H

#include <cstdio>
#include <cstring>

#include "oracle.h"

namespace trust {

// 1, and a line that says what is wrong, if a call leaves anything but what it must or touches what it must not.
inline int check(const Case& c) {
  const State start = before(c);
  const Expectation expected(c, start);
  footprint = {c.op, {}, {}, false, false, c.skew[0] + int(c.text[first].size()), false, false};
  const State state = after(start, c);
  const char* wrong = nullptr;
  if (state.result != expected.state.result || state.cursor != expected.state.cursor) wrong = "the result or cursor";
  if (std::memcmp(state.unit, expected.state.unit, sizeof state.unit) != 0) wrong = "the memory left behind";
#ifdef QUVEX_TRACED
  for (int slot = first; slot <= cursor; ++slot) {
    const uint64_t read = footprint.read[slot], written = footprint.written[slot];
    if (read & ~expected.readable[slot]) wrong = "a unit read beyond the contract";
    if (expected.needed[slot] & ~read) wrong = "a unit passed over unread";
    if (written & ~expected.writable[slot]) wrong = "a unit written beyond the contract";
  }
  if (footprint.again && (c.op == Op::find || c.op == Op::find_folded)) wrong = "a search on from the end";
  if (footprint.stray) wrong = "an access outside every argument";
  if (footprint.broad) wrong = "an access wider than a unit, or not aligned";
#endif
  if (!wrong) return 0;
  std::fprintf(stderr, "%s %s, n %ld, m %ld, %s, shift %d, skew %d %d: %s", c.wide ? "wide" : "narrow",
               traits[int(c.op)].name, long(c.n), long(c.m),
               !c.provided  ? "null"
               : c.in_place ? "in place"
                            : "apart",
               c.shift, c.skew[0], c.skew[1], wrong);
  for (const Text text : c.text) {
    std::fprintf(stderr, text.data() ? "; text" : "; null");
    for (const char16_t unit : text) std::fprintf(stderr, " %x", unsigned(unit));
  }
  std::fprintf(stderr, "\n");
  return 1;
}

}  // namespace trust

#endif
