#include "quvex_line.h"

#include "support/table.h"

TWIN_SUITE(Line);

TYPED_TEST(Line, ReadsAnIntegerOrSaysThatThereIsNone) {
  const auto row = rows<TypeParam>([](Text text, int32_t low, int32_t high, int32_t value, int32_t length) {
    Guarded<TypeParam> string(text);
    const quvex::integer number = quvex::read_integer(static_cast<TypeParam*>(string), low, high);
    EXPECT_EQ(number.value, value);
    EXPECT_EQ(number.length, length);
  });
  row(nullptr, least, greatest, 0, 0);
  row(u"", least, greatest, 0, 0);
  row(u"-", least, greatest, 0, 0);
  row(u"+1", least, greatest, 0, 0);
  row(u" 1", least, greatest, 0, 0);
  row(u"--1", least, greatest, 0, 0);
  row(u"0", least, greatest, 0, 1);
  row(u"-0012:", least, greatest, -12, 5);
  row(u"12/", least, greatest, 12, 2);
  row(u"1a", least, greatest, 1, 1);
  row(u"1\x130", least, greatest, 1, 1);
  row(u"2147483647", least, greatest, greatest, 10);
  row(u"2147483648", least, greatest, 0, 0);
  row(u"-2147483648", least, greatest, least, 11);
  row(u"-2147483649", least, greatest, 0, 0);
  row(u"42949672960", least, greatest, 0, 0);
  row(u"5", 5, 7, 5, 1);
  row(u"7", 5, 7, 7, 1);
  row(u"4", 5, 7, 0, 0);
  row(u"8", 5, 7, 0, 0);
  row(u"-1", 0, 7, 0, 0);
}

TYPED_TEST(Line, ReadsHexadecimalWithOrWithoutItsPrefix) {
  const auto row = rows<TypeParam>([](Text text, uint32_t most, uint32_t value, int32_t length) {
    Guarded<TypeParam> string(text);
    const quvex::hexadecimal number = quvex::read_hexadecimal(static_cast<TypeParam*>(string), most);
    EXPECT_EQ(number.value, value);
    EXPECT_EQ(number.length, length);
  });
  row(nullptr, UINT32_MAX, 0, 0);
  row(u"", UINT32_MAX, 0, 0);
  row(u"0", UINT32_MAX, 0, 1);
  row(u"0x", UINT32_MAX, 0, 0);
  row(u"0xg", UINT32_MAX, 0, 0);
  row(u"-1", UINT32_MAX, 0, 0);
  row(u"0X0fF@", UINT32_MAX, 0xff, 5);
  row(u"aAg", UINT32_MAX, 0xaa, 2);
  row(u"9:", UINT32_MAX, 9, 1);
  row(u"f`", UINT32_MAX, 15, 1);
  row(u"0xffffffff", UINT32_MAX, 0xffffffff, 10);
  row(u"100000000", UINT32_MAX, 0, 0);
  row(u"80", 0x7f, 0, 0);
  row(u"7f", 0x7f, 0x7f, 2);
  row(u"b", 10, 0, 0);
}

TYPED_TEST(Line, KeepsEmptyAndQuotedFields) {
  const auto row = rows<TypeParam>([](Text text, Text delimiters, Text fields) {
    Guarded<TypeParam> set(delimiters);
    std::basic_string<TypeParam> line(text.units.begin(), text.units.end()), joined;
    for (TypeParam* field : quvex::fields(line.data(), static_cast<TypeParam*>(set))) {
      joined += '|';
      joined += field;
    }
    EXPECT_EQ(std::u16string(joined.begin(), joined.end()) + u'\0', fields.units);
  });
  row(u"", u",", u"|");
  row(u"a", u",", u"|a");
  row(u",a,,b,", u",", u"||a||b|");
  row(u"a;b,c", u",;", u"|a|b|c");
  row(u"\"a,b\",\"\",c", u",", u"|a,b||c");
  row(u"x\"a,b\"y,c", u",", u"|xa,by|c");
  row(u"\"say \"\"no\"\"\",\"\"\"\"", u",", u"|say \"no\"|\"");
  row(u"a,\"b,c", u",", u"|a|b,c");
  row(u"a,b", u"", u"|a,b");
  row(u"\x100,\x122,\x100", u"\x122", u"|\x100,|,\x100");
}

TYPED_TEST(Line, FieldsEndAndStayEnded) {
  TypeParam line[] = {'a', ',', 0};
  uint32_t cursor = 0;
  const TypeParam set[] = {',', 0};
  EXPECT_EQ(quvex::next_field(line, &cursor, set), line);
  EXPECT_EQ(quvex::next_field(line, &cursor, set), line + 2);
  EXPECT_EQ(quvex::next_field(line, &cursor, set), nullptr);
  EXPECT_EQ(quvex::next_field(line, &cursor, set), nullptr);
  cursor = 0;
  TypeParam* nothing = nullptr;
  EXPECT_EQ(quvex::next_field(nothing, &cursor, set), nullptr);
  EXPECT_EQ(quvex::next_field(line, nullptr, set), nullptr);
  EXPECT_EQ(quvex::next_field(line, &cursor, nothing), nullptr);
}

TYPED_TEST(Line, TextIsCutBetweenCharactersAndKnows) {
  const auto row = rows<TypeParam>([](Text first, Text second, Text whole, bool is_cut) {
    Guarded<TypeParam> one(first), two(second);
    quvex::text<6, TypeParam> text;
    text.add(static_cast<TypeParam*>(one)).add(static_cast<TypeParam*>(two));
    EXPECT_EQ(std::u16string(text.c_str(), text.c_str() + text.length() + 1), whole.units);
    EXPECT_EQ(text.is_cut(), is_cut);
  });
  row(u"", u"", u"", false);
  row(u"ab", u"cde", u"abcde", false);
  row(u"ab", u"cdef", u"abcde", true);
  row(u"abcdef", u"", u"abcde", true);
  row(u"abcde", nullptr, u"abcde", false);
  row(u"abcdefg", u"h", u"abcde", true);
  row(u"abcd", u"ef", u"abcde", true);
  if (sizeof(TypeParam) == 1) {
    row(u"abcd", u"\xc3\xbc", u"abcd", true);
    row(u"abc", u"\xc3\xbc", u"abc\xc3\xbc", false);
    row(u"abc", u"\xe2\x82\xac!", u"abc", true);
    row(u"ab", u"\xc3\xbc\xc3\xbc", u"ab\xc3\xbc", true);
  }
  row(u"abcd", u"\xd83d\xdd0b", u"abcd", true);
  row(u"abc", u"\xd83d\xdd0b!", u"abc\xd83d\xdd0b", true);
}

TYPED_TEST(Line, TextTakesIntegersWholeOrNotAtAll) {
  const auto row = rows<TypeParam>([](int32_t value, int32_t radix, Text whole, bool is_cut) {
    quvex::text<6, TypeParam> text;
    text.add_character('=').add_integer(value, radix).add_character('x');
    EXPECT_EQ(std::u16string(text.c_str(), text.c_str() + text.length() + 1), whole.units);
    EXPECT_EQ(text.is_cut(), is_cut);
    text.clear();
    EXPECT_EQ(text.add_integer(7).length(), 1);
  });
  row(-12, 10, u"=-12x", false);
  row(1234, 10, u"=1234", true);
  row(12345, 10, u"=", true);
  row(0xbeef, 16, u"=beef", true);
}

TYPED_TEST(Line, TextBehindAPointerStaysWithinItsSize) {
  const TypeParam string[] = {'a', 'b', 0};
  for (int32_t size = -1; size <= 2; ++size) {
    Guarded<TypeParam> units(fresh, size < 1 ? u"#"_u : size == 1 ? u"\0"_u : u"a\0"_u);
    auto text = quvex::detail::twin<TypeParam, quvex_text_at_narrow, quvex_text_at_wide>(units, size);
    quvex::detail::twin<TypeParam, quvex_add_narrow, quvex_add_wide>(&text, string);
    EXPECT_EQ(text.is_cut, 1);
  }
}
