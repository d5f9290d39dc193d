// Long strings: more units than 16 bits can count; on a host that is asked to, more than 2^31 bytes.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "quvex.h"
#ifdef __linux__
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace {

int failed = 0;

void expect(const char* what, int64_t is, int64_t wanted) {
  if (is != wanted) std::printf("%s is %ld, not %ld\n", what, long(is), long(wanted)), ++failed;
}

// Units of one value, all of them the same memory but for the last block, with a terminator behind them.
template <class Unit>
Unit* string_of(size_t length, Unit unit) {
  char* range = nullptr;
  bool mapped = false;
#ifdef __linux__
  constexpr size_t block = size_t{1} << 21;
  const size_t blocks = length * sizeof(Unit) / block + 1;
  const int file = memfd_create("block", 0), access = PROT_READ | PROT_WRITE;
  range = static_cast<char*>(mmap(nullptr, blocks * block, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
  mapped = file >= 0 && range != MAP_FAILED && ftruncate(file, block) == 0;
  for (size_t i = 0; i < blocks && mapped; ++i) {
    const int mode = (i + 1 < blocks ? MAP_SHARED : MAP_PRIVATE) | MAP_FIXED;
    mapped = mmap(range + i * block, block, access, mode, file, 0) != MAP_FAILED;
    if (i == 0 && mapped) std::fill_n(reinterpret_cast<Unit*>(range), block / sizeof(Unit), unit);
  }
#else
  alignas(8) static char memory[4][200000];
  static int used = 0;
  range = memory[used++];
  mapped = (length + 2) * sizeof(Unit) <= sizeof memory[0];
  if (mapped) std::fill_n(reinterpret_cast<Unit*>(range), length, unit);
#endif
  if (!mapped) std::puts("skipped: too little memory or address space"), std::exit(77);
  const auto string = reinterpret_cast<Unit*>(range);
  string[length] = 0;
  return string;
}

}  // namespace

int main(int argc, char**) {
  const bool huge = argc > 1;
  const int32_t length = huge ? (1 << 30) + 5 : 70000;
  quvex_wide* const wide = string_of<quvex_wide>(size_t(length), 'a');
  quvex_wide* const other = string_of<quvex_wide>(size_t(length), 'a');
  const quvex_wide b[] = {'b', 0}, ab[] = {'a', 'b', 0};
  other[length - 1] = 'b';
  expect("length", QUVEX_002039(wide), length);
  expect("compare", QUVEX_002033(wide, other), -length);
  expect("compare_folded_counted", QUVEX_002046(other, wide, INT32_MAX), length);
  expect("find_character", QUVEX_002032(other, 'b') - other, length - 1);
  expect("find", QUVEX_002049(other, ab) - other, length - 2);
  expect("replace", QUVEX_002047(other, b, ab, nullptr), length + 1);
  QUVEX_002031(wide, length + 2, other);
  const int32_t count = 66000;
  static quvex_wide out[3 * count];
  static quvex_narrow narrow_out[count + 1];
  QUVEX_002044(out, wide, count);
  QUVEX_002041(out, wide, count);
  QUVEX_002042(out, 2 * count + 100, wide, count);
  expect("copy_counted, append_counted, append_bounded_counted", QUVEX_002039(out), 2 * count + 99);
  QUVEX_002035(out, count, wide);
  expect("copy_bounded", QUVEX_002039(out), count - 1);
  QUVEX_002029(wide, narrow_out, count);
  expect("escape", QUVEX_002014(narrow_out), count - 1);
  QUVEX_002001(narrow_out, out, count - 1);
  expect("widen", QUVEX_002039(out), count - 2);
  out[count] = 0;
  QUVEX_002028(wide, out, count);
  expect("copy_units", QUVEX_002039(out), count);
  out[count - 1] = 'b';
  expect("compare_counted", QUVEX_002043(out, wide, count), count);
  QUVEX_002002(narrow_out, out, count);
  expect("widen_units", QUVEX_002039(out), count - 1);
  expect("append_bounded", QUVEX_002039(wide), length + 1);
  expect("trim", QUVEX_002051(other, b), length - 1);

  const auto far = huge ? uint32_t{1} << 31 : 70000u;  // As far as a cursor reaches, and no signed number.
  quvex_narrow* const narrow = string_of<quvex_narrow>(size_t{far} + 9, ',');
  const quvex_narrow comma[] = {',', 0};
  uint32_t cursor = far;
  narrow[size_t{far} + 2] = 'x';
  expect("next_token", QUVEX_002023(narrow, &cursor, comma) - narrow, int64_t{far} + 2);
  expect("cursor", cursor, int64_t{far} + 4);
  const int32_t longest = huge ? INT32_MAX : 80000;
  expect("longest length", QUVEX_002014(string_of<quvex_narrow>(size_t(longest), 'a')), longest);
  std::printf("strings of %ld units, %d wrong\n", long(length), failed);
  return failed != 0;
}
