#include "support/table.h"

// A source without a terminator shows that nothing behind a piece that does not fit is read.
TEST(Escape, WritesPrintableAsciiInWholePieces) {
  each_row<quvex_wide, Text, int32_t, Text>(
      {
          {nullptr, 40, u""},
          {u"A"_u, 1, u""},
          {u"\x1F ~\x7F", greatest, u"&(0x1f) ~&(0x7f)"},
          {u"\x1\x9\xA\xF", 40, u"&(0x1)&(0x9)&(0xa)&(0xf)"},
          {u"\x10\x141\x1000\xFFFF", 40, u"&(0x10)&(0x141)&(0x1000)&(0xffff)"},
          {u"A\x4E2D"_u, 10, u"A"},
          {u"A\x4E2D", 11, u"A&(0x4e2d)"},
      },
      [](const Text& text, int32_t size, const Text& after) {
        Guarded<quvex_wide> source(text);
        Guarded<quvex_narrow> destination(fresh, after);
        EXPECT_EQ(Wide::escape(source, destination, size), destination);
        EXPECT_EQ(*Wide::escape(source, nullptr, size), 0);
      });
}

TEST(Widen, KeepsTheNumberOfEachUnitWithinASize) {
  each_row<quvex_narrow, Text, int32_t, Text>(
      {
          {nullptr, 9, u""},
          {u""_u, 0, u""},
          {u"a"_u, 1, u""},
          {u"abc"_u, 3, u"ab"},
          {u"\x80\xFF", greatest, u"\x80\xFF"},
      },
      [](const Text& text, int32_t size, const Text& after) {
        Guarded<quvex_narrow> source(text);
        Guarded<quvex_wide> destination(fresh, after);
        EXPECT_EQ(Wide::widen(source, destination, size), destination);
      });
}

TEST(CopyUnits, TakesExactlyACountZerosIncluded) {
  each_row<quvex_wide, Text, int32_t, Text>(
      {
          {nullptr, 3, nullptr},
          {u""_u, -1, nullptr},
          {u"a\0\xFF"_u, 3, u"a\0\xFF"_u},
          {u"\x100\0\xFFFF"_u, 3, u"\x100\0\xFFFF"_u},
      },
      [](const Text& units, int32_t count, const Text& after) {
        Guarded<quvex_wide> source(units), copied(fresh, after);
        Wide::copy_units(source, copied, count);
        if (!fits<quvex_narrow>(units)) return;
        Guarded<quvex_narrow> narrow(units);
        Guarded<quvex_wide> widened(fresh, after);
        Wide::widen_units(narrow, widened, count);
      });
}

// An odd number of units stands at an even word at one side, and at an odd one at the other.
TEST(CopyUnits, RunsForwardThroughAnOverlap) {
  each_row<quvex_wide, Text, int, int, int32_t, Text>(
      {
          {u"1234567"_u, 0, 1, 5, u"1111117"_u},
          {u"123456789"_u, 0, 2, 7, u"121212121"_u},
          {u"123456789"_u, 0, 3, 6, u"123123123"_u},
          {u"9123456"_u, 1, 0, 5, u"1234556"_u},
          {u"981234567"_u, 2, 0, 6, u"123456567"_u},
      },
      [](const Text& before, int from, int to, int32_t count, const Text& after) {
        Guarded<quvex_wide> buffer(before, after);
        Wide::copy_units(buffer + from, buffer + to, count);
      });
}
