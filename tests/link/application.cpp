// Text whose type and length the compiler knows: with the bodies at hand it could make calls of memcpy and strlen out of
// all this, or take a store to a unit for one that no char16_t can see.
#include "board.h"
#include "quvex.h"

namespace {

quvex_narrow text[64];
quvex_wide wide[128], from[128];

quvex_wide* units(char16_t* string) { return reinterpret_cast<quvex_wide*>(string); }

__attribute__((noinline)) bool sees_each_store(const quvex_wide* source) {
  char16_t string[8];
  string[0] = u'x';
  QUVEX_002028(source, units(string), 2);
  if (string[0] != 'a' || string[1] != 'b') return false;
  QUVEX_002034(units(string), source);
  if (string[2] != 'c' || string[3] != 0) return false;
  QUVEX_002052(units(string));
  if (string[0] != 'A') return false;
  QUVEX_002030(units(string), source);
  if (string[3] != 'a' || string[6] != 0) return false;
  return QUVEX_002051(units(string), source) == 3 && string[0] == 'A';
}

}  // namespace

int main() {
  static const quvex_narrow greeting[] = "A greeting of known length";
  QUVEX_002009(text, greeting);
  QUVEX_002010(text + QUVEX_002014(greeting), 20, greeting);
  QUVEX_002001(text, from, 100);
  QUVEX_002028(from, wide, 100);
  from[0] = 'a', from[1] = 'b', from[2] = 'c', from[3] = 0;
  const bool held = wide[1] == ' ' && wide[44] == 'n' && !wide[45] && QUVEX_002008(text, greeting) == 27;
  board_exit(held && sees_each_store(from) ? 0 : 1);
}
