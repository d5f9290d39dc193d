#include "support/table.h"

TWIN_SUITE(Replace);

TYPED_TEST(Replace, WritesTheResultAndTellsItsLength) {
  each_row<TypeParam, Text, Text, Text, int32_t, Text>(
      {
          {nullptr, u"-", u"+", 0, nullptr},
          {u""_u, nullptr, u""_u, 0, nullptr},
          {u"a", u"", u"+", 0, nullptr},
          {u"a", u"-", nullptr, 0, nullptr},
          {u"", u"-", u"+", 0, u""},
          {u"-a--b", u"-", u"XY", 8, u"XYaXYXYb"},
          {u"abab", u"ab", u"", 0, u""},
          {u"abab", u"abc", u"x", 4, u"abab"},
          {u"aaaaa", u"aa", u"b", 3, u"bba"},
          {u"aa", u"a", u"aa", 4, u"aaaa"},
          {u"\x80\xFF\x80", u"\xFF", u"\x01", 3, u"\x80\x01\x80"},
          {u"\x100\x200\x100", u"\x200", u"\x300\xFFFF", 4, u"\x100\x300\xFFFF\x100"},
      },
      [](const Text& text, const Text& part, const Text& substitute, int32_t length, const Text& after) {
        Source<TypeParam> source(text), pattern(part), replacement(substitute);
        Destination<TypeParam> destination(after);
        EXPECT_EQ(Op<TypeParam>::replace(source, pattern, replacement, nullptr), length);
        EXPECT_EQ(Op<TypeParam>::replace(source, pattern, replacement, destination), length);
      });
}

TYPED_TEST(Replace, ShrinksInPlace) {
  each_row<TypeParam, Text, Text, Text, int32_t, Text>(
      {
          {u"a--b--cd", u"--", u"+", 6, u"a+b+cd\0d"},
          {u"--", u"--", u"", 0, u"\0-"},
          {u"abc", u"x", u"yy", 3, nullptr},
      },
      [](const Text& text, const Text& part, const Text& substitute, int32_t length, const Text& after) {
        Destination<TypeParam> string(text, after);
        Source<TypeParam> pattern(part), replacement(substitute);
        EXPECT_EQ(Op<TypeParam>::replace(string, pattern, replacement, string), length);
      });
}
