#include "support/table.h"

TWIN_SUITE(IntegerText);

TYPED_TEST(IntegerText, WritesDigitsInAnyRadix) {
  each_row<TypeParam, int32_t, int32_t, Text>(
      {
          {7, least, u""},
          {7, 0, u""},
          {7, 1, u""},
          {0, 1, u"0"},
          {greatest, 10, u"2147483647"},
          {least, 10, u"-2147483648"},
          {-0xFACE, 16, u"-face"},
          {least, 2, u"-1" + std::u16string(31, u'0')},
          {35 * 36 + 9, 36, u"z9"},
          {-36, 37, u"-{"},
          {-5, greatest, u"-5"},
          {0x1234, greatest, sizeof(TypeParam) == 1 ? Text(u"\x8B") : Text(u"\x128B")},
      },
      [](int32_t value, int32_t radix, const Text& after) {
        Destination<TypeParam> destination(after);
        EXPECT_EQ(Op<TypeParam>::to_text(value, destination, radix), destination.data());
        EXPECT_EQ(Op<TypeParam>::to_text(value, nullptr, radix), nullptr);
      });
}

// A source without a terminator shows where the reading ends.
TYPED_TEST(IntegerText, ReadsDecimalText) {
  each_row<TypeParam, Text, int32_t>(
      {
          {nullptr, 0},
          {u"", 0},
          {u"\t -45x"_u, -45},
          {u" \t07 "_u, 7},
          {u"90/"_u, 90},
          {u"90:"_u, 90},
          {u"--"_u, 0},
          {u"- "_u, 0},
          {u"+"_u, 0},
          {u"\n"_u, 0},
          {u"-2147483648", least},
          {u"-2147483649", greatest},
          {u"99999999999", 1215752191},
          {u"\x120"_u, 0},
          {u"\x109"_u, 0},
          {u"\x12D"_u, 0},
          {u"5\x135"_u, 5},
      },
      [](const Text& text, int32_t value) {
        Source<TypeParam> source(text);
        EXPECT_EQ(Op<TypeParam>::to_integer(source), value);
      });
}
