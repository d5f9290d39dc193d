/* Every operation called through its name, or (DIRECT) through its link name: both must give the same object code.
   C and C++, where an array bounds what is written into it. */
#ifdef DIRECT
#include "quvex.h"
#define CALL(number, name, arguments) QUVEX_##number arguments
#define BOUND(array) array, 34
#define WITHIN(count) 34
#elif defined(__cplusplus)
#include "quvex.hpp"
#define CALL(number, name, arguments) quvex::name arguments
#else
#include "quvex_names.h"
#define NAMED(name) quvex_##name
#define CALL(number, name, arguments) NAMED(name) arguments
#endif
#ifndef DIRECT
#define BOUND(array) array
#define WITHIN(count) count
/* Behind a pointer only these names take what has no size of its own. */
#define copy copy_unbounded
#define append append_unbounded
#define append_counted append_counted_unbounded
#define split split_unbounded
#define replace replace_unbounded
#define to_text to_text_unbounded
#endif
typedef NARROW N;
typedef WIDE W;
#ifdef __cplusplus
#define NOTHING nullptr
#else
#define NOTHING ((void*)0)
#endif

#ifdef __cplusplus
#define TYPED(result) auto
extern "C" {
#else
#define TYPED(result) result
#endif

#ifdef DIRECT
/* The exact declarations: a signature that changes is a conflict here. */
#define OPERATION(number, name, result, parameters, arguments) result QUVEX_##number parameters;
#include "operations.inc"
#undef OPERATION
#endif

#define OPERATION(number, name, result, parameters, arguments) \
  TYPED(result) call_##number parameters { return CALL(number, name, arguments); }
#include "operations.inc"

#undef copy
#undef append
#undef append_counted
#undef split
#undef replace
#undef to_text
extern N narrow[34];
extern W wide[34];
extern N* slots[17];
void into_arrays(const N* n, const W* w) {
  CALL(002010, copy, (BOUND(narrow), n));
  CALL(002035, copy, (BOUND(wide), w));
  CALL(002010, copy_bounded, (narrow, WITHIN((int)sizeof narrow), n));
  CALL(002017, copy_counted, (narrow, n, 34));
  CALL(002044, copy_counted, (wide, w, 34));
  CALL(002006, append, (BOUND(narrow), n));
  CALL(002031, append, (BOUND(wide), w));
  CALL(002042, append_counted, (BOUND(wide), w, 4));
  CALL(002021, split, (narrow, n, slots));
  CALL(002020, replace, (n, n, n, NOTHING));
  CALL(002003, to_text, (1, narrow, 2));
  CALL(002029, escape, (w, BOUND(narrow)));
  CALL(002001, widen, (n, BOUND(wide)));
  CALL(002002, widen_units, (n, wide, 34));
  CALL(002028, copy_units, (w, wide, 34));
}
#ifdef __cplusplus
}
#endif
