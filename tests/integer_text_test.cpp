#include "support/table.h"

TWIN_SUITE(IntegerText);

TYPED_TEST(IntegerText, WritesDigitsInAnyRadix) {
  each_row<TypeParam, int32_t, int32_t, Text>(
      {
          {7, 0, u""},
          {7, 1, u""},
          {0, 1, u"0"},
          {least, 10, u"-2147483648"},
          {least, 2, u"-1" + std::u16string(31, u'0')},
          {35 * 36 + 9, 36, u"z9"},
          {0x1234, greatest, sizeof(TypeParam) == 1 ? Text(u"\x8B") : Text(u"\x128B")},
      },
      [](int32_t value, int32_t radix, const Text& after) {
        Guarded<TypeParam> destination(fresh, after);
        EXPECT_EQ(destination.index_of(Op<TypeParam>::to_text(value, destination, radix)), 0);
        EXPECT_EQ(Op<TypeParam>::to_text(value, nullptr, radix), nullptr);
      });
}

// A source without a terminator shows where the reading ends.
TYPED_TEST(IntegerText, ReadsDecimalText) {
  each_row<TypeParam, Text, int32_t>(
      {
          {nullptr, 0},
          {u"\t -45x"_u, -45},
          {u"90/"_u, 90},
          {u"--"_u, 0},
          {u"+"_u, 0},
          {u"\n1", 0},
          {u"-2147483649", greatest},
          {u"99999999999", 1215752191},
          {u"5\x135"_u, 5},
          {u"\x120"_u, 0},
      },
      [](const Text& text, int32_t value) {
        Guarded<TypeParam> source(text);
        EXPECT_EQ(Op<TypeParam>::to_integer(source), value);
      });
}
