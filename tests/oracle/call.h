#ifndef TESTS_ORACLE_CALL_H
#define TESTS_ORACLE_CALL_H

#include <algorithm>
#include <string_view>

#include "quvex.h"

// One call of an operation, described without its width: the arguments by value, then what memory holds
// before and after it.
namespace oracle {

#define OPERATION(name, narrow, wide, arguments, provides, places) name,
enum class Op : uint8_t {
#include "operations.def"
  end
};
#undef OPERATION

struct Traits {
  const char* name;
  bool twins, provides, places;
};
#define OPERATION(name, narrow, wide, arguments, provides, places) {#name, 1##narrow != 1##wide, provides, places},
constexpr Traits traits[] = {
#include "operations.def"
};
#undef OPERATION

using Text = std::u16string_view;  // The values of a string's units; no data is a null string.
enum Slot { first, second, third, destination, array, cursor };
constexpr int room = 64;  // Units in a slot: a set of them is one integer.
constexpr char16_t untouched = 0xEE;

struct Case {
  Op op;
  bool wide;
  Text text[3];  // For the slots first, second (the destination of an append) and third.
  bool provided,
      in_place;        // A destination, cursor or array; it lies at the first text, or a comparison is with itself.
  int shift, skew[2];  // Units between the two in place; where the first text and the destination begin.
  int32_t n, m;        // Numbers in the order of the arguments, the cursor among them.
};

struct State {
  char16_t unit[array + 1][room];
  int64_t result;  // A number, or a pointer as made by `place_of`.
  uint32_t cursor;
};

constexpr int64_t null_pointer = -1, empty_constant = -2;

struct Memory {
  alignas(8) unsigned char bytes[destination + 1][room * 2];
  unsigned unit_size[destination + 1];
  void* array[room];
  uint32_t cursor;
};
inline Memory memory;

// The units that a call read and wrote, where the compiler made the library tell each load and store.
struct Footprint {
  Op op;
  uint64_t read[cursor + 1], written[cursor + 1];
  bool stray, broad;
  int end;            // Where the first text's terminator stands.
  bool ended, again;  // It has been read; then a unit before it was.
};
inline Footprint footprint;

// What a caller may pass, and what the slots hold.
inline bool is_valid(const Case& c) {
  const Traits& is = traits[static_cast<int>(c.op)];
  const auto a = static_cast<int>(c.text[first].size()), b = static_cast<int>(c.text[second].size());
  const bool units = c.op == Op::copy_units || c.op == Op::widen_units, compares = is.places && !is.provides;
  if ((!c.wide && !is.twins) || (!c.provided && !is.provides)) return false;
  if (c.in_place && !(is.places && c.provided && c.text[first].data())) return false;
  if ((c.shift && !(c.in_place && c.op == Op::copy_units)) || c.skew[0] + c.shift < 0) return false;
  if (c.in_place && compares && c.text[second].data()) return false;  // There is no other string.
  if (c.op == Op::to_integer) return a < 20;                          // What the oracle's 64 bits hold.
  if (c.op == Op::trim) return c.text[first].data();
  if (c.op == Op::next_token) return c.n >= 0 && c.n <= a;
  if (c.op == Op::escape) return a * 9 < room - 8 || c.n < room - 8;
  if (c.op != Op::replace || !b) return !units || c.n <= room / 2;
  const auto replacement = static_cast<int>(c.text[third].size());
  if (c.in_place && replacement >= b && c.text[first].find(c.text[second]) != Text::npos) return false;
  return a + a / b * replacement < room - 8;
}

inline State before(const Case& c) {
  State state;
  for (auto& slot : state.unit) std::fill_n(slot, room, untouched);
  std::fill_n(state.unit[first], room, u'a');  // What runs past the terminator finds letters.
  for (int slot = first; slot <= third; ++slot) {
    if (!c.text[slot].data()) continue;
    *std::copy(c.text[slot].begin(), c.text[slot].end(), state.unit[slot] + (slot == first ? c.skew[0] : 0)) = 0;
  }
  state.result = 0;
  state.cursor = static_cast<uint32_t>(c.n);
  return state;
}

struct Pointer {  // To units of whatever width the parameter has.
  void* address;
  template <class Unit>
  operator Unit*() const {
    return static_cast<Unit*>(address);
  }
};

inline int64_t place_of(const void* pointer) {
  if (!pointer) return null_pointer;
  const auto offset = reinterpret_cast<uintptr_t>(pointer) - reinterpret_cast<uintptr_t>(memory.bytes);
  if (offset >= sizeof memory.bytes) return *static_cast<const char*>(pointer) ? -3 : empty_constant;
  const uintptr_t slot = offset / sizeof memory.bytes[0];
  return static_cast<int64_t>(slot * 1000 + offset % sizeof memory.bytes[0] / memory.unit_size[slot]);
}

// (call(), Result{}) is what the call returns, or the 0 of a call that returns nothing.
struct Result {
  int64_t value = 0;
};
inline Result operator,(int32_t number, Result) { return {number}; }
inline Result operator,(const void* pointer, Result) { return {place_of(pointer)}; }

inline Result invoke(const Case& c) {
  const auto provided = [&](void* object) { return Pointer{c.provided ? object : nullptr}; };
  const auto at = [](int slot, int index) {
    return memory.bytes[slot] + index * static_cast<int>(memory.unit_size[slot]);
  };
  const auto text = [&](int slot, int index) { return Pointer{c.text[slot].data() ? at(slot, index) : nullptr}; };
  const Pointer x = text(first, c.skew[0]), y = text(second, 0), z = text(third, 0), other = c.in_place ? x : y;
  const Pointer out = provided(c.in_place ? at(first, c.skew[0] + c.shift) : at(destination, c.skew[1]));
#define OPERATION(name, narrow, twin, arguments, provides, places) \
  case Op::name:                                                   \
    return c.wide ? (QUVEX_##twin arguments, Result{}) : (QUVEX_##narrow arguments, Result{});
  switch (c.op) {
#include "operations.def"
    case Op::end:
      break;
  }
#undef OPERATION
  return {};
}

inline State after(State state, const Case& c) {
  const bool widens = c.op == Op::widen || c.op == Op::widen_units;
  for (int slot = first; slot <= destination; ++slot) {
    auto* const bytes = memory.bytes[slot];
    const bool wide = c.wide && !(widens && slot == first) && !(c.op == Op::escape && slot == destination);
    memory.unit_size[slot] = wide ? 2 : 1;
    if (wide) std::copy_n(state.unit[slot], room, reinterpret_cast<quvex_wide*>(bytes));
    if (!wide) std::copy_n(state.unit[slot], room, bytes);
  }
  std::fill_n(memory.array, room, &memory.cursor);
  memory.cursor = state.cursor;
  state.result = invoke(c).value;
  for (int slot = first; slot <= destination; ++slot) {
    const auto* const bytes = memory.bytes[slot];
    if (memory.unit_size[slot] == 2) std::copy_n(reinterpret_cast<const quvex_wide*>(bytes), room, state.unit[slot]);
    if (memory.unit_size[slot] == 1) std::copy_n(bytes, room, state.unit[slot]);
  }
  for (int i = 0; c.op == Op::split && i < room; ++i) {
    void* const token = memory.array[i];
    if (token != &memory.cursor) state.unit[array][i] = static_cast<char16_t>(place_of(token));
  }
  state.cursor = memory.cursor;
  return state;
}

}  // namespace oracle

#endif
