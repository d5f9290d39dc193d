#include "support/table.h"

TWIN_SUITE(Search);

TYPED_TEST(Search, FindsTheFirstUnitOfAWholeValue) {
  const auto row = rows<TypeParam>([](Text text, int32_t character, int index) {
    Guarded<TypeParam> string(text);
    EXPECT_EQ(string.index_of(Op<TypeParam>::find_character(string, character)), index);
  });
  row(u"", 0, -1);
  row(u"xaba"_u, 'a', 1);
  row(u"A", 65 + 65536, -1);
  row(u"\xFF", -1, -1);
  row(u"\x100\xFFFF"_u, 65535, 1);
}

TYPED_TEST(Search, FindsTheLeftmostOccurrence) {
  const auto row = rows<TypeParam>([](Text text, Text part, int index, int folded_index) {
    Guarded<TypeParam> haystack(text), needle(part);
    EXPECT_EQ(haystack.index_of(Op<TypeParam>::find(haystack, needle)), index);
    EXPECT_EQ(haystack.index_of(Op<TypeParam>::find_folded(haystack, needle)), folded_index);
  });
  row(nullptr, u""_u, -1, -1);
  row(u""_u, nullptr, -1, -1);
  row(u"", u""_u, -1, -1);
  row(u"abc"_u, u"", 0, 0);
  row(u"aaabab"_u, u"aab", 1, 1);
  row(u"xxab", u"abc"_u, -1, -1);
  row(u"x[AbZ", u"{aBz", -1, -1);
  row(u"A[", u"a{", -1, -1);
  row(u"\xC0\xE0", u"\xE0", 1, 1);
  row(u"abcdefghiabcdefghijk", u"abcdefghij", 9, 9);
  row(u"aaAaaAaaaB", u"aaab", -1, 6);
  row(u"xAbZ", u"aBz", -1, 1);
  row(u"\x141\x100\x161\x200", u"\x161\x200", 2, 2);
  row(std::u16string(300, u'x') + u"y", u"y", 300, 300);
}
