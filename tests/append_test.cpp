#include "support/table.h"

TWIN_SUITE(Append);

// A greatest size or count is none: an operation without that bound does the same.
TYPED_TEST(Append, FollowsTheTextWithinASizeAndACount) {
  each_row<TypeParam, Text, int32_t, Text, int32_t, Text>(
      {
          {nullptr, greatest, u""_u, greatest, nullptr},
          {u""_u, greatest, nullptr, greatest, nullptr},
          {u"ab", greatest, u"cd", greatest, u"abcd"},
          {u"", greatest, u"cd", greatest, u"cd"},
          {u"ab", least, u""_u, greatest, nullptr},
          {u"ab", -1, u""_u, greatest, nullptr},
          {u"ab", 0, u""_u, greatest, nullptr},
          {u"abcd", 3, u""_u, greatest, nullptr},
          {u"ab", 3, u""_u, greatest, nullptr},
          {u"ab", 4, u"cd"_u, greatest, u"abc"},
          {u"ab", 5, u"cd", greatest, u"abcd"},
          {u"ab", greatest, u""_u, least, u"ab"},
          {u"ab", greatest, u""_u, -1, u"ab"},
          {u"ab", greatest, u""_u, 0, u"ab"},
          {u"ab", greatest, u"cd"_u, 1, u"abc"},
          {u"ab", 9, u"cd", 2, u"abcd"},
          {u"a\x100", greatest, u"\x200\xFFFF", greatest, u"a\x100\x200\xFFFF"},
      },
      [](const Text& before, int32_t size, const Text& text, int32_t count, const Text& after) {
        Source<TypeParam> source(text);
        if (count == greatest) {
          Destination<TypeParam> sized(before, after);
          Op<TypeParam>::append_bounded(sized, size, source);
        }
        if (count == greatest && size == greatest) {
          Destination<TypeParam> whole(before, after);
          Op<TypeParam>::append(whole, source);
        }
        if constexpr (sizeof(TypeParam) == sizeof(quvex_wide)) {
          Destination<quvex_wide> both(before, after);
          append_bounded_counted(both, size, source, count);
          if (size < greatest) return;
          Destination<quvex_wide> counted(before, after);
          append_counted(counted, source, count);
        }
      });
}
