// Notes each load and store of a library that was built to report them.
#include "call.h"

namespace oracle {

static bool is_within(const void* address, const void* object, size_t size) {
  return reinterpret_cast<uintptr_t>(address) - reinterpret_cast<uintptr_t>(object) < size;
}

static void mark(int slot, const void* base, const void* address, unsigned size, unsigned unit_size, bool store) {
  const auto offset = reinterpret_cast<uintptr_t>(address) - reinterpret_cast<uintptr_t>(base);
  const auto from = static_cast<int>(offset / unit_size), last = static_cast<int>((offset + size - 1) / unit_size);
  if (last >= room) footprint.stray = true;
  for (int i = from; i <= last && i < room; ++i) (store ? footprint.written : footprint.read)[slot].set(size_t(i));
  const bool moves_units = footprint.op == Op::widen_units || footprint.op == Op::copy_units;
  if (size > unit_size && !moves_units) footprint.broad = true;
  if (size == 4 && footprint.op == Op::copy_units && reinterpret_cast<uintptr_t>(address) % 4) footprint.broad = true;
  if (slot != first || store) return;
  if (footprint.ended && from < footprint.terminator) footprint.searched_on = true;
  if (from == footprint.terminator) footprint.ended = true;
}

static void record(const void* address, unsigned size, bool store) {
  for (int slot = first; slot < strings; ++slot) {
    const void* const bytes = bytes_of(slot);
    if (is_within(address, bytes, sizeof memory.bytes[0]))
      return mark(slot, bytes, address, size, memory.unit_size[slot], store);
  }
  if (is_within(address, memory.token, sizeof memory.token))
    return mark(tokens, memory.token, address, size, sizeof(void*), store);
  if (is_within(address, &memory.cursor, sizeof memory.cursor))
    return mark(cursor, &memory.cursor, address, size, sizeof memory.cursor, store);
  // The stack grows down: what the operation keeps there lies between this function's part and the caller's.
  const bool is_local = address > __builtin_frame_address(0) && address < footprint.caller;
  const bool is_constant = footprint.op == Op::escape && !store && size == 1;
  if (!is_local && !is_constant) footprint.stray = true;
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
