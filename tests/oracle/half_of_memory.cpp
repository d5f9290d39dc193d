// The longest strings that 32-bit addresses allow: as large as half of the address space, less a byte.
#include <sys/mman.h>

#include <cstdio>
#include <cstring>

#include "quvex.h"

namespace {

int failed = 0;

void expect(const char* what, int64_t is, int64_t wanted) {
  if (is == wanted) return;
  std::printf("%s: %lld, not %lld\n", what, static_cast<long long>(is), static_cast<long long>(wanted));
  ++failed;
}

}  // namespace

int main() {
  constexpr size_t bytes = INT32_MAX;
  void* const memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return std::puts("skipped: 2 GiB are not free in one piece"), 0;

  auto* const narrow = static_cast<quvex_narrow*>(memory);
  constexpr int32_t length = INT32_MAX - 1;
  std::memset(narrow, 'a', bytes - 1);
  narrow[length] = 0;
  expect("length", QUVEX_002014(narrow), length);
  expect("compare", QUVEX_002008(narrow, narrow + 1), length);
  expect("compare_folded", QUVEX_002012(narrow + 1, narrow), -length);
  QUVEX_002006(narrow, INT32_MAX, narrow);
  expect("append_bounded", QUVEX_002014(narrow), length);
  narrow[length - 1] = 'z';
  QUVEX_002025(narrow);
  expect("to_upper", narrow[length - 1], 'Z');
  uint32_t cursor = 0;
  expect("next_token", QUVEX_002023(narrow, &cursor, narrow + length - 1) == narrow, true);
  expect("cursor", cursor, length);

  auto* const wide = static_cast<quvex_wide*>(memory);
  constexpr int32_t wide_length = INT32_MAX / 2 - 1;
  std::memset(wide, 'a', 2 * size_t{wide_length});
  wide[wide_length] = 0;
  expect("wide length", QUVEX_002039(wide), wide_length);
  expect("wide compare_counted", QUVEX_002043(wide, wide + 1, INT32_MAX), wide_length);
  expect("wide find_character", QUVEX_002032(wide, 'a') == nullptr, true);
  wide[wide_length - 1] = 'z';
  expect("wide find_character", QUVEX_002032(wide, 'z') - wide, wide_length - 1);
  const quvex_wide last[] = {'z', 0};
  expect("wide trim", QUVEX_002051(wide, last), wide_length - 1);
  std::printf("strings of %d and %d units, %d wrong\n", length, wide_length, failed);
  return failed != 0;
}
