#include "support/table.h"

TWIN_SUITE(Compare);

const std::u16string run(300, u'a');

// The greatest count acts as no bound. A string against itself is never read, readable or not.
TYPED_TEST(Compare, TellsTheOrderAndThePlaceWithinACount) {
  const auto row = rows<TypeParam>([](Text one, Text other, int32_t count, int32_t order, int32_t folded_order) {
    Guarded<TypeParam> first(one), second(other);
    EXPECT_EQ(Op<TypeParam>::compare_counted(first, second, count), order);
    EXPECT_EQ(Op<TypeParam>::compare_counted(first, first, 9), 0);
    EXPECT_EQ(Op<TypeParam>::compare_folded_counted(first, second, count), folded_order);
    EXPECT_EQ(Op<TypeParam>::compare_folded_counted(first, first, 9), 0);
    if (count < greatest) return;
    EXPECT_EQ(Op<TypeParam>::compare(first, second), order);
    EXPECT_EQ(Op<TypeParam>::compare(first, first), 0);
    EXPECT_EQ(Op<TypeParam>::compare_folded(first, second), folded_order);
    EXPECT_EQ(Op<TypeParam>::compare_folded(first, first), 0);
  });
  row(u""_u, nullptr, greatest, 1, 1);
  row(nullptr, u""_u, least, -1, -1);
  row(u"abd"_u, u"abc"_u, greatest, 3, 3);
  row(u"ab", u"abc"_u, greatest, -3, -3);
  row(run + u"b", run + u"c", greatest, -301, -301);
  for (int i = 0; i < 8; ++i) {  // in each place of an unrolled loop
    const auto same = run.substr(0, static_cast<size_t>(i));
    row(same + u"A", same + u"B", greatest, -i - 1, -i - 1);
    row(same + u"b", same + u"a", greatest, i + 1, i + 1);
  }
  row(u"_"_u, u"A"_u, greatest, 1, -1);
  row(u"\x80"_u, u"\x7F"_u, greatest, 1, 1);
  row(u"\u0100b"_u, u"\u0100a"_u, greatest, 2, 2);
  row(u"\x161"_u, u"\x141"_u, greatest, 1, 1);
  row(u"\x8000"_u, u"\x7FFF"_u, greatest, 1, 1);
  row(u"\xE0"_u, u"\xC0"_u, greatest, 1, 1);
  row(u"[Z@"_u, u"[z`"_u, greatest, -2, -3);
  row(u""_u, u""_u, 0, 0, 0);
  row(u""_u, nullptr, 0, 1, 1);
  row(u"AB"_u, u"ab"_u, 2, -1, 0);
  row(run, run + u"b", 300, 0, 0);
}
