#include "support/table.h"

TWIN_SUITE(Search);

TYPED_TEST(Search, FindsTheFirstUnitOfAWholeValue) {
  each_row<TypeParam, Text, int32_t, int>(
      {
          {nullptr, 'a', -1},
          {u"", 0, -1},
          {u"xaba", 'a', 1},
          {u"A", 65 + 65536, -1},
          {u"x\xFF", 255, 1},
          {u"\xFF", -1, -1},
          {u"\x100\xFFFF", 65535, 1},
          {u"\xFFFF", -1, -1},
      },
      [](const Text& text, int32_t character, int index) {
        Source<TypeParam> string(text);
        EXPECT_EQ(string.index_of(Op<TypeParam>::find_character(string, character)), index);
      });
}

TYPED_TEST(Search, FindsTheLeftmostOccurrence) {
  each_row<TypeParam, Text, Text, int, int>(
      {
          {nullptr, u""_u, -1, -1},
          {u""_u, nullptr, -1, -1},
          {u"", u""_u, -1, -1},
          {u"abc", u"", 0, 0},
          {u"aaabab", u"aab", 1, 1},
          {u"xxab", u"abc", -1, -1},
          {u"abcx", u"abd", -1, -1},
          {u"xAbZ", u"aBz", -1, 1},
          {u"@[`{", u"`", 2, 2},
          {u"@[`{", u"{", 3, 3},
          {u"\xC0\xE0", u"\xE0", 1, 1},
          {u"\x100\x141\x200y\x100\x161\x200z\x100\x161\x200y", u"\x100\x161\x200y", 8, 8},
          {u"\x141", u"a", -1, -1},
          {std::u16string(300, u'x') + u"y", u"y", 300, 300},
      },
      [](const Text& text, const Text& part, int index, int folded_index) {
        Source<TypeParam> haystack(text), needle(part);
        EXPECT_EQ(haystack.index_of(Op<TypeParam>::find(haystack, needle)), index);
        EXPECT_EQ(haystack.index_of(Op<TypeParam>::find_folded(haystack, needle)), folded_index);
      });
}
