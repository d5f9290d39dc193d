#include "call.h"

namespace {

constexpr Kind kind_of(int32_t) { return Kind::number; }
constexpr Kind kind_of(const quvex_narrow*) { return Kind::narrow_text; }
constexpr Kind kind_of(const quvex_wide*) { return Kind::wide_text; }
constexpr Kind kind_of(quvex_narrow*) { return Kind::narrow_buffer; }
constexpr Kind kind_of(quvex_wide*) { return Kind::wide_buffer; }
constexpr Kind kind_of(uint32_t*) { return Kind::cursor; }
constexpr Kind kind_of(void*) { return Kind::array; }

int32_t value(const Argument& argument, int32_t) { return argument.number; }
template <class Type>
Type* value(Argument& argument, Type*) {
  if (argument.is_null) return nullptr;
  void* units = argument.owner->narrow + (argument.is_wide() ? 2 : 1) * argument.offset;
  return static_cast<Type*>(units);
}

Outcome outcome(int32_t number) { return {Outcome::number, number, nullptr}; }
Outcome outcome(const void* address) { return {Outcome::pointer, 0, address}; }

template <int... Index>
struct Indices {};
template <int Count, int... Index>
struct CountUp : CountUp<Count - 1, Count - 1, Index...> {};
template <int... Index>
struct CountUp<0, Index...> : Indices<Index...> {};

template <class Result, class... Type, int... Index>
Outcome invoke(Result (*operation)(Type...), Argument* arguments, Indices<Index...>) {
  return outcome(operation(value(arguments[Index], Type())...));
}

template <class... Type, int... Index>
Outcome invoke(void (*operation)(Type...), Argument* arguments, Indices<Index...>) {
  operation(value(arguments[Index], Type())...);
  return {Outcome::nothing, 0, nullptr};
}

// A form follows from the declaration in quvex.h.
template <auto operation>
struct Declared {
  static constexpr Form form(const char*) { return {}; }
};
template <class Result, class... Type, Result (*operation)(Type...)>
struct Declared<operation> {
  static Outcome call(Argument* arguments) { return invoke(operation, arguments, CountUp<sizeof...(Type)>()); }
  static constexpr Kind kinds[] = {kind_of(Type())...};
  static constexpr Form form(const char* link_name) { return {call, kinds, sizeof...(Type), link_name}; }
};

bool overlap(const Argument& first, const Argument& second) {
  return !first.is_null && !second.is_null && first.owner == second.owner;
}

bool is_same(const Argument& first, const Argument& second) {
  return overlap(first, second) && first.offset == second.offset;
}

const char* overlaps(const Form& form, Argument* arguments) {
  for (int32_t i = 0; i < form.count; ++i) {
    for (int32_t j = 0; j < form.count; ++j) {
      if (i != j && arguments[i].is_buffer() && overlap(arguments[i], arguments[j])) {
        return "what is written must not overlap what is read: give each its own text";
      }
    }
  }
  return nullptr;
}

const char* overlaps_unless_same(const Form& form, Argument* arguments) {
  const bool is_itself = is_same(arguments[0], arguments[1]) || is_same(arguments[0], arguments[form.count - 1]);
  return is_itself ? nullptr : overlaps(form, arguments);
}

const char* exceeds(const Form&, Argument* arguments) {
  const int32_t offset = arguments[0].offset + arguments[1].offset;
  return arguments[2].number > Argument::capacity - offset
             ? "count is beyond the console's buffers: it takes 640 less the offsets at most"
             : nullptr;
}

const char* leaves_string(const Form& form, Argument* arguments) {
  const bool is_inside = arguments[0].is_null || arguments[1].is_null || arguments[1].number <= arguments[0].length;
  return is_inside ? overlaps(form, arguments) : "cursor must be within string: from 0 to its length";
}

const char* trims_null(const Form& form, Argument* arguments) {
  return arguments[0].is_null ? "string must not be null; \"\" is an empty one" : overlaps(form, arguments);
}

const char* replaces_badly(const Form& form, Argument* arguments) {
  Argument& destination = arguments[3];
  if (destination.is_null) return nullptr;
  const bool is_wide = destination.is_wide();
  const auto length = is_wide ? Declared<QUVEX_002039>::call : Declared<QUVEX_002014>::call;
  const auto find = is_wide ? Declared<QUVEX_002049>::call : Declared<QUVEX_002022>::call;
  if (is_same(arguments[0], destination) && !overlap(arguments[1], destination) &&
      !overlap(arguments[2], destination)) {
    const bool is_shorter = length(arguments + 2).value < length(arguments + 1).value;
    return is_shorter || !find(arguments).address ? nullptr : "in place, replacement must be shorter than pattern";
  }
  // Asked for the length alone, the operation itself tells what it needs.
  destination.is_null = true;
  const bool fits = form.call(arguments).value < Argument::capacity;
  destination.is_null = false;
  return fits ? overlaps(form, arguments) : "the result is beyond the console's buffers: it takes 639 units at most";
}

// By link name, the narrow one if there is one.
template <auto operation>
constexpr Refuse* refusal = overlaps;
template <>
constexpr Refuse* refusal<QUVEX_002009> = overlaps_unless_same;  // copy
template <>
constexpr Refuse* refusal<QUVEX_002010> = overlaps_unless_same;  // copy_bounded
template <>
constexpr Refuse* refusal<QUVEX_002017> = overlaps_unless_same;  // copy_counted
template <>
constexpr Refuse* refusal<QUVEX_002023> = leaves_string;  // next_token
template <>
constexpr Refuse* refusal<QUVEX_002024> = trims_null;  // trim
template <>
constexpr Refuse* refusal<QUVEX_002020> = replaces_badly;  // replace
template <>
constexpr Refuse* refusal<QUVEX_002002> = exceeds;  // widen_units
template <>
constexpr Refuse* refusal<QUVEX_002028> = exceeds;  // copy_units
template <auto narrow, auto wide>
constexpr Refuse* refusal_of = refusal<narrow>;
template <auto wide>
constexpr Refuse* refusal_of<nullptr, wide> = refusal<wide>;

}  // namespace

// The rows are derived from quvex.h.
const Operation operations[] = {
#define OPERATION(name, narrow, wide, parameters, summary) \
  {#name, parameters, summary, Declared<narrow>::form(#narrow), Declared<wide>::form(#wide), refusal_of<narrow, wide>},
#include "operations.inc"
#undef OPERATION
};
const Operation* const operations_end = operations + sizeof operations / sizeof *operations;
