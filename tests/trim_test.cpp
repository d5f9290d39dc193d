#include "support/table.h"

TWIN_SUITE(Trim);

// What lies after the new terminator is stated too: it keeps its value.
TYPED_TEST(Trim, StripsASetFromBothEnds) {
  const auto row = rows<TypeParam>([](Text text, Text stripped, int32_t length, Text after) {
    Guarded<TypeParam> string(text, after), set(stripped);
    EXPECT_EQ(Op<TypeParam>::trim(string, set), length);
  });
  row(u"\t ab c  ", u" \t", 4, u"ab c\0c\0 ");
  row(u"   ", u" ", 0, u"\0  ");
  row(u" a ", nullptr, 3, u" a ");
  row(u"jaA", u"bcdefghijka", 1, u"A\0A");
  row(u"", u" ", 0, u"");
  row(u"a", u"", 1, u"a");
  row(u"\x120\x100 \x120", u"\x200\x120", 2, u"\x100 \0\0");
}
