#include "support/table.h"

TWIN_SUITE(Replace);

TYPED_TEST(Replace, WritesTheResultAndTellsItsLength) {
  each_row<TypeParam, Text, Text, Text, int32_t, Text>(
      {
          {u""_u, nullptr, u""_u, 0, nullptr},
          {u"a", u"", u"+", 0, nullptr},
          {u"-a--b", u"-", u"XY", 8, u"XYaXYXYb"},
          {u"aaaaa", u"aa", u"b", 3, u"bba"},
          {u"\x100\x200\x100", u"\x200", u"\x300\xFFFF", 4, u"\x100\x300\xFFFF\x100"},
      },
      [](const Text& text, const Text& part, const Text& substitute, int32_t length, const Text& after) {
        Guarded<TypeParam> source(text), pattern(part), replacement(substitute), destination(fresh, after);
        EXPECT_EQ(Op<TypeParam>::replace(source, pattern, replacement, nullptr), length);
        EXPECT_EQ(Op<TypeParam>::replace(source, pattern, replacement, destination), length);
      });
}

TYPED_TEST(Replace, ShrinksInPlace) {
  each_row<TypeParam, Text, Text, Text, int32_t, Text>(
      {
          {u"a--b--cd", u"--", u"+", 6, u"a+b+cd\0d"},
          {u"abc", u"x", u"yy", 3, nullptr},
      },
      [](const Text& text, const Text& part, const Text& substitute, int32_t length, const Text& after) {
        Guarded<TypeParam> string(text, after), pattern(part), replacement(substitute);
        EXPECT_EQ(Op<TypeParam>::replace(string, pattern, replacement, string), length);
      });
}
