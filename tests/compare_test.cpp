#include "support/table.h"

TWIN_SUITE(Compare);

const std::u16string run(300, u'a');

// Each row both ways round: the order turns, the place stays. The greatest count is none.
TYPED_TEST(Compare, TellsTheOrderAndThePlaceWithinACount) {
  each_row<TypeParam, Text, Text, int32_t, int32_t, int32_t>(
      {
          {u""_u, nullptr, greatest, 1, 1},
          {nullptr, nullptr, greatest, 0, 0},
          {u"ab", u"ab", greatest, 0, 0},
          {u"abc", u"ab", greatest, 3, 3},
          {u"abd"_u, u"abc"_u, greatest, 3, 3},
          {run + u"c", run + u"b", greatest, 301, 301},
          {u"Hello", u"hELLO", greatest, -1, 0},
          {u"ABD"_u, u"abc"_u, greatest, -1, 3},
          {u"_", u"A", greatest, 1, -1},
          {u"[", u"Z", greatest, 1, -1},
          {u"`", u"@", greatest, 1, 1},
          {u"{", u"[", greatest, 1, 1},
          {u"\x80"_u, u"\x7F"_u, greatest, 1, 1},
          {u"\xE0", u"\xC0", greatest, 1, 1},
          {u"\x8000"_u, u"\x7FFF"_u, greatest, 1, 1},
          {u"\u0100b"_u, u"\u0100a"_u, greatest, 2, 2},
          {u"\x161", u"\x141", greatest, 1, 1},
          {u"\x141", u"a", greatest, 1, 1},
          {u""_u, nullptr, least, 1, 1},
          {u""_u, u""_u, least, 0, 0},
          {u""_u, u""_u, -1, 0, 0},
          {u""_u, u""_u, 0, 0, 0},
          {u"b"_u, u"a"_u, 1, 1, 1},
          {u"AB"_u, u"ab"_u, 2, -1, 0},
          {u"abd"_u, u"abc"_u, 3, 3, 3},
          {run + u"c", run + u"b", 300, 0, 0},
      },
      [](const Text& one, const Text& other, int32_t count, int32_t order, int32_t folded_order) {
        Source<TypeParam> first(one), second(other);
        EXPECT_EQ(Op<TypeParam>::compare_counted(first, second, count), order);
        EXPECT_EQ(Op<TypeParam>::compare_counted(second, first, count), -order);
        EXPECT_EQ(Op<TypeParam>::compare_folded_counted(first, second, count), folded_order);
        EXPECT_EQ(Op<TypeParam>::compare_folded_counted(second, first, count), -folded_order);
        if (count < greatest) return;
        EXPECT_EQ(Op<TypeParam>::compare(first, second), order);
        EXPECT_EQ(Op<TypeParam>::compare(second, first), -order);
        EXPECT_EQ(Op<TypeParam>::compare_folded(first, second), folded_order);
        EXPECT_EQ(Op<TypeParam>::compare_folded(second, first), -folded_order);
      });
}

TYPED_TEST(Compare, ReadsNothingOfAStringAgainstItself) {
  side_under_test = Side::end;
  Source<TypeParam> string(u""_u);
  EXPECT_EQ(Op<TypeParam>::compare(string, string), 0);
  EXPECT_EQ(Op<TypeParam>::compare_folded(string, string), 0);
  EXPECT_EQ(Op<TypeParam>::compare_counted(string, string, 1), 0);
  EXPECT_EQ(Op<TypeParam>::compare_folded_counted(string, string, 1), 0);
}
