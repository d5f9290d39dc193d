#include "support/table.h"

TWIN_SUITE(Tokenize);

// `rest` is the string from the cursor on: what lies before it is not accessible.
TYPED_TEST(Tokenize, ReturnsTheNextTokenAndMovesTheCursor) {
  const auto row =
      rows<TypeParam>([](Text rest, uint32_t cursor, Text delimiters, int token, uint32_t next, Text after) {
        Guarded<TypeParam> string(rest, after), set(delimiters);
        EXPECT_EQ(string.index_of(Op<TypeParam>::next_token(string - cursor, &cursor, set)), token);
        EXPECT_EQ(cursor, next);
        EXPECT_EQ(Op<TypeParam>::next_token(string, nullptr, set), nullptr);
      });
  row(nullptr, 0, u""_u, -1, 0, nullptr);
  row(u",x,"_u, 0, u",", 1, 3, u",x\0"_u);
  row(u",,", 5, u",", -1, 7, nullptr);
  row(u"A1j2a3"_u, 0, u"0a23456789jkl", 0, 3,
      u"A1\0"
      u"2a3"_u);
  row(u"-b="_u, 5, u"==--", 1, 8, u"-b\0"_u);
  row(u"bc", 70000, u"", 0, 70002, nullptr);
  row(u",\x100\x12C\x22C"_u, 0, u"\x200\x22C,", 1, 4, u",\x100\x12C\0"_u);
}

TYPED_TEST(Tokenize, StoresEveryTokenOfASplit) {
  const auto row = rows<TypeParam>([](Text text, Text delimiters, std::vector<int> tokens, Text after) {
    Guarded<TypeParam> string(text, after), set(delimiters);
    TypeParam other;
    std::vector<TypeParam*> array(tokens.size() + 1, &other);
    ASSERT_EQ(Op<TypeParam>::split(string, set, array.data()), static_cast<int32_t>(tokens.size()));
    for (std::size_t i = 0; i < tokens.size(); ++i) EXPECT_EQ(string.index_of(array[i]), tokens[i]);
    EXPECT_EQ(array.back(), &other);
    EXPECT_EQ(Op<TypeParam>::split(string, set, nullptr), 0);
  });
  row(u""_u, nullptr, {}, nullptr);
  row(u"abc", u"", {0}, nullptr);
  row(u" ab  cd e ", u" ", {1, 5, 8}, u" ab\0 cd\0e\0");
  row(u"a\x12C,\x22C", u"\x22C,", {0}, u"a\x12C\0\x22C");
}
