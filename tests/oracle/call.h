#ifndef TESTS_ORACLE_CALL_H
#define TESTS_ORACLE_CALL_H

#include <algorithm>
#include <bitset>
#include <string_view>
#include <type_traits>

#include "quvex.h"

// One call of an operation, described without its width, and the memory in which it is made.
namespace oracle {

#define OPERATION(name, ...) name,
enum class Op : uint8_t {
#include "operations.def"
};
#undef OPERATION

enum Extra { nothing, the_same_twice, output, output_or_in_place };

struct Operation {
  const char* name;
  std::string_view narrow, wide;  // Link numbers; one operation alone has the same twice.
  Extra extra;
};
#define OPERATION(name, narrow, wide, extra, ...) {#name, #narrow, #wide, extra},
constexpr Operation operations[] = {
#include "operations.def"
};
#undef OPERATION

constexpr const Operation& operation(Op op) { return operations[static_cast<int>(op)]; }

#ifndef ORACLE_ROOM
#define ORACLE_ROOM 64
#endif
constexpr int room = ORACLE_ROOM;  // Units in a slot.

// What a call can touch: its strings (an append's destination is the second), a destination, split's array, a cursor.
enum Slot { first, second, third, destination, tokens, cursor };
constexpr int strings = destination + 1, slots = cursor + 1;

using Text = std::u16string_view;  // The values of a string's units; no data is a null string.
using Units = std::bitset<room>;   // Some of a slot's.

enum class Placing { null, apart, in_place };  // In place: at the first string; a comparison of one string with itself.

struct Call {
  Op op;
  bool wide;
  Text text[destination];
  Placing placing;  // Of the destination, array or cursor; apart if there is none.
  int at[strings];  // Where in its slot each begins.
  int shift;        // How far after its source a destination in place begins.
  int32_t n, m;
};

struct State {
  char16_t unit[strings][room];
  int32_t token[room];
  uint32_t cursor;
  int64_t result;  // A number, or a pointer as given by `place_of`.
};

constexpr int64_t null_pointer = -1, empty_constant = -2, elsewhere = -3;
constexpr char16_t untouched = 0xEE;
constexpr int32_t no_token = -1;

struct Memory {
  alignas(8) unsigned char bytes[strings][room * 2];
  bool reversed;  // The slots stand the other way round.
  unsigned unit_size[strings];
  void* token[room];
  uint32_t cursor;
};
inline Memory memory;
inline unsigned char* bytes_of(int slot) { return memory.bytes[memory.reversed ? strings - 1 - slot : slot]; }

// The units that a call read and wrote, where the compiler made the library tell each load and store.
struct Footprint {
  Op op;
  int terminator;      // The first string's index of it.
  const void* caller;  // Where the caller's part of the stack begins.
  Units read[slots], written[slots];
  bool stray, broad, searched_on;
  bool ended;  // The terminator has been read.
};
inline Footprint footprint;

// What a caller may ask for, in slots of this size.
inline bool is_allowed(const Call& c) {
  const Operation& o = operation(c.op);
  const auto a = int64_t(c.text[first].size()), b = int64_t(c.text[second].size()), r = int64_t(c.text[third].size());
  const int from = c.at[first], in_place = c.placing == Placing::in_place;
  const int to = in_place ? from + c.shift : c.at[destination];
  if (!c.wide && o.narrow == o.wide) return false;
  if (c.placing == Placing::null && o.extra != output && o.extra != output_or_in_place) return false;
  if (in_place && !c.text[first].data()) return false;
  if (in_place && o.extra != the_same_twice && o.extra != output_or_in_place) return false;
  if (in_place && o.extra == the_same_twice && c.text[second].data()) return false;  // There is no other string.
  if (to < 0 || (c.shift && !(in_place && c.op == Op::copy_units))) return false;
  for (int slot = first; slot < destination; ++slot) {
    if (c.at[slot] + int64_t(c.text[slot].size()) >= room) return false;
  }
  switch (c.op) {
    case Op::next_token:
      return c.n >= 0 && c.n <= a;
    case Op::trim:
      return c.text[first].data();
    case Op::append:
    case Op::append_bounded:
    case Op::append_counted:
    case Op::append_bounded_counted:
      return c.at[second] + b + a < room;
    case Op::replace:
      if (in_place && b && r >= b && c.text[first].find(c.text[second]) != Text::npos) return false;
      return !b || to + a + a / b * std::max<int64_t>(r - b, 0) < room;
    case Op::to_text:
      return to + 34 <= room;
    case Op::escape:
      return to + std::min<int64_t>(9 * a, c.n) < room;
    case Op::widen_units:
    case Op::copy_units:
      return c.n <= room - std::max(from, to);
    default:
      return to + a < room;
  }
}

inline void prepare(const Call& c, State& state) {
  for (auto& units : state.unit) std::fill_n(units, room, untouched);
  std::fill_n(state.unit[first], room, u'a');  // What runs past the terminator finds letters.
  for (int slot = first; slot < destination; ++slot) {
    if (c.text[slot].data()) *std::copy(c.text[slot].begin(), c.text[slot].end(), state.unit[slot] + c.at[slot]) = 0;
  }
  std::fill_n(state.token, room, no_token);
  state.cursor = static_cast<uint32_t>(c.n);
  state.result = 0;
}

constexpr int64_t place(int slot, int64_t index) { return int64_t{slot} * room + index; }

inline int64_t place_of(const void* pointer) {
  static const void* constant;  // One address on every call.
  if (!pointer) return null_pointer;
  const auto offset = reinterpret_cast<uintptr_t>(pointer) - reinterpret_cast<uintptr_t>(memory.bytes);
  if (offset < sizeof memory.bytes) {
    const auto position = static_cast<int>(offset / sizeof memory.bytes[0]);
    const int slot = memory.reversed ? strings - 1 - position : position;
    return place(slot, static_cast<int64_t>(offset % sizeof memory.bytes[0] / memory.unit_size[slot]));
  }
  if (!constant) constant = pointer;
  return pointer == constant && !*static_cast<const char*>(pointer) ? empty_constant : elsewhere;
}

struct Pointer {  // To units of whatever width the parameter has.
  void* address;
  template <class Unit>
  operator Unit*() const {
    return static_cast<Unit*>(address);
  }
};

template <class Function, class... Arguments>
int64_t result_of(Function* function, Arguments... arguments) {
  using Result = std::invoke_result_t<Function*, Arguments...>;
  footprint.caller = __builtin_frame_address(0);
  if constexpr (std::is_pointer_v<Result>) return place_of(function(arguments...));
  if constexpr (std::is_integral_v<Result>) return function(arguments...);
  if constexpr (std::is_void_v<Result>) function(arguments...);
  return 0;
}

inline int64_t invoke(const Call& c) {
  const auto address = [](int slot, int index) {
    return bytes_of(slot) + index * static_cast<int>(memory.unit_size[slot]);
  };
  const auto string = [&](int slot) { return Pointer{c.text[slot].data() ? address(slot, c.at[slot]) : nullptr}; };
  const auto unless_null = [&](void* object) { return Pointer{c.placing == Placing::null ? nullptr : object}; };
  const bool in_place = c.placing == Placing::in_place;
  const Pointer one = string(first), three = string(third);
  const Pointer two = in_place && operation(c.op).extra == the_same_twice ? one : string(second);
  const Pointer out =
      unless_null(in_place ? address(first, c.at[first] + c.shift) : address(destination, c.at[destination]));
  const Pointer cursor = unless_null(&memory.cursor), tokens = unless_null(memory.token);
  const int32_t n = c.n, m = c.m;
  switch (c.op) {
#define OPERATION(name, number, wide_number, extra, ...) \
  case Op::name:                                         \
    return c.wide ? result_of(QUVEX_##wide_number, __VA_ARGS__) : result_of(QUVEX_##number, __VA_ARGS__);
#include "operations.def"
#undef OPERATION
  }
  return elsewhere;
}

inline unsigned unit_size(const Call& c, int slot) {
  const bool source_is_narrow = c.op == Op::widen || c.op == Op::widen_units;
  const bool destination_is_narrow = c.op == Op::escape;
  return !c.wide || (slot == first && source_is_narrow) || (slot == destination && destination_is_narrow) ? 1 : 2;
}

// A call must not find a zero on the stack by chance.
[[gnu::noinline]] inline void soil_stack() {
  volatile uint64_t below[16];
  for (volatile uint64_t& word : below) word = ~uint64_t{0};
}

// Makes the call in memory as it is in `state`, which then holds what the call left there.
inline void perform(const Call& c, State& state) {
  memory.reversed = !memory.reversed;
  for (int slot = first; slot < strings; ++slot) {
    auto* const bytes = bytes_of(slot);
    memory.unit_size[slot] = unit_size(c, slot);
    if (memory.unit_size[slot] == 2) std::copy_n(state.unit[slot], room, reinterpret_cast<quvex_wide*>(bytes));
    if (memory.unit_size[slot] == 1) std::copy_n(state.unit[slot], room, bytes);
  }
  if (c.op == Op::split) std::fill_n(memory.token, room, &memory.cursor);  // A place that no token has.
  memory.cursor = state.cursor;
  soil_stack();
  state.result = invoke(c);
  for (int slot = first; slot < strings; ++slot) {
    const auto* const bytes = bytes_of(slot);
    if (memory.unit_size[slot] == 2) std::copy_n(reinterpret_cast<const quvex_wide*>(bytes), room, state.unit[slot]);
    if (memory.unit_size[slot] == 1) std::copy_n(bytes, room, state.unit[slot]);
  }
  for (int i = 0; c.op == Op::split && i < room; ++i) {
    if (memory.token[i] != &memory.cursor) state.token[i] = static_cast<int32_t>(place_of(memory.token[i]));
  }
  state.cursor = memory.cursor;
}

}  // namespace oracle

#endif
