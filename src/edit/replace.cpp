#include "quvex.h"

#include "../quvex_exported.h"

namespace {

template <class Unit>
QUVEX_INLINE int32_t replace(const Unit* source, const Unit* pattern, const Unit* replacement, Unit* destination) {
  if (!source || !pattern || !*pattern || !replacement) return 0;
  const int32_t pattern_length = exported::length(pattern);
  const int32_t replacement_length = exported::length(replacement);
  int32_t result = 0;
  while (const Unit* occurrence = exported::find(source, pattern)) {
    const int32_t segment = static_cast<int32_t>(occurrence - source);
    if (destination) {
      exported::copy_counted(destination + result, source, segment);
      exported::copy(destination + result + segment, replacement);
    }
    source += segment + pattern_length;
    result += segment + replacement_length;
  }
  const int32_t rest = exported::length(source);
  if (destination) exported::copy(destination + result, source);
  return result + rest;
}

}  // namespace

QUVEX_EXPORT int32_t QUVEX_002020(const quvex_narrow* source, const quvex_narrow* pattern,
                                  const quvex_narrow* replacement, quvex_narrow* destination) {
  return replace(source, pattern, replacement, destination);
}
QUVEX_EXPORT int32_t QUVEX_002047(const quvex_wide* source, const quvex_wide* pattern, const quvex_wide* replacement,
                                  quvex_wide* destination) {
  return replace(source, pattern, replacement, destination);
}
