#include "support/table.h"

TWIN_SUITE(Length);

TYPED_TEST(Length, CountsUnitsBeforeTheTerminator) {
  each_row<TypeParam, Text, int32_t>(
      {
          {nullptr, 0},
          {u"\xFF\x80\x7F", 3},
          {u"A\x100\xFFFF\x8000", 4},
          {std::u16string(300, u'x'), 300},
      },
      [](const Text& text, int32_t length) {
        Guarded<TypeParam> string(text);
        EXPECT_EQ(Op<TypeParam>::length(string), length);
      });
}
