#include "support/table.h"

TWIN_SUITE(Length);
TWIN_SUITE(Copy);

TYPED_TEST(Length, CountsUnitsBeforeTheTerminator) {
  const auto row = rows<TypeParam>([](Text text, int32_t length) {
    Guarded<TypeParam> string(text);
    EXPECT_EQ(Op<TypeParam>::length(string), length);
  });
  row(nullptr, 0);
  row(u"A\x100\xFFFF\x8000", 4);
  row(std::u16string(300, u'x'), 300);
}

// What is taken within a size, and within a count; with the greatest size, the whole copy does the same. Nothing is
// stored in the source itself.
TYPED_TEST(Copy, StopsAtTheTerminatorOrTheBound) {
  const auto row = rows<TypeParam>([](Text text, int32_t bound, Text within_size, Text within_count) {
    Guarded<TypeParam> source(text), sized(fresh, within_size), counted(fresh, within_count);
    Op<TypeParam>::copy_bounded(sized, bound, source);
    Op<TypeParam>::copy_bounded(source, bound, source);
    Op<TypeParam>::copy_counted(counted, source, bound);
    Op<TypeParam>::copy_counted(source, source, bound);
    Op<TypeParam>::copy_bounded(nullptr, bound, source);
    Op<TypeParam>::copy_counted(nullptr, source, bound);
    if (bound < greatest) return;
    Guarded<TypeParam> whole(fresh, within_size);
    Op<TypeParam>::copy(whole, source);
    Op<TypeParam>::copy(source, source);
    Op<TypeParam>::copy(nullptr, source);
  });
  row(nullptr, greatest, u"", u"");
  row(u""_u, 0, nullptr, u"");
  row(u"", 4, u"", u"");
  row(u"h"_u, 1, u"", u"h"_u);
  row(u"hello"_u, 5, u"hell", u"hello"_u);
  row(u"\x80\x100\xFFFF", greatest, u"\x80\x100\xFFFF", u"\x80\x100\xFFFF");
}
