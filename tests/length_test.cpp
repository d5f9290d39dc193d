#include "support/table.h"

TWIN_SUITE(Length);

TYPED_TEST(Length, CountsUnitsBeforeTheTerminator) {
  const auto row = rows<TypeParam>([](Text text, int32_t length) {
    Guarded<TypeParam> string(text);
    EXPECT_EQ(Op<TypeParam>::length(string), length);
  });
  row(nullptr, 0);
  row(u"\xFF\x80\x7F", 3);
  row(u"A\x100\xFFFF\x8000", 4);
  row(std::u16string(300, u'x'), 300);
}
