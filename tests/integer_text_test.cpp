#include "support/table.h"

TWIN_SUITE(IntegerText);

TYPED_TEST(IntegerText, WritesDigitsInAnyRadix) {
  const auto row = rows<TypeParam>([](int32_t value, int32_t radix, Text after) {
    Guarded<TypeParam> destination(fresh, after);
    EXPECT_EQ(destination.index_of(Op<TypeParam>::to_text(value, destination, radix)), 0);
    EXPECT_EQ(Op<TypeParam>::to_text(value, nullptr, radix), nullptr);
  });
  row(7, 0, u"");
  row(7, 1, u"");
  row(0, 1, u"0");
  row(least, 10, u"-2147483648");
  row(least, 2, u"-1" + std::u16string(31, u'0'));
  row(35 * 36 + 9, 36, u"z9");
  row(-70001, 70000, sizeof(TypeParam) == 1 ? Text(u"-11") : Text(u"-11"));
  row(0x1234, greatest, sizeof(TypeParam) == 1 ? Text(u"\x8B") : Text(u"\x128B"));
}

// A source without a terminator shows where the reading ends.
TYPED_TEST(IntegerText, ReadsDecimalText) {
  const auto row = rows<TypeParam>([](Text text, int32_t value) {
    Guarded<TypeParam> source(text);
    EXPECT_EQ(Op<TypeParam>::to_integer(source), value);
  });
  row(nullptr, 0);
  row(u"\t -45x"_u, -45);
  row(u"90/"_u, 90);
  row(u" +5", 0);
  row(u"- 5", 0);
  row(u"\n1", 0);
  row(u"-2147483649", greatest);
  row(u"99999999999", 1215752191);
  row(u"5\x135"_u, 5);
}
