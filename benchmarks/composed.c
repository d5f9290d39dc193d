/* What the headers compose of operations, each kept as a function of its own, to be weighed by its section. */
#include "quvex_line.h"

#define KEEP(name)                        \
  extern const void* const kept_##name[]; \
  const void* const kept_##name[] = {(const void*)quvex_##name##_narrow, (const void*)quvex_##name##_wide};

KEEP(read_digits)
KEEP(read_integer)
KEEP(read_hexadecimal)
KEEP(next_field)
KEEP(add)
KEEP(add_character)
KEEP(add_integer)
KEEP(split)
KEEP(replace)
KEEP(to_text)
KEEP(copy_counted)
