#ifndef TESTS_SUPPORT_OPERATIONS_H
#define TESTS_SUPPORT_OPERATIONS_H

#include <tuple>

#include "quvex.h"

template <class Unit, class Narrow, class Wide>
constexpr auto twin(Narrow narrow, Wide wide) {
  return std::get<sizeof(Unit) == sizeof(quvex_wide)>(std::tuple(narrow, wide));
}

// The operations that have twins, by name and width.
template <class Unit>
struct Op {
  static constexpr auto length = twin<Unit>(QUVEX_002014, QUVEX_002039);
  static constexpr auto copy = twin<Unit>(QUVEX_002009, QUVEX_002034);
  static constexpr auto copy_bounded = twin<Unit>(QUVEX_002010, QUVEX_002035);
  static constexpr auto copy_counted = twin<Unit>(QUVEX_002017, QUVEX_002044);
  static constexpr auto append = twin<Unit>(QUVEX_002005, QUVEX_002030);
  static constexpr auto append_bounded = twin<Unit>(QUVEX_002006, QUVEX_002031);
  static constexpr auto to_lower = twin<Unit>(QUVEX_002015, QUVEX_002040);
  static constexpr auto to_upper = twin<Unit>(QUVEX_002025, QUVEX_002052);
  static constexpr auto compare = twin<Unit>(QUVEX_002008, QUVEX_002033);
  static constexpr auto compare_counted = twin<Unit>(QUVEX_002016, QUVEX_002043);
  static constexpr auto compare_folded = twin<Unit>(QUVEX_002012, QUVEX_002037);
  static constexpr auto compare_folded_counted = twin<Unit>(QUVEX_002019, QUVEX_002046);
  static constexpr auto find_character = twin<Unit>(QUVEX_002007, QUVEX_002032);
  static constexpr auto find = twin<Unit>(QUVEX_002022, QUVEX_002049);
  static constexpr auto find_folded = twin<Unit>(QUVEX_002013, QUVEX_002038);
  static constexpr auto next_token = twin<Unit>(QUVEX_002023, QUVEX_002050);
  static constexpr auto split = twin<Unit>(QUVEX_002021, QUVEX_002048);
  static constexpr auto trim = twin<Unit>(QUVEX_002024, QUVEX_002051);
  static constexpr auto replace = twin<Unit>(QUVEX_002020, QUVEX_002047);
  static constexpr auto to_text = twin<Unit>(QUVEX_002003, QUVEX_002004);
  static constexpr auto to_integer = twin<Unit>(QUVEX_002000, QUVEX_002053);
};

// Those that stand alone.
constexpr auto append_counted = QUVEX_002041;
constexpr auto append_bounded_counted = QUVEX_002042;
constexpr auto character_to_lower = QUVEX_002026;
constexpr auto character_to_upper = QUVEX_002027;
constexpr auto escape = QUVEX_002029;
constexpr auto widen = QUVEX_002001;
constexpr auto widen_units = QUVEX_002002;
constexpr auto copy_units = QUVEX_002028;

#endif
