/* The first program of the README, for any board: `reply` holds "led is on" when it has run. */
#include "quvex_names.h"

char reply[16];

int main(void) {
  char line[] = "SET led = on", *words[3];
  if (quvex_split(line, " =", words) == 3 && quvex_compare_folded(words[0], "set") == 0) {
    quvex_copy(reply, words[1]);
    quvex_append(reply, " is ");
    quvex_append(reply, words[2]);
  }
  return quvex_compare(reply, "led is on");
}
