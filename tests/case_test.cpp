#include "support/table.h"

TWIN_SUITE(Case);

// Null: nothing changes, and nothing is stored, not even the value that is there already.
TYPED_TEST(Case, MapsTheLettersOfTheOtherCase) {
  const auto row = rows<TypeParam>([](Text string, Text lower, Text upper) {
    Guarded<TypeParam> lowered(string, lower), raised(string, upper);
    Op<TypeParam>::to_lower(lowered);
    Op<TypeParam>::to_upper(raised);
  });
  row(nullptr, nullptr, nullptr);
  row(u"A", u"a", nullptr);
  row(u"1Z", u"1z", nullptr);
  row(u"12z", nullptr, u"12Z");
  row(u"@[`{ AZ\xC1", u"@[`{ az\xC1", nullptr);
  row(u"@[`{ az\xE1", nullptr, u"@[`{ AZ\xE1");
  row(u"A\x141\x161z", u"a\x141\x161z", u"A\x141\x161Z");
}

TEST(CaseOfACharacter, TestsTheWholeValue) {
  EXPECT_EQ(Wide::character_to_lower('Z'), 'z');
  EXPECT_EQ(Wide::character_to_upper('a'), 'A');
  for (int32_t other : {64, 193, 65601, -191, -1}) EXPECT_EQ(Wide::character_to_lower(other), other);
  for (int32_t other : {123, 225, 65633, -159, -1}) EXPECT_EQ(Wide::character_to_upper(other), other);
}
