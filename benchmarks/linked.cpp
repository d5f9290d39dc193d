// A small application, by which scripts/report weighs what link-time optimization gives.
#include "quvex.hpp"

char line[64], reply[16];

extern "C" void start() {
  char* words[6];
  if (quvex::split(line, " =", words) == 3 && quvex::compare_folded(words[0], "set") == 0) {
    quvex::copy(reply, words[1]);
    quvex::append(reply, " is ");
    quvex::append(reply, words[2]);
  }
}
