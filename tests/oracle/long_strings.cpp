// Strings of more units than 16 bits can count, in every part that a string plays in a call.
#include <vector>

#include "families.h"

namespace oracle {
namespace {

constexpr int length = room - 0x7D;  // No unrolled loop comes out even.
static_assert(length > 0xFFFF, "to be built with -DORACLE_ROOM=0x10080, or 0x28080 for more than 17 bits");

// One unit short of a string's end, just past it, and beyond any.
std::vector<int32_t> numbers(Numbers kind, const Call& c, Text alphabet) {
  if (kind == none) return {0};
  if (kind == any) return {alphabet.front(), alphabet.back()};
  const auto end = int32_t(c.text[first].size() + (kind == size ? c.text[second].size() : 0));
  return {end - 1, end + 1, INT32_MAX};
}

// Whether two long strings take a time in proportion: a plain search through the one for the other may not.
bool are_quick(Op op, Text a, Text b) {
  if (operation(op).extra == the_same_twice || a.size() < length || b.size() < length) return true;
  return a == b || (a.find_first_not_of(a[0]) == Text::npos && b.back() != a[0]);
}

void each_call_of_long_strings(const Family& family, bool wide) {
  const std::u16string alphabet = alphabet_of(family, wide);
  std::vector<std::u16string> texts = {{alphabet.front()}, {alphabet.back()}};
  if (family.longest[second] == unused) texts.emplace_back(length, alphabet.back());
  each_run(alphabet, length, [&](Text text) { texts.emplace_back(text); });
  const auto each = [&](int slot, auto visit) {
    if (family.longest[slot] == unused) return visit(Text());
    for (const std::u16string& text : texts) visit(Text(text));
  };
  each(first, [&](Text a) {
    each(second, [&](Text b) {
      each(third, [&](Text r) {
        Call c{family.op, wide, {a, b, r}, {}, {1, 2, 1, 3}, 0, 0, 0};
        if (a.size() + b.size() + r.size() < length || !are_quick(family.op, a, b)) return;
        for (const int32_t n : numbers(family.n, c, alphabet)) {
          for (const int32_t m : numbers(family.m, c, alphabet)) {
            c.n = n;
            c.m = m;
            attempt(c);
          }
        }
      });
    });
  });
}

}  // namespace
}  // namespace oracle

int main() {
  for (const oracle::Family& family : oracle::families) {
    for (const bool wide : {false, true}) oracle::each_call_of_long_strings(family, wide);
  }
  return oracle::report("cases", oracle::length);
}
