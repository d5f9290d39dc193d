#include "support/table.h"

TWIN_SUITE(Replace);

TYPED_TEST(Replace, WritesTheResultAndTellsItsLength) {
  const auto row = rows<TypeParam>([](Text text, Text part, Text substitute, int32_t length, Text after) {
    Guarded<TypeParam> source(text), pattern(part), replacement(substitute), destination(fresh, after);
    EXPECT_EQ(Op<TypeParam>::replace(source, pattern, replacement, nullptr), length);
    EXPECT_EQ(Op<TypeParam>::replace(source, pattern, replacement, destination), length);
  });
  row(u""_u, nullptr, u""_u, 0, nullptr);
  row(nullptr, u""_u, u""_u, 0, nullptr);
  row(u""_u, u"-"_u, nullptr, 0, nullptr);
  row(u""_u, u"", u""_u, 0, nullptr);
  row(u"", u"-", u"+", 0, u"");
  row(u"Aa-ab", u"a", u"XYZ", 9, u"AXYZ-XYZb");
  row(u"-a--b", u"-", u"XY", 8, u"XYaXYXYb");
  row(u"aaaaa", u"aa", u"b", 3, u"bba");
  row(u"\x100\x200\x100", u"\x200", u"\x300\xFFFF", 4, u"\x100\x300\xFFFF\x100");
}

TYPED_TEST(Replace, ShrinksInPlace) {
  const auto row = rows<TypeParam>([](Text text, Text part, Text substitute, int32_t length, Text after) {
    Guarded<TypeParam> string(text, after), pattern(part), replacement(substitute);
    EXPECT_EQ(Op<TypeParam>::replace(string, pattern, replacement, string), length);
  });
  row(u"a--b--cd", u"--", u"+", 6, u"a+b+cd\0d");
  row(u"abc", u"x", u"yy", 3, nullptr);
}
