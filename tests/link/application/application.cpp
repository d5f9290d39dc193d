#include "quvex.h"

// Text that the compiler knows: with the bodies at hand it would make calls of memcpy and strlen out of all this.
static quvex_narrow text[64];
static quvex_wide wide[64];

extern "C" void start() {
  static const quvex_narrow greeting[] = "A greeting of known length";
  QUVEX_002009(text, greeting);
  QUVEX_002010(text + QUVEX_002014(greeting), 20, greeting);
  QUVEX_002001(text, wide, 64);
  QUVEX_002028(wide, wide + 8, 16);
  text[0] = static_cast<quvex_narrow>(QUVEX_002008(text, greeting));
  for (;;) {
  }
}
