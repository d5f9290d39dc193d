// What the readable names bound by themselves.
#include "quvex.hpp"

#include <array>
#include <vector>

#include "support/table.h"

TWIN_SUITE(Bounded);

TYPED_TEST(Bounded, SplitFillsItsSlotsAndSaysThatThereWasMore) {
  const auto row = rows<TypeParam>([](Text text, Text delimiters, int32_t slots, int32_t result, Text after) {
    Guarded<TypeParam> string(text, after), set(delimiters);
    std::vector<TypeParam*> array(static_cast<std::size_t>(slots));
    EXPECT_EQ(quvex::split_bounded(static_cast<TypeParam*>(string), static_cast<TypeParam*>(set), array, 9), result);
    for (int32_t i = 1; i < result; ++i) EXPECT_LT(array.data()[i - 1], array.data()[i]);
  });
  row(u"a b c", u" ", 3, 3, u"a\0b\0c");
  row(u"a b c", u" ", 2, -2, u"a\0b\0c");
  row(u"a b  ", u" ", 2, 2, u"a\0b\0 ");
  row(u" a,b", u" ,", 1, -1, u" a\0b");
  row(u"a", u" ", 0, 0, nullptr);
  row(u"a b", u"", 1, 1, nullptr);
  row(nullptr, u" ", 1, 0, nullptr);
  row(u"a", nullptr, 1, 0, nullptr);
  row(u"\x100\x200\x100", u"\x200", 1, -1, u"\x100\0\x100");
}

TYPED_TEST(Bounded, ReplaceWritesNothingBeyondItsSize) {
  const auto row = rows<TypeParam>([](Text text, Text part, Text substitute, int32_t size, int32_t result, Text after) {
    Guarded<TypeParam> source(text), pattern(part), replacement(substitute), destination(fresh, after);
    EXPECT_EQ(quvex::replace_bounded(static_cast<TypeParam*>(source), static_cast<TypeParam*>(pattern),
                                     static_cast<TypeParam*>(replacement), static_cast<TypeParam*>(destination), size),
              result);
  });
  row(u"a-b", u"-", u"++", 5, 4, u"a++b");
  row(u"a-b", u"-", u"++", 4, 4, u"\0###"_u);
  row(u"a-b", u"-", u"", 3, 2, u"ab");
  row(u"a-b", u"-", u"++", 0, 4, u"#"_u);
  row(u"a-b", u"-", u"++", -1, 4, u"#"_u);
  row(u"a-b", u"", u"++", 4, 0, u"#"_u);
  row(nullptr, u"-", u"++", 4, 0, u"#"_u);
}

TYPED_TEST(Bounded, ReplaceInPlaceNeverGrows) {
  const auto row = rows<TypeParam>([](Text text, Text substitute, int32_t result, Text after) {
    Guarded<TypeParam> string(text, after), replacement(substitute);
    const TypeParam pattern[] = {'-', 0};
    TypeParam* place = string;
    EXPECT_EQ(quvex::replace_bounded(place, pattern, static_cast<TypeParam*>(replacement), place, greatest), result);
  });
  row(u"a-b-", u"", 2, u"ab\0-");
  row(u"a-b-", u"++", 0, u"a-b-");
  row(u"ab", u"++", 2, u"ab");
}

TYPED_TEST(Bounded, ToTextKnowsWhatEveryRadixCanNeed) {
  const TypeParam empty[] = {0};
  for (int32_t step = 0; step <= 37; ++step) {
    const int32_t radix = step < 37 ? step : greatest;
    TypeParam text[40], bounded[40];
    Op<TypeParam>::to_text(least, text, radix);
    for (int32_t size = 0; size < 40; ++size) {
      bounded[0] = bounded[size] = '#';
      EXPECT_EQ(quvex::to_text_bounded(least, bounded, size, radix), bounded);
      EXPECT_EQ(bounded[size], '#');
      if (size > 0) {
        EXPECT_EQ(quvex::compare(bounded, quvex::length(text) < size ? text : empty), 0) << radix << ", " << size;
      }
    }
  }
}

// Four units that a call may write, and one that it may not.
template <class Array>
struct Fenced {
  Array text{};
  int32_t fence = 0x23232323;
};

template <class Array, class Unit>
void expect_bounded(const Unit* text) {
  const auto check = [&](auto write, const char* expected) {
    Fenced<Array> fenced;
    for (Unit& unit : fenced.text) unit = 0;
    write(fenced.text);
    EXPECT_EQ(fenced.fence, 0x23232323);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(fenced.text[static_cast<std::size_t>(i)], expected[i]) << expected;
  };
  const auto size = [](auto& array) { return static_cast<int32_t>(sizeof array / sizeof array[0]); };
  check([&](auto& array) { quvex::copy(array, text); }, "abc");
  check([&](auto& array) { quvex::append(array, text), quvex::append(array, text); }, "abc");
  check([&](auto& array) { quvex::copy_bounded(array, size(array) + 1, text); }, "abc");
  check([&](auto& array) { quvex::copy_counted(array, text, size(array)); }, "abcd");
  check([&](auto& array) { quvex::copy_counted(array, text, size(array) + 1); }, "abc");
  check([&](auto& array) { EXPECT_EQ(quvex::replace(text, text + 1, text, array), 6); }, "\0\0\0");
  if constexpr (sizeof(Unit) == 2) {
    const char* letters = "abcdef";
    check([&](auto& array) { quvex::append_counted(array, text, 9); }, "abc");
    check([&](auto& array) { quvex::append_bounded_counted(array, 9, text, 9); }, "abc");
    check([&](auto& array) { quvex::copy_units(text, array, 9); }, "abcd");
    check([&](auto& array) { quvex::widen(letters, array), quvex::widen(letters, array, 9); }, "abc");
    check([&](auto& array) { quvex::widen_units(letters, array, 9); }, "abcd");
  } else {
    const char16_t* broken = u"ab\ncd";
    check([&](auto& array) { quvex::escape(broken, array), quvex::escape(broken, array, 9); }, "ab\0");
  }
}

// As a span: of units that are another's.
template <class Unit>
struct Part {
  Unit* units;
  std::size_t count;
  [[nodiscard]] Unit* data() const { return units; }
  [[nodiscard]] std::size_t size() const { return count; }
};

TEST(BoundedArray, AndItsLikeKeepTheirSize) {
  const char narrow[] = {'a', 'b', 'c', 'd', 'e', 0};
  expect_bounded<char[4]>(narrow);
  expect_bounded<std::array<char, 4>>(narrow);
  expect_bounded<char16_t[4]>(u"abcde");
  expect_bounded<std::array<char16_t, 4>>(u"abcde");
  std::vector<char> room(4, '#');
  quvex::copy(room, narrow);
  EXPECT_STREQ(room.data(), "abc");
  quvex::to_text(-1000, room, 10);  // could need 12
  EXPECT_STREQ(room.data(), "");
  room[0] = '#';
  const Part<char> none = {room.data(), 0};
  quvex::copy_counted(none, narrow, 0), quvex::escape(u"abc", none), quvex::append(none, narrow);
  EXPECT_EQ(room[0], '#');
}
