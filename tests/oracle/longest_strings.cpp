// The longest strings that there are: of 2^31 - 2 units, where 32-bit addresses allow; and a cursor beyond them.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "quvex.hpp"

namespace {

int failed = 0;

void expect(const char* what, int64_t is, int64_t wanted) {
  if (is == wanted) return;
  std::printf("%s: %lld, not %lld\n", what, static_cast<long long>(is), static_cast<long long>(wanted));
  ++failed;
}

template <class Unit>
void check(Unit* string, int32_t length) {
  const Unit z[] = {'z', 0}, az[] = {'a', 'z', 0};
  std::fill_n(string, length, Unit{'a'});
  string[length] = 0;
  expect("length", quvex::length(string), length);
  expect("compare", quvex::compare(string, string + 1), length);
  expect("compare_counted", quvex::compare_counted(string, string + 1, INT32_MAX), length);
  expect("compare_folded", quvex::compare_folded(string + 1, string), -length);
  expect("compare_folded_counted", quvex::compare_folded_counted(string, string + 1, length - 1), 0);
  quvex::append_bounded(string, length + 1, az);
  expect("append_bounded", quvex::length(string), length);
  string[length - 1] = 'z';
  quvex::to_upper(string);
  expect("to_upper", string[length - 1], 'Z');
  quvex::to_lower(string);
  expect("find_character", quvex::find_character(string, 'z') - string, length - 1);
  expect("find", quvex::find(string, az) - string, length - 2);
  expect("replace", quvex::replace(string, z, az, nullptr), length + 1);
  expect("replace the whole", quvex::replace(string, string, z, nullptr), 1);
  expect("replace by much", quvex::replace(z, z, string, nullptr), length);
  uint32_t cursor = 0;
  expect("next_token", quvex::next_token(string, &cursor, z) - string, 0);
  expect("cursor", cursor, length);
  string[length - 1] = 'z';
  expect("trim", quvex::trim(string, z), length - 1);
}

}  // namespace

int main() {
  constexpr size_t bytes = sizeof(void*) == 4 ? INT32_MAX : 2 * size_t{INT32_MAX};
  void* const memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED || size_t(sysconf(_SC_AVPHYS_PAGES)) < bytes / size_t(sysconf(_SC_PAGESIZE))) {
    return std::printf("skipped: %zu bytes are not free in one piece\n", bytes), 0;
  }
  constexpr int32_t length = INT32_MAX - 1, wide_length = bytes / 2 - 1;
  auto* const narrow = static_cast<char*>(memory);
  check(narrow, length);
  if (bytes > INT32_MAX) {
    uint32_t cursor = 1u << 31;  // No signed number.
    std::fill_n(narrow + cursor, 9, ',');
    narrow[cursor + 2] = 'x', narrow[cursor + 9] = 0;
    expect("next_token", quvex::next_token(narrow, &cursor, ",") - narrow, (int64_t{1} << 31) + 2);
    expect("cursor", cursor, (int64_t{1} << 31) + 4);
  }
  check(static_cast<char16_t*>(memory), wide_length);
  std::printf("strings of %d and %d units, %d wrong\n", length, wide_length, failed);
  return failed != 0;
}
