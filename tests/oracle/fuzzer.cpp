// Any input is a call of an operation, held to what the standard library expects of it.
#include <cstdlib>

#include "expectation.h"

namespace oracle {

// Any bytes as a call; what is missing reads as zero. The case looks into the decoder, and may be none that is valid.
struct Decoder {
  const uint8_t* next;
  const uint8_t* end;
  char16_t text[destination][24];

  unsigned byte() { return next == end ? 0 : *next++; }

  int32_t number() {
    const unsigned selector = byte();
    if (selector < 0xD0) return static_cast<int32_t>(selector % 52) - 3;
    uint32_t value = 0;
    for (int i = 0; i < 4; ++i) value = value << 8 | byte();
    return static_cast<int32_t>(selector < 0xF0 ? value : value & 0xFF);
  }

  char16_t unit(bool wide, bool zeros) {
    const unsigned value = byte();
    if (value >= 0x80 && value < 0xF0) return u"aAbB z,;\t-059~[\u0080"[value % 16];
    if (wide && value >= 0xF0) return static_cast<char16_t>(value << 8 | byte());
    return static_cast<char16_t>(value || zeros ? value : 'a');
  }

  Case decode() {
    Case c{};
    c.op = static_cast<Op>(byte() % static_cast<unsigned>(Op::end));
    const unsigned flags = byte(), places = byte();
    c.wide = flags & 1 || !traits[static_cast<int>(c.op)].twins;
    c.provided = flags & 6 || !traits[static_cast<int>(c.op)].provides;
    c.in_place = (flags & 24) == 24;
    c.shift = c.in_place && c.op == Op::copy_units ? static_cast<int>(flags >> 5) - 3 : 0;
    c.skew[0] = places % 4;
    c.skew[1] = places / 4 % 4;
    c.n = number();
    c.m = number();
    const bool widens = c.op == Op::widen || c.op == Op::widen_units;
    for (int slot = first; slot <= third; ++slot) {
      const unsigned size = byte();
      if (size == 0xFF) continue;  // Null.
      for (unsigned i = 0; i < size % 24; ++i) {
        text[slot][i] = unit(c.wide && !widens, c.op == Op::copy_units || c.op == Op::widen_units);
      }
      c.text[slot] = Text(text[slot], size % 24);
    }
    return c;
  }
};

}  // namespace oracle

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  oracle::Decoder decoder{bytes, bytes + size, {}};
  const oracle::Case c = decoder.decode();
  if (!is_valid(c)) return -1;
  if (check(c)) std::abort();
  return 0;
}
