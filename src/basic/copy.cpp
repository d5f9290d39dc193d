#include "quvex.h"

#include "../quvex_compiler.h"

namespace {

template <class Unit>
QUVEX_INLINE void copy(Unit* destination, const Unit* source) {
  if (!destination || destination == source) return;
  if (source) {
    QUVEX_UNROLL(4)
    while (*source) {
      *destination = *source;
      ++source;
      ++destination;
    }
  }
  *destination = 0;
}

template <class Unit>
QUVEX_INLINE void copy_bounded(Unit* destination, int32_t size, const Unit* source) {
  if (!destination || destination == source) return;
  if (size <= 0) return;
  if (source) {
    QUVEX_UNROLL(4)
    for (--size; size > 0; --size) {
      const Unit unit = *source;
      ++source;
      if (QUVEX_UNLIKELY(!unit)) break;
      *destination = unit;
      ++destination;
    }
  }
  *destination = 0;
}

template <class Unit>
QUVEX_INLINE void copy_counted(Unit* destination, const Unit* source, int32_t count) {
  if (!destination || destination == source) return;
  *destination = 0;
  if (!source) return;
  QUVEX_UNROLL(4)
  for (; count > 0; --count) {
    const Unit unit = *source;
    ++source;
    *destination = unit;
    ++destination;
    if (QUVEX_UNLIKELY(!unit)) break;
  }
}

}  // namespace

QUVEX_EXPORT void QUVEX_002009(quvex_narrow* destination, const quvex_narrow* source) { copy(destination, source); }
QUVEX_EXPORT void QUVEX_002034(quvex_wide* destination, const quvex_wide* source) { copy(destination, source); }

QUVEX_EXPORT void QUVEX_002010(quvex_narrow* destination, int32_t size, const quvex_narrow* source) {
  copy_bounded(destination, size, source);
}
QUVEX_EXPORT void QUVEX_002035(quvex_wide* destination, int32_t size, const quvex_wide* source) {
  copy_bounded(destination, size, source);
}

QUVEX_EXPORT void QUVEX_002017(quvex_narrow* destination, const quvex_narrow* source, int32_t count) {
  copy_counted(destination, source, count);
}
QUVEX_EXPORT void QUVEX_002044(quvex_wide* destination, const quvex_wide* source, int32_t count) {
  copy_counted(destination, source, count);
}
