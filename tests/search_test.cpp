#include "support/table.h"

TWIN_SUITE(Search);

TYPED_TEST(Search, FindsTheFirstUnitOfAWholeValue) {
  each_row<TypeParam, Text, int32_t, int>(
      {
          {u"", 0, -1},
          {u"xaba"_u, 'a', 1},
          {u"A", 65 + 65536, -1},
          {u"\xFF", -1, -1},
          {u"\x100\xFFFF"_u, 65535, 1},
      },
      [](const Text& text, int32_t character, int index) {
        Guarded<TypeParam> string(text);
        EXPECT_EQ(string.index_of(Op<TypeParam>::find_character(string, character)), index);
      });
}

TYPED_TEST(Search, FindsTheLeftmostOccurrence) {
  each_row<TypeParam, Text, Text, int, int>(
      {
          {nullptr, u""_u, -1, -1},
          {u""_u, nullptr, -1, -1},
          {u"", u""_u, -1, -1},
          {u"abc"_u, u"", 0, 0},
          {u"aaabab"_u, u"aab", 1, 1},
          {u"xxab", u"abc"_u, -1, -1},
          {u"x[AbZ", u"{aBz", -1, -1},
          {u"xAbZ", u"aBz", -1, 1},
          {u"\x141\x100\x161\x200", u"\x161\x200", 2, 2},
          {std::u16string(300, u'x') + u"y", u"y", 300, 300},
      },
      [](const Text& text, const Text& part, int index, int folded_index) {
        Guarded<TypeParam> haystack(text), needle(part);
        EXPECT_EQ(haystack.index_of(Op<TypeParam>::find(haystack, needle)), index);
        EXPECT_EQ(haystack.index_of(Op<TypeParam>::find_folded(haystack, needle)), folded_index);
      });
}
