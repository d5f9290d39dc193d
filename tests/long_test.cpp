#include <vector>

#include "support/table.h"

// Strings of more units than 16 bits can count; their length leaves a remainder however often a loop is unrolled.
TWIN_SUITE(Long);

constexpr int32_t length = 70003;

template <class Unit>
using String = std::vector<Unit>;

// `count` units that differ from their neighbours, without a terminator.
template <class Unit>
String<Unit> text_of(int32_t count) {
  String<Unit> units(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < units.size(); ++i) units[i] = static_cast<Unit>('b' + i % 23);
  return units;
}

template <class Unit>
String<Unit> operator+(String<Unit> string, const String<Unit>& other) {
  string.insert(string.end(), other.begin(), other.end());
  return string;
}

TYPED_TEST(Long, IsMeasuredCopiedAndAppendedWhole) {
  using Q = Op<TypeParam>;
  const String<TypeParam> text = text_of<TypeParam>(length), end(1), one(1, 'a'), marker(2, '#');
  const String<TypeParam> string = text + end;
  for (const int32_t bound : {length - 2, length - 1, length, length + 1}) {
    String<TypeParam> copied(length + 3, '#'), sized = copied, counted = copied;
    Q::copy(copied.data(), string.data());
    EXPECT_EQ(copied, string + marker);
    Q::copy_bounded(sized.data(), bound, string.data());
    const auto cut = String<TypeParam>(text.begin(), text.begin() + bound - 1) + end;
    EXPECT_TRUE(std::equal(cut.begin(), cut.end(), sized.begin()));
    EXPECT_EQ(Q::length(sized.data()), bound - 1);
    EXPECT_EQ(sized.back(), '#');
    Q::copy_counted(counted.data(), string.data(), bound);
    EXPECT_TRUE(std::equal(string.begin(), string.begin() + bound, counted.begin()));
    EXPECT_EQ(counted[static_cast<std::size_t>(bound)], '#');
  }
  String<TypeParam> appended = one + String<TypeParam>(length + 4), sized = appended;
  Q::append(appended.data(), string.data());
  EXPECT_EQ(appended, one + string + String<TypeParam>(3));
  Q::append(appended.data(), (one + end).data());
  EXPECT_EQ(Q::length(appended.data()), length + 2);
  Q::append_bounded(sized.data(), length + 1, string.data());
  EXPECT_EQ(Q::length(sized.data()), length);
  Q::append_bounded(sized.data(), length + 5, string.data());
  EXPECT_EQ(Q::length(sized.data()), length + 4);
}

TYPED_TEST(Long, IsComparedAndSearchedToTheEnd) {
  using Q = Op<TypeParam>;
  const String<TypeParam> text = text_of<TypeParam>(length), z = {'z', 0}, upper_z = {'Z', 0}, end(1);
  String<TypeParam> other = text + z, upper = other;
  Q::to_upper(upper.data());
  EXPECT_EQ(upper[length], 'Z');
  EXPECT_EQ(Q::compare(other.data(), (text + end).data()), length + 1);
  EXPECT_EQ(Q::compare_counted((text + end).data(), other.data(), length + 1), -length - 1);
  EXPECT_EQ(Q::compare_counted((text + end).data(), other.data(), length), 0);
  EXPECT_EQ(Q::compare_folded(upper.data(), other.data()), 0);
  EXPECT_EQ(Q::compare_folded_counted(upper.data(), (text + end).data(), greatest), length + 1);
  EXPECT_EQ(Q::find_character(other.data(), 'z'), &other[length]);
  EXPECT_EQ(Q::find(other.data(), z.data()), &other[length]);
  EXPECT_EQ(Q::find(other.data(), other.data() + 1), &other[1]);
  EXPECT_EQ(Q::find_folded(upper.data(), other.data() + 2), &upper[2]);
  Q::to_lower(upper.data());
  EXPECT_EQ(upper, other);
}

TYPED_TEST(Long, IsCutAndTrimmed) {
  using Q = Op<TypeParam>;
  const String<TypeParam> blank = {' ', 0}, blanks(length, ' ');
  String<TypeParam> cut = blanks + text_of<TypeParam>(length) + blanks + String<TypeParam>(1);
  String<TypeParam> trimmed = cut;
  uint32_t cursor = 0;
  EXPECT_EQ(Q::next_token(cut.data(), &cursor, blank.data()), &cut[length]);
  EXPECT_EQ(cursor, 2u * length + 1);
  EXPECT_EQ(Q::next_token(cut.data(), &cursor, blank.data()), nullptr);
  EXPECT_EQ(cursor, 3u * length);
  EXPECT_EQ(Q::trim(trimmed.data(), blank.data()), length);
  EXPECT_EQ(Q::compare(trimmed.data(), &cut[length]), 0);
  String<TypeParam> digits = blanks + String<TypeParam>(length, '0') + String<TypeParam>{'7', 0};
  EXPECT_EQ(Q::to_integer(digits.data()), 7);
}

TYPED_TEST(Long, IsSplitAndReplaced) {
  using Q = Op<TypeParam>;
  const String<TypeParam> comma = {',', 0}, ab = {'a', 'b', 0};
  String<TypeParam> fields(2 * length + 1, ',');
  for (std::size_t i = 0; i < fields.size(); i += 2) fields[i] = i < 2 * length ? 'x' : 0;
  String<TypeParam> replaced(3 * length + 2, '#');
  EXPECT_EQ(Q::replace(fields.data(), comma.data(), ab.data(), replaced.data()), 3 * length);
  EXPECT_EQ(Q::length(replaced.data()), 3 * length);
  EXPECT_EQ(Q::replace(fields.data(), fields.data(), ab.data(), nullptr), 2);
  EXPECT_EQ(Q::replace(comma.data(), comma.data(), fields.data(), nullptr), 2 * length);
  std::vector<TypeParam*> tokens(length);
  EXPECT_EQ(Q::split(fields.data(), comma.data(), tokens.data()), length);
  EXPECT_EQ(tokens[length - 1], &fields[2 * length - 2]);
}

TEST(LongWide, IsWidenedEscapedAndCopiedByUnits) {
  const String<quvex_narrow> text = text_of<quvex_narrow>(length), string = text + String<quvex_narrow>(1);
  const String<quvex_wide> wide = text_of<quvex_wide>(length), marker(1, '#'), end(1);
  String<quvex_wide> widened(length + 1, '#'), units = widened, copied = widened, repeated = widened;
  Wide::widen_units(text.data(), units.data(), length);
  EXPECT_EQ(units, wide + marker);
  Wide::copy_units(wide.data(), copied.data(), length);
  EXPECT_EQ(copied, wide + marker);
  Wide::copy_units(repeated.data(), repeated.data() + 1, length);
  EXPECT_EQ(repeated, String<quvex_wide>(length + 1, '#'));
  Wide::widen(string.data(), widened.data(), length + 1);
  EXPECT_EQ(widened, wide + end);
  String<quvex_wide> appended = end;
  appended.resize(length + 1);
  Wide::append_counted(appended.data(), widened.data(), length - 1);
  EXPECT_EQ(Wide::length(appended.data()), length - 1);
  Wide::append_bounded_counted(appended.data(), length + 1, widened.data(), greatest);
  EXPECT_EQ(Wide::length(appended.data()), length);
  widened.front() = widened[length - 1] = 1;
  String<quvex_narrow> escaped(length + 12, '#');
  Wide::escape(widened.data(), escaped.data(), length + 11);
  EXPECT_EQ(Op<quvex_narrow>::length(escaped.data()), length + 10);
  EXPECT_EQ(Op<quvex_narrow>::find(escaped.data() + 6, escaped.data() + length + 4), &escaped[length + 4]);
}
