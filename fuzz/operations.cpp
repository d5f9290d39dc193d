// Any input is a call of one of the fifty operations, held to what the standard library expects of it.
#include <cstdlib>

#include "check.h"
#include "decode.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  trust::Decoder decoder{bytes, bytes + size, {}};
  const trust::Case c = decoder.decode();
  if (!is_valid(c)) return -1;
  if (check(c)) std::abort();
  return 0;
}
