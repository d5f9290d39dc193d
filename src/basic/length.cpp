#include "quvex.h"

#include "../quvex_compiler.h"

namespace {

template <class Unit>
QUVEX_INLINE int32_t length(const Unit* string) {
  if (!string) return 0;
  const Unit* end = string;
  QUVEX_UNROLL(4)
  while (*end) ++end;
  return static_cast<int32_t>(end - string);
}

}  // namespace

QUVEX_EXPORT int32_t QUVEX_002014(const quvex_narrow* string) { return length(string); }
QUVEX_EXPORT int32_t QUVEX_002039(const quvex_wide* string) { return length(string); }
