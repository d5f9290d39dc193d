#include "support/table.h"

TWIN_SUITE(Append);

TYPED_TEST(Append, FollowsTheTextWithinASize) {
  const auto row = rows<TypeParam>([](Text before, int32_t size, Text text, Text after) {
    Guarded<TypeParam> source(text), string(before, after);
    if (size < greatest) return Op<TypeParam>::append_bounded(string, size, source);
    Op<TypeParam>::append(string, source);
  });
  row(nullptr, greatest, u""_u, nullptr);
  row(u""_u, greatest, nullptr, nullptr);
  row(u"abc", 3, u""_u, nullptr);
  row(u"ab", 3, u""_u, nullptr);
  row(u"ab", 4, u"cd"_u, u"abc");
  row(u"ab", 9, u"0123456789"_u, u"ab012345");
  row(u"ab", greatest - 1, u"", u"ab");
  row(u"a\x100", greatest, u"\x200\xFFFF", u"a\x100\x200\xFFFF");
}

TEST(AppendCounted, FollowsTheTextWithinACountAndASize) {
  const auto row = rows<quvex_wide>([](Text before, int32_t size, Text text, int32_t count, Text after) {
    Guarded<quvex_wide> source(text), string(before, after);
    if (size < greatest) return Wide::append_bounded_counted(string, size, source, count);
    Wide::append_counted(string, source, count);
  });
  row(u"ab", greatest, u""_u, 0, u"ab");
  row(u"ab", greatest, u"cd"_u, 1, u"abc");
  row(u"ab", 3, u""_u, 1, nullptr);
  row(u"ab", 4, u"cd"_u, 9, u"abc");
  row(u"ab", 9, u"cde"_u, 2, u"abcd");
  row(nullptr, 9, u""_u, 1, nullptr);
  row(u""_u, 9, nullptr, 1, nullptr);
  row(u"ab", 9, u""_u, least, u"ab");
  row(u"ab", greatest, u"cde", 9, u"abcde");
}
