#ifndef TESTS_SUPPORT_TABLE_H
#define TESTS_SUPPORT_TABLE_H

#include <gtest/gtest.h>

#include <initializer_list>
#include <tuple>

#include "guarded.h"
#include "operations.h"

constexpr int32_t least = INT32_MIN, greatest = INT32_MAX;

using Widths = testing::Types<quvex_narrow, quvex_wide>;

// A suite whose tests run once for each width.
#define TWIN_SUITE(Family)          \
  template <class Unit>             \
  struct Family : testing::Test {}; \
  TYPED_TEST_SUITE(Family, Widths, )

template <class Unit, class Cell>
bool fits(const Cell& cell) {
  if constexpr (std::is_same_v<Cell, Text>) {
    for (char16_t unit : cell.units) {
      if (static_cast<Unit>(unit) != unit) return false;
    }
  }
  return true;
}

// Calls `body` with the cells of each row, once for each side of its buffers. A row with a unit above 255 is for wide
// strings alone.
template <class Unit, class... Cells, class Body>
void each_row(std::initializer_list<std::tuple<Cells...>> table, Body body) {
  row = 0;
  for (const auto& cells : table) {
    ++row;
    SCOPED_TRACE("row " + std::to_string(row));
    if (!std::apply([](const Cells&... cell) { return (fits<Unit>(cell) && ...); }, cells)) continue;
    for (Side side : {Side::start, Side::end}) {
      side_under_test = side;
      std::apply(body, cells);
    }
  }
}

#endif
