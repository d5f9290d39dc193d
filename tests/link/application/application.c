#include "quvex.h"

void start(void);

static quvex_narrow line[64], copy[64];
static quvex_wide wide[64];

void start(void) {
  for (;;) {
    QUVEX_002010(copy, sizeof copy, line);
    QUVEX_002006(line, sizeof line, copy + QUVEX_002014(line) / 2);
    QUVEX_002034(wide, wide + QUVEX_002039(wide) / 2);
  }
}
