// Strings of more than 2^31 bytes: one block of memory stands in its address range again and again.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "quvex.h"

namespace {

constexpr size_t block = size_t{1} << 21;
int failed = 0;

void expect(const char* what, int64_t is, int64_t wanted) {
  if (is != wanted) std::printf("%s is %lld, not %lld\n", what, (long long)is, (long long)wanted), ++failed;
}

// Units of one value, which are the same memory but for the last block, with a terminator behind them.
template <class Unit>
Unit* string_of(size_t length, Unit unit) {
  const size_t blocks = length * sizeof(Unit) / block + 1;
  const int file = memfd_create("block", 0);
  void* const range = mmap(nullptr, blocks * block, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  bool mapped = file >= 0 && range != MAP_FAILED && ftruncate(file, block) == 0;
  for (size_t i = 0; i < blocks && mapped; ++i) {
    const int mode = i + 1 < blocks ? MAP_SHARED : MAP_PRIVATE;
    void* const at = static_cast<char*>(range) + i * block;
    mapped = mmap(at, block, PROT_READ | PROT_WRITE, mode | MAP_FIXED, file, 0) == at;
    if (i == 0 && mapped) std::fill_n(static_cast<Unit*>(at), block / sizeof(Unit), unit);
  }
  if (!mapped) std::puts("skipped: the address space or the memory is too small"), _exit(77);
  static_cast<Unit*>(range)[length] = 0;
  return static_cast<Unit*>(range);
}

}  // namespace

int main() {
  constexpr int32_t wide_length = (1 << 30) + 5;
  quvex_wide* const wide = string_of<quvex_wide>(wide_length, 'a');
  quvex_wide* const other = string_of<quvex_wide>(wide_length, 'a');
  const quvex_wide b[] = {'b', 0}, ab[] = {'a', 'b', 0};
  other[wide_length - 1] = 'b';
  expect("length", QUVEX_002039(wide), wide_length);
  expect("compare", QUVEX_002033(wide, other), -wide_length);
  expect("compare_folded_counted", QUVEX_002046(other, wide, INT32_MAX), wide_length);
  expect("find_character", QUVEX_002032(other, 'b') - other, wide_length - 1);
  expect("find", QUVEX_002049(other, ab) - other, wide_length - 2);
  expect("replace", QUVEX_002047(other, b, ab, nullptr), wide_length + 1);
  QUVEX_002031(wide, wide_length + 2, other);
  expect("append_bounded", QUVEX_002039(wide), wide_length + 1);
  expect("trim", QUVEX_002051(other, b), wide_length - 1);

  const auto narrow_length = size_t{1} << 31;
  quvex_narrow* const narrow = string_of<quvex_narrow>(narrow_length + 9, ',');
  const quvex_narrow comma[] = {',', 0};
  auto cursor = uint32_t(narrow_length);
  narrow[narrow_length + 2] = 'x';
  expect("next_token", QUVEX_002023(narrow, &cursor, comma) - narrow, int64_t(narrow_length + 2));
  expect("cursor", cursor, int64_t(narrow_length + 4));
  expect("longest length", QUVEX_002014(string_of<quvex_narrow>(INT32_MAX, 'a')), INT32_MAX);
  std::printf("strings of more than 2^31 bytes, %d wrong\n", failed);
  return failed != 0;
}
