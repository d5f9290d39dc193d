// Notes each load and store of a library that was built to tell them.
#include "call.h"

namespace oracle {

static void record(const void* address, unsigned size, bool store) {
  const auto offset_in = [=](const void* object) {
    return reinterpret_cast<uintptr_t>(address) - reinterpret_cast<uintptr_t>(object);
  };
  const auto mark = [=](uintptr_t slot, uintptr_t offset, unsigned unit) {
    const uintptr_t from = offset / unit, to = (offset + size - 1) / unit;
    if (to >= room) footprint.stray = true;
    if (size > unit && footprint.op != Op::widen_units && footprint.op != Op::copy_units) footprint.broad = true;
    if (slot == first && !store) footprint.again |= footprint.ended && int(from) < footprint.end;
    if (slot == first && !store) footprint.ended |= int(from) == footprint.end;
    if (size == 4 && footprint.op == Op::copy_units && reinterpret_cast<uintptr_t>(address) % 4) footprint.broad = true;
    for (uintptr_t i = from; i <= to; ++i)
      (store ? footprint.written : footprint.read)[slot] |= uint64_t{1} << i % room;
  };
  const uintptr_t slot = offset_in(memory.bytes) / sizeof memory.bytes[0];
  const bool constant = footprint.op == Op::escape && !store && size == 1;
  if (slot <= destination) return mark(slot, offset_in(memory.bytes[slot]), memory.unit_size[slot]);
  if (offset_in(memory.array) < sizeof memory.array) return mark(array, offset_in(memory.array), sizeof(void*));
  if (offset_in(&memory.cursor) < sizeof memory.cursor) return mark(cursor, 0, sizeof memory.cursor);
  if (offset_in(__builtin_frame_address(0)) > 512 && !constant) footprint.stray = true;  // Locals lie close above.
}

}  // namespace oracle

#define RECORD(bytes)                                                                              \
  void __sanitizer_cov_load##bytes(const void* address) { oracle::record(address, bytes, false); } \
  void __sanitizer_cov_store##bytes(const void* address) { oracle::record(address, bytes, true); }
extern "C" {
RECORD(1)
RECORD(2)
RECORD(4)
RECORD(8)
RECORD(16)
// Weak: a fuzzer brings its own.
__attribute__((weak)) void __sanitizer_cov_trace_pc_guard(uint32_t*) {}
__attribute__((weak)) void __sanitizer_cov_trace_pc_guard_init(uint32_t*, uint32_t*) {}
}
