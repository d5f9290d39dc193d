/* Every operation called through its name, or (DIRECT) through its link name: both must give the same object code.
   C and C++, which bounds what is written into an array besides. */
#ifdef DIRECT
#include "quvex.h"
#define CALL(number, name, arguments) QUVEX_##number arguments
#elif defined(__cplusplus)
#include "quvex.hpp"
#define CALL(number, name, arguments) quvex::name arguments
#else
#include "quvex_names.h"
#define CALL(number, name, arguments) quvex_##name arguments
#endif
typedef NARROW N;
typedef WIDE W;

#ifdef __cplusplus
#define CALLER extern "C" auto
#define TYPED(result)
extern "C" {
#else
#define CALLER
#define TYPED(result) result
#endif

#ifdef DIRECT
/* The exact declarations: a signature that changes is a conflict here. */
#define OPERATION(number, name, result, parameters, arguments) result QUVEX_##number parameters;
#include "operations.inc"
#undef OPERATION
#endif
#ifdef __cplusplus
}
#endif

#define OPERATION(number, name, result, parameters, arguments) \
  CALLER TYPED(result) call_##number parameters { return CALL(number, name, arguments); }
#include "operations.inc"

#ifdef __cplusplus
extern "C" N narrow[8];
extern "C" W wide[8];
#ifdef DIRECT
#define BOUNDED(number, name, array, source) QUVEX_##number(array, 8, source)
#define CONVERTED(number, name, array, source) QUVEX_##number(source, array, 8)
#else
#define BOUNDED(number, name, array, source) quvex::name(array, source)
#define CONVERTED(number, name, array, source) quvex::name(source, array)
#endif
extern "C" void into_arrays(const N* n, const W* w) {
  BOUNDED(002010, copy, narrow, n);
  BOUNDED(002035, copy, wide, w);
  BOUNDED(002006, append, narrow, n);
  BOUNDED(002031, append, wide, w);
  CONVERTED(002029, escape, narrow, w);
  CONVERTED(002001, widen, wide, n);
}
#endif
