#include "support/table.h"

TWIN_SUITE(Copy);

// What is taken within a size, and within a count; with the greatest size, the whole copy does the same.
TYPED_TEST(Copy, StopsAtTheTerminatorOrTheBound) {
  each_row<TypeParam, Text, int32_t, Text, Text>(
      {
          {u""_u, least, nullptr, u""},
          {u""_u, -1, nullptr, u""},
          {u""_u, 0, nullptr, u""},
          {nullptr, 0, nullptr, u""},
          {nullptr, greatest, u"", u""},
          {u"h"_u, 1, u"", u"h"_u},
          {u"hello"_u, 5, u"hell", u"hello"_u},
          {u"hello", 6, u"hello", u"hello"},
          {u"hello", greatest, u"hello", u"hello"},
          {u"\x80\x100\xFFFF", greatest, u"\x80\x100\xFFFF", u"\x80\x100\xFFFF"},
      },
      [](const Text& text, int32_t bound, const Text& within_size, const Text& within_count) {
        Source<TypeParam> source(text);
        Destination<TypeParam> sized(within_size), counted(within_count);
        Op<TypeParam>::copy_bounded(sized, bound, source);
        Op<TypeParam>::copy_counted(counted, source, bound);
        if (bound < greatest) return;
        Destination<TypeParam> whole(within_size);
        Op<TypeParam>::copy(whole, source);
      });
}

TYPED_TEST(Copy, StoresNothingInItsOwnSourceOrInNull) {
  each_row<TypeParam, Text>({{u"hello"}, {nullptr}}, [](const Text& text) {
    Destination<TypeParam> destination(text, nullptr);
    Source<TypeParam> unreadable(u""_u);
    const TypeParam* source = destination ? destination.data() : unreadable.data();
    Op<TypeParam>::copy(destination, source);
    Op<TypeParam>::copy_bounded(destination, 3, source);
    Op<TypeParam>::copy_counted(destination, source, 3);
    Op<TypeParam>::copy_counted(destination, source, 0);
  });
}
