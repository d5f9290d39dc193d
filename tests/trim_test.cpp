#include "support/table.h"

TWIN_SUITE(Trim);

// What lies behind the new terminator is stated too: it keeps its value.
TYPED_TEST(Trim, StripsASetFromBothEnds) {
  each_row<TypeParam, Text, Text, int32_t, Text>(
      {
          {u"\t ab c  ", u" \t", 4, u"ab c\0c\0 "},
          {u"a ", u" ", 1, u"a\0"},
          {u"   ", u" ", 0, u"\0  "},
          {u" a ", nullptr, 3, u" a "},
          {u"\x120\x100 \x120", u"\x200\x120", 2, u"\x100 \0\0"},
      },
      [](const Text& text, const Text& stripped, int32_t length, const Text& after) {
        Guarded<TypeParam> string(text, after), set(stripped);
        EXPECT_EQ(Op<TypeParam>::trim(string, set), length);
      });
}
