#ifndef TESTS_SUPPORT_OPERATIONS_H
#define TESTS_SUPPORT_OPERATIONS_H

#include <tuple>

#include "quvex.h"

// The operations by name and width; of those that stand alone, both are the same.
template <class Unit>
struct Op {
#define OPERATION(name, narrow, wide, arguments, provides, places) \
  static constexpr auto name = std::get<sizeof(Unit) - 1>(std::tuple(&QUVEX_##narrow, &QUVEX_##wide));
#include "../trust/operations.def"
#undef OPERATION
};
using Wide = Op<quvex_wide>;

#endif
