#ifndef TESTS_SUPPORT_TABLE_H
#define TESTS_SUPPORT_TABLE_H

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

#include "guarded.h"
#include "quvex.h"

constexpr int32_t least = INT32_MIN, greatest = INT32_MAX;

// The operations by name and width; of those that stand alone, both are the same.
template <class Unit>
struct Op {
#define OPERATION(name, narrow, wide, ...) \
  static constexpr auto name = std::get<sizeof(Unit) - 1>(std::tuple(&QUVEX_##narrow, &QUVEX_##wide));
#include "../oracle/operations.def"
#undef OPERATION
};
using Wide = Op<quvex_wide>;

using Widths = testing::Types<quvex_narrow, quvex_wide>;

// A suite whose tests run once for each width.
#define TWIN_SUITE(Family)          \
  template <class Unit>             \
  struct Family : testing::Test {}; \
  TYPED_TEST_SUITE(Family, Widths, )

template <class Unit, class Cell>
bool fits(const Cell&) {
  return true;
}
template <class Unit>
bool fits(const Text& text) {
  return std::all_of(text.units.begin(), text.units.end(),
                     [](char16_t unit) { return static_cast<Unit>(unit) == unit; });
}

template <class Unit, class... Cells>
auto rows_of(std::function<void(Cells...)> body) {
  return [=](Cells... cells, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
    const testing::ScopedTrace trace(file, line, "this row");
    row_line = line;
    for (Side side : {Side::start, Side::end}) {
      side_under_test = side;
      if ((fits<Unit>(cells) && ...)) body(cells...);
    }
  };
}

// A function of a row's cells, which runs `body` with them once for each side of its buffers. A row with a
// unit above 255 is for wide strings alone.
template <class Unit, class Body>
auto rows(Body body) {
  return rows_of<Unit>(std::function(body));
}

#endif
