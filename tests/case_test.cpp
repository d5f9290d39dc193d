#include "support/table.h"

TWIN_SUITE(Case);

TYPED_TEST(Case, MapsTheLettersOfTheOtherCase) {
  each_row<TypeParam, Text, Text, Text>(
      {
          {u"@AMZ[ `amz{", u"@amz[ `amz{", u"@AMZ[ `AMZ{"},
          {u"A\x80\xC1\xE1z", u"a\x80\xC1\xE1z", u"A\x80\xC1\xE1Z"},
          {u"A\x100\x141\x161z", u"a\x100\x141\x161z", u"A\x100\x141\x161Z"},
      },
      [](const Text& string, const Text& lower, const Text& upper) {
        Destination<TypeParam> lowered(string, lower), raised(string, upper);
        Op<TypeParam>::to_lower(lowered);
        Op<TypeParam>::to_upper(raised);
      });
}

TYPED_TEST(Case, StoresNothingWhereNothingChanges) {
  each_row<TypeParam, Text, Text>({{nullptr, nullptr}, {u"", u""}, {u"@[`{ az", u"@[`{ AZ"}},
                                  [](const Text& lower, const Text& upper) {
                                    Destination<TypeParam> lowered(lower, nullptr), raised(upper, nullptr);
                                    Op<TypeParam>::to_lower(lowered);
                                    Op<TypeParam>::to_upper(raised);
                                  });
}

TEST(CaseOfACharacter, TestsTheWholeValue) {
  for (int32_t letter : {0, 12, 25}) {
    EXPECT_EQ(character_to_lower('A' + letter), 'a' + letter);
    EXPECT_EQ(character_to_upper('a' + letter), 'A' + letter);
  }
  const int32_t others[] = {0, 64, 91, 96, 123, 193, 225, 321, 353, 65601, 65633, -1, -191, -159, greatest, least};
  for (int32_t other : others) {
    EXPECT_EQ(character_to_lower(other), other);
    EXPECT_EQ(character_to_upper(other), other);
  }
  EXPECT_EQ(character_to_lower('z'), 'z');
  EXPECT_EQ(character_to_upper('Z'), 'Z');
}
