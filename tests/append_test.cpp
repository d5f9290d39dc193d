#include "support/table.h"

TWIN_SUITE(Append);

// A greatest size or count is none: an operation without that bound does the same.
TYPED_TEST(Append, FollowsTheTextWithinASizeAndACount) {
  each_row<TypeParam, Text, int32_t, Text, int32_t, Text>(
      {
          {nullptr, greatest, u""_u, greatest, nullptr},
          {u""_u, greatest, nullptr, greatest, nullptr},
          {u"abc", 3, u""_u, greatest, nullptr},
          {u"ab", 3, u""_u, greatest, nullptr},
          {u"ab", 4, u"cd"_u, greatest, u"abc"},
          {u"ab", greatest, u""_u, 0, u"ab"},
          {u"ab", greatest, u"cd"_u, 1, u"abc"},
          {u"a\x100", greatest, u"\x200\xFFFF", greatest, u"a\x100\x200\xFFFF"},
      },
      [](const Text& before, int32_t size, const Text& text, int32_t count, const Text& after) {
        Guarded<TypeParam> source(text);
        if (count == greatest) {
          Guarded<TypeParam> sized(before, after);
          Op<TypeParam>::append_bounded(sized, size, source);
        }
        if (count == greatest && size == greatest) {
          Guarded<TypeParam> whole(before, after);
          Op<TypeParam>::append(whole, source);
        }
        if constexpr (sizeof(TypeParam) == sizeof(quvex_wide)) {
          Guarded<quvex_wide> both(before, after);
          Wide::append_bounded_counted(both, size, source, count);
          if (size < greatest) return;
          Guarded<quvex_wide> counted(before, after);
          Wide::append_counted(counted, source, count);
        }
      });
}
