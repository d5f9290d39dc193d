#ifndef TESTS_SUPPORT_MEMORY_H
#define TESTS_SUPPORT_MEMORY_H

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>

// Pages that a test opens one by one, each between two that stay closed: an access that is not allowed ends the program.
enum class Access { none, read, write };
constexpr int pages = 4;
constexpr std::size_t page_size = 16384;         // a multiple of any system's own
uint8_t* protect_page(int page, Access access);  // Returns its start.

// The state of the running row.
enum class Side { start, end };
inline Side side_under_test;
inline int used_pages;
inline int row_line;

inline void print_faulting_row() {
  const auto test = testing::UnitTest::GetInstance()->current_test_info();
  std::printf("%s:%d: %s.%s: this row faults\n", test->file(), row_line, test->test_suite_name(), test->name());
  std::fflush(stdout);
}

#endif
