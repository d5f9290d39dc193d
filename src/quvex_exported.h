#ifndef QUVEX_SRC_EXPORTED_H
#define QUVEX_SRC_EXPORTED_H

#include "quvex.h"

#include "quvex_compiler.h"

// The exported operations that others are composed of, by name and width.
namespace exported {

QUVEX_INLINE int32_t length(const quvex_narrow* string) { return QUVEX_002014(string); }
QUVEX_INLINE int32_t length(const quvex_wide* string) { return QUVEX_002039(string); }

QUVEX_INLINE void copy(quvex_narrow* destination, const quvex_narrow* source) { QUVEX_002009(destination, source); }
QUVEX_INLINE void copy(quvex_wide* destination, const quvex_wide* source) { QUVEX_002034(destination, source); }

QUVEX_INLINE void copy_counted(quvex_narrow* destination, const quvex_narrow* source, int32_t count) {
  QUVEX_002017(destination, source, count);
}
QUVEX_INLINE void copy_counted(quvex_wide* destination, const quvex_wide* source, int32_t count) {
  QUVEX_002044(destination, source, count);
}

QUVEX_INLINE const quvex_narrow* find(const quvex_narrow* haystack, const quvex_narrow* needle) {
  return QUVEX_002022(haystack, needle);
}
QUVEX_INLINE const quvex_wide* find(const quvex_wide* haystack, const quvex_wide* needle) {
  return QUVEX_002049(haystack, needle);
}

QUVEX_INLINE quvex_narrow* next_token(quvex_narrow* string, uint32_t* cursor, const quvex_narrow* set) {
  return QUVEX_002023(string, cursor, set);
}
QUVEX_INLINE quvex_wide* next_token(quvex_wide* string, uint32_t* cursor, const quvex_wide* set) {
  return QUVEX_002050(string, cursor, set);
}

}  // namespace exported

#endif
