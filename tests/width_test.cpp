#include "support/table.h"

// A source without a terminator shows that nothing behind a piece that does not fit is read.
TEST(Escape, WritesPrintableAsciiInWholePieces) {
  each_row<quvex_wide, Text, int32_t, Text>(
      {
          {nullptr, 40, u""},
          {u"", greatest, u""},
          {u"A"_u, least, u""},
          {u"A"_u, 0, u""},
          {u"A"_u, 1, u""},
          {u"A", 2, u"A"},
          {u"\x1F ~\x7F", greatest, u"&(0x1f) ~&(0x7f)"},
          {u"\x1\x9\xA\xF", 40, u"&(0x1)&(0x9)&(0xa)&(0xf)"},
          {u"\x10\x80\x100\x141", 40, u"&(0x10)&(0x80)&(0x100)&(0x141)"},
          {u"\x1000\xABCD\xFFFF", 40, u"&(0x1000)&(0xabcd)&(0xffff)"},
          {u"A\x4E2D"_u, 10, u"A"},
          {u"A\x4E2D", 11, u"A&(0x4e2d)"},
          {u"\u4E2DA"_u, 3, u""},
          {u"\u4E2DA"_u, 10, u"&(0x4e2d)"},
      },
      [](const Text& text, int32_t size, const Text& after) {
        Source<quvex_wide> source(text);
        Destination<quvex_narrow> destination(after);
        EXPECT_EQ(escape(source, destination, size), destination.data());
        EXPECT_EQ(*escape(source, nullptr, size), 0);
        EXPECT_EQ(escape(source, nullptr, size), escape(nullptr, nullptr, 0));
      });
}

TEST(Widen, KeepsTheNumberOfEachUnitWithinASize) {
  each_row<quvex_narrow, Text, int32_t, Text>(
      {
          {nullptr, 9, u""},
          {u""_u, least, u""},
          {u""_u, 0, u""},
          {u"a"_u, 1, u""},
          {u"abc"_u, 3, u"ab"},
          {u"abc", 4, u"abc"},
          {u"\x80\xFF", greatest, u"\x80\xFF"},
      },
      [](const Text& text, int32_t size, const Text& after) {
        Source<quvex_narrow> source(text);
        Destination<quvex_wide> destination(after);
        EXPECT_EQ(widen(source, destination, size), destination.data());
        EXPECT_EQ(widen(source, nullptr, size), nullptr);
      });
}

TEST(CopyUnits, TakesExactlyACountZerosIncluded) {
  each_row<quvex_wide, Text, int32_t, Text>(
      {
          {nullptr, 3, nullptr},
          {u""_u, least, nullptr},
          {u""_u, 0, nullptr},
          {u"a"_u, 1, u"a"_u},
          {u"a\0\xFF"_u, 3, u"a\0\xFF"_u},
          {u"\x100\0\xFFFF"_u, 3, u"\x100\0\xFFFF"_u},
      },
      [](const Text& units, int32_t count, const Text& after) {
        Source<quvex_wide> source(units);
        Destination<quvex_wide> copied(after);
        copy_units(source, copied, count);
        copy_units(source, nullptr, count);
        if (!fits<quvex_narrow>(units)) return;
        Source<quvex_narrow> narrow(units);
        Destination<quvex_wide> widened(after);
        widen_units(narrow, widened, count);
        widen_units(narrow, nullptr, count);
      });
}

// An odd number of units stands at an even word at one side, and at an odd one at the other.
TEST(CopyUnits, RunsForwardThroughAnOverlap) {
  each_row<quvex_wide, Text, int, int, int32_t, Text>(
      {
          {u"1234567"_u, 0, 1, 5, u"1111117"_u},
          {u"123456789"_u, 0, 2, 7, u"121212121"_u},
          {u"123456789"_u, 0, 3, 6, u"123123123"_u},
          {u"123456789abcd"_u, 0, 4, 8, u"123412341234d"_u},
          {u"9123456"_u, 1, 0, 5, u"1234556"_u},
          {u"981234567"_u, 2, 0, 6, u"123456567"_u},
          {u"12345"_u, 1, 1, 4, u"12345"_u},
      },
      [](const Text& before, int from, int to, int32_t count, const Text& after) {
        Destination<quvex_wide> buffer(before, after);
        copy_units(buffer + from, buffer + to, count);
      });
}
