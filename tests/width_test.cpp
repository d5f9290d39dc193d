#include "support/table.h"

// A source without a terminator shows that nothing after a piece that does not fit is read.
TEST(Escape, WritesPrintableAsciiInWholePieces) {
  const auto row = rows<quvex_wide>([](Text text, int32_t size, Text after) {
    Guarded<quvex_wide> source(text);
    Guarded<quvex_narrow> destination(fresh, after);
    EXPECT_EQ(Wide::escape(source, destination, size), destination);
    EXPECT_EQ(*Wide::escape(source, nullptr, size), 0);
    EXPECT_EQ(Wide::escape(source, nullptr, size), Wide::escape(nullptr, nullptr, 0));
  });
  row(nullptr, 40, u"");
  row(u"A"_u, 1, u"");
  row(u"\x1F ~\x7F", greatest, u"&(0x1f) ~&(0x7f)");
  row(u"\x1\x80\x141\xFFFF", 40, u"&(0x1)&(0x80)&(0x141)&(0xffff)");
  row(u"A\x4E2D"_u, 10, u"A");
  row(u"A\x4E2D", 11, u"A&(0x4e2d)");
}

TEST(Widen, KeepsTheNumberOfEachUnitWithinASize) {
  const auto row = rows<quvex_narrow>([](Text text, int32_t size, Text after) {
    Guarded<quvex_narrow> source(text);
    Guarded<quvex_wide> destination(fresh, after);
    EXPECT_EQ(Wide::widen(source, destination, size), destination);
    EXPECT_EQ(Wide::widen(source, nullptr, size), nullptr);
  });
  row(nullptr, 9, u"");
  row(u""_u, 0, u"");
  row(u"", 4, u"");
  row(u"abc"_u, 3, u"ab");
  row(u"\x80\xFF", greatest, u"\x80\xFF");
}

TEST(CopyUnits, TakesExactlyACountZerosIncluded) {
  const auto row = rows<quvex_wide>([](Text units, int32_t count, Text after) {
    Guarded<quvex_wide> source(units), copied(fresh, after);
    Wide::copy_units(source, copied, count);
    if (!fits<quvex_narrow>(units)) return;
    Guarded<quvex_narrow> narrow(units);
    Guarded<quvex_wide> widened(fresh, after);
    Wide::widen_units(narrow, widened, count);
  });
  row(nullptr, 3, nullptr);
  row(u""_u, -1, nullptr);
  row(u"a\0\xFF"_u, 3, u"a\0\xFF"_u);
  row(u"\x100\0\xFFFF"_u, 3, u"\x100\0\xFFFF"_u);
}

// On one side an odd number of units begins at a multiple of 4, on the other it does not.
TEST(CopyUnits, RunsForwardThroughAnOverlap) {
  const auto row = rows<quvex_wide>([](Text before, int from, int to, int32_t count, Text after) {
    Guarded<quvex_wide> buffer(before, after);
    Wide::copy_units(buffer + from, buffer + to, count);
  });
  row(u"123456789"_u, 0, 2, 7, u"121212121"_u);
  row(u"123456789"_u, 0, 3, 6, u"123123123"_u);
  row(u"0123456789abcdefgh"_u, 0, 6, 12, u"012345012345012345"_u);
  row(u"0123456789abcdef"_u, 9, 0, 7, u"9abcdef789abcdef"_u);
  row(u"9123456"_u, 1, 0, 5, u"1234556"_u);
  row(u"981234567"_u, 2, 0, 6, u"123456567"_u);
}
