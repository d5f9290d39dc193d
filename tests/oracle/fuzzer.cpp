// Any input is a call of an operation, held to what the standard library expects of it.
#include <cstdlib>

#include "expectation.h"

namespace oracle {

// Any bytes as a call; what is missing reads as zero. The call looks into the decoder.
struct Decoder {
  const uint8_t* next;
  const uint8_t* end;
  char16_t text[destination][24];

  unsigned byte() { return next == end ? 0 : *next++; }

  int32_t number_or_extreme() {
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

  // Named by its link number, so that a kept input stays the same call whatever operations are added.
  bool decode(Call& c) {
    const int number = 2000 + static_cast<int>(byte() % 64);
    const auto is = [=](std::string_view link) { return std::atoi(link.data()) == number; };
    const auto found = std::find_if(std::begin(operations), std::end(operations),
                                    [=](const Operation& o) { return is(o.narrow) || is(o.wide); });
    if (found == std::end(operations)) return false;
    c.op = static_cast<Op>(found - operations);
    c.wide = is(found->wide);
    const unsigned flags = byte(), places = byte();
    const bool has_output = found->extra == output || found->extra == output_or_in_place;
    c.placing = (flags & 24) == 24 ? Placing::in_place : flags & 6 || !has_output ? Placing::apart : Placing::null;
    if (c.placing == Placing::in_place && c.op == Op::copy_units) c.shift = static_cast<int>(flags >> 5) - 3;
    for (int slot = first; slot < strings; ++slot) c.at[slot] = places >> 2 * slot & 3;
    c.n = number_or_extreme();
    c.m = number_or_extreme();
    for (int slot = first; slot < destination; ++slot) {
      const unsigned size = byte();
      if (size == 0xFF) continue;  // Null.
      for (unsigned i = 0; i < size % 24; ++i) {
        text[slot][i] = unit(unit_size(c, slot) == 2, c.op == Op::copy_units || c.op == Op::widen_units);
      }
      c.text[slot] = Text(text[slot], size % 24);
    }
    return is_allowed(c);
  }
};

}  // namespace oracle

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
  oracle::Decoder decoder{bytes, bytes + size, {}};
  oracle::Call call{};
  if (!decoder.decode(call)) return -1;
  if (!holds(call)) std::abort();
  return 0;
}
