/* Every operation called through its name, or (DIRECT) through its link name: both must give the same object code.
   C and C++, which bounds what is written into an array besides. */
#ifdef DIRECT
#include "quvex.h"
#define CALL(number, name, arguments) QUVEX_##number arguments
#define BOUND(array) array, 8
#elif defined(__cplusplus)
#include "quvex.hpp"
#define CALL(number, name, arguments) quvex::name arguments
#define BOUND(array) array
#else
#include "quvex_names.h"
#define CALL(number, name, arguments) quvex_##name arguments
#endif
typedef NARROW N;
typedef WIDE W;

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

#ifdef __cplusplus
extern N narrow[8];
extern W wide[8];
void into_arrays(const N* n, const W* w) {
  CALL(002010, copy, (BOUND(narrow), n));
  CALL(002035, copy, (BOUND(wide), w));
  CALL(002006, append, (BOUND(narrow), n));
  CALL(002031, append, (BOUND(wide), w));
  CALL(002029, escape, (w, BOUND(narrow)));
  CALL(002001, widen, (n, BOUND(wide)));
}
}
#endif
