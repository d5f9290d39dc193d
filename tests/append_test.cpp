#include "support/table.h"

TWIN_SUITE(Append);

// A greatest size or count is none: an operation without that bound does the same.
TYPED_TEST(Append, FollowsTheTextWithinASizeAndACount) {
  const auto row = rows<TypeParam>([](Text before, int32_t size, Text text, int32_t count, Text after) {
    Guarded<TypeParam> source(text);
    if (count == greatest) {
      Guarded<TypeParam> sized(before, after);
      Op<TypeParam>::append_bounded(sized, size, source);
    }
    if (count == greatest && size == greatest) {
      Guarded<TypeParam> whole(before, after);
      Op<TypeParam>::append(whole, source);
    }
    if constexpr (sizeof(TypeParam) == sizeof(quvex_wide)) {
      Guarded<quvex_wide> both(before, after);
      Wide::append_bounded_counted(both, size, source, count);
      if (size < greatest) return;
      Guarded<quvex_wide> counted(before, after);
      Wide::append_counted(counted, source, count);
    }
  });
  row(nullptr, greatest, u""_u, greatest, nullptr);
  row(u""_u, greatest, nullptr, greatest, nullptr);
  row(u"abc", 3, u""_u, greatest, nullptr);
  row(u"ab", 3, u""_u, greatest, nullptr);
  row(u"ab", 4, u"cd"_u, greatest, u"abc");
  row(u"ab", greatest, u""_u, 0, u"ab");
  row(u"ab", greatest, u"cd"_u, 1, u"abc");
  row(u"a\x100", greatest, u"\x200\xFFFF", greatest, u"a\x100\x200\xFFFF");
}
