// Long strings: more units than 16 bits can count and, with an argument, more than 2^31 bytes.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "quvex.h"

namespace {

int failed = 0;

void expect(const char* what, int64_t is, int64_t wanted) {
  if (is != wanted) std::printf("%s: %ld, not %ld\n", what, long(is), long(wanted)), ++failed;
}

template <class Unit>
Unit* string_of(int64_t length, Unit unit) {
  const auto string = static_cast<Unit*>(std::malloc(size_t(length + 2) * sizeof(Unit)));
  std::fill_n(string, length, unit);
  string[length] = 0;
  return string;
}

}  // namespace

int main(int argc, char**) {
  if (argc > 1 && sysconf(_SC_AVPHYS_PAGES) / 1024 * sysconf(_SC_PAGESIZE) < 8 << 20) {
    std::puts("skipped: 8 GiB of memory are not free");
    return 77;
  }
  const int32_t length = argc > 1 ? (1 << 30) + 5 : 70000, count = 66000;
  const int64_t far = argc > 1 ? int64_t{1} << 31 : 70000;  // A cursor is no signed number.
  const quvex_wide b[] = {'b', 0}, ab[] = {'a', 'b', 0};
  static quvex_wide* const wide = string_of<quvex_wide>(length, 'a');
  static quvex_wide* const other = string_of<quvex_wide>(length, 'a');
  other[length - 1] = 'b';
  expect("length", QUVEX_002039(wide), length);
  expect("compare", QUVEX_002033(wide, other), -length);
  expect("compare_folded_counted", QUVEX_002046(other, wide, INT32_MAX), length);
  expect("find_character", QUVEX_002032(other, 'b') - other, length - 1);
  expect("find", QUVEX_002049(other, ab) - other, length - 2);
  expect("replace", QUVEX_002047(other, b, ab, nullptr), length + 1);
  QUVEX_002031(wide, length + 2, other);
  expect("append_bounded", QUVEX_002039(wide), length + 1);
  expect("trim", QUVEX_002051(other, b), length - 1);

  static quvex_narrow* const narrow = string_of<quvex_narrow>(far + 9, ',');
  const quvex_narrow comma[] = {',', 0};
  auto cursor = uint32_t(far);
  narrow[far + 2] = 'x';
  expect("next_token", QUVEX_002023(narrow, &cursor, comma) - narrow, far + 2);
  expect("cursor", cursor, far + 4);
  narrow[far - 1] = 0;
  expect("longest length", QUVEX_002014(narrow), far - 1);

  static quvex_wide out[3 * count];
  static quvex_narrow narrow_out[count];
  const auto written = [&](const char* what, int64_t wanted) { expect(what, QUVEX_002039(out), wanted); };
  written("copy_counted", (QUVEX_002044(out, wide, count), count));
  written("append_counted", (QUVEX_002041(out, wide, count), 2 * count));
  written("append_bounded_counted", (QUVEX_002042(out, 3 * count, wide, count), 3 * count - 1));
  written("copy_bounded", (QUVEX_002035(out, count, wide), count - 1));
  expect("compare_counted", (QUVEX_002043(out, wide, count)), -count);
  expect("escape", (QUVEX_002029(wide, narrow_out, count), QUVEX_002014(narrow_out)), count - 1);
  expect("compare_counted", QUVEX_002016(narrow_out, narrow_out + 1, INT32_MAX), count - 1);
  expect("compare_folded_counted", QUVEX_002019(narrow_out, narrow_out + 1, INT32_MAX), count - 1);
  written("widen", (QUVEX_002001(narrow_out, out, count - 1), count - 2));
  written("widen_units", (QUVEX_002002(narrow_out, out, count), count - 1));
  out[count] = 0;
  written("copy_units", (QUVEX_002028(wide, out, count), count));
  std::printf("strings of %ld units, %d wrong\n", long(length), failed);
  return failed != 0;
}
