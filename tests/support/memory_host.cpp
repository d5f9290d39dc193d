#include "memory.h"

#include <signal.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

void report(int) {
  print_faulting_row();
  _exit(1);
}

uint8_t* map_closed_pages() {
  signal(SIGSEGV, report);
  signal(SIGBUS, report);
  void* start = mmap(nullptr, (2 * pages + 1) * page_size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return static_cast<uint8_t*>(start);
}

}  // namespace

uint8_t* protect_page(int page, Access access) {
  static uint8_t* const first = map_closed_pages();
  uint8_t* start = first + (2 * static_cast<std::size_t>(page) + 1) * page_size;
  const int flags[] = {PROT_NONE, PROT_READ, PROT_READ | PROT_WRITE};
  mprotect(start, page_size, flags[static_cast<int>(access)]);
  return start;
}
