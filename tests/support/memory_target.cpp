#include "memory.h"

#include <cinttypes>

#include "board.h"

namespace {

constexpr int closed_pages = pages + 1, areas = 7;
alignas(page_size) uint8_t memory[closed_pages + pages][page_size];

void close_pages_between() {
  for (int i = 0; i < closed_pages; ++i) board_protect(i, memory[2 * i], page_size, BOARD_ACCESS_NONE);
}

}  // namespace

// In place of the platform's, which does not know of rows.
void board_fault(uint32_t address, uint32_t instruction, uint32_t status) {
  print_faulting_row();
  std::printf("fault at %#" PRIx32 ", instruction %#" PRIx32 ", status %#" PRIx32 "\n", address, instruction, status);
  std::fflush(stdout);
  board_exit(70);
}

// Of the unit's eight areas five are the closed pages between, and one lies at null. The last two pages get none, and
// can always be written.
uint8_t* protect_page(int page, Access access) {
  static const bool once = (close_pages_between(), true);
  static_cast<void>(once);
  uint8_t* start = memory[2 * page + 1];
  const int area = closed_pages + page;
  const board_access right = access == Access::read ? BOARD_ACCESS_READ : BOARD_ACCESS_ALL;
  if (area < areas) board_protect(area, start, page_size, right);
  return start;
}
