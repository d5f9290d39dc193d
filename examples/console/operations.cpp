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
  static constexpr Form form = {nullptr, nullptr, 0};
};
template <class Result, class... Type, Result (*operation)(Type...)>
struct Declared<operation> {
  static Outcome call(Argument* arguments) { return invoke(operation, arguments, CountUp<sizeof...(Type)>()); }
  static constexpr Kind kinds[] = {kind_of(Type())...};
  static constexpr Form form = {call, kinds, sizeof...(Type)};
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
        return "what is written must not overlap what is read";
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
  return arguments[2].number > Argument::capacity - offset ? "count is beyond the console's buffers" : nullptr;
}

const char* leaves_string(const Form& form, Argument* arguments) {
  const bool is_inside = arguments[0].is_null || arguments[1].is_null || arguments[1].number <= arguments[0].length;
  return is_inside ? overlaps(form, arguments) : "cursor must be within string";
}

const char* trims_null(const Form& form, Argument* arguments) {
  return arguments[0].is_null ? "string must not be null" : overlaps(form, arguments);
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
  return fits ? overlaps(form, arguments) : "the result is beyond the console's buffers";
}

template <auto narrow, auto wide = nullptr>
constexpr Operation row(const char* name, const char* parameters,
                        const char* (*refuse)(const Form&, Argument*) = overlaps) {
  return {name, parameters, Declared<narrow>::form, Declared<wide>::form, refuse};
}

}  // namespace

const Operation operations[] = {
    row<QUVEX_002014, QUVEX_002039>("length", "string"),
    row<QUVEX_002009, QUVEX_002034>("copy", "[destination] source", overlaps_unless_same),
    row<QUVEX_002010, QUVEX_002035>("copy_bounded", "[destination] size source", overlaps_unless_same),
    row<QUVEX_002017, QUVEX_002044>("copy_counted", "[destination] source count", overlaps_unless_same),
    row<QUVEX_002005, QUVEX_002030>("append", "destination source"),
    row<QUVEX_002006, QUVEX_002031>("append_bounded", "destination size source"),
    row<nullptr, QUVEX_002041>("append_counted", "destination source count"),
    row<nullptr, QUVEX_002042>("append_bounded_counted", "destination size source count"),
    row<QUVEX_002026>("character_to_lower", "character"),
    row<QUVEX_002027>("character_to_upper", "character"),
    row<QUVEX_002015, QUVEX_002040>("to_lower", "string"),
    row<QUVEX_002025, QUVEX_002052>("to_upper", "string"),
    row<QUVEX_002008, QUVEX_002033>("compare", "first second"),
    row<QUVEX_002016, QUVEX_002043>("compare_counted", "first second count"),
    row<QUVEX_002012, QUVEX_002037>("compare_folded", "first second"),
    row<QUVEX_002019, QUVEX_002046>("compare_folded_counted", "first second count"),
    row<QUVEX_002007, QUVEX_002032>("find_character", "string character"),
    row<QUVEX_002022, QUVEX_002049>("find", "haystack needle"),
    row<QUVEX_002013, QUVEX_002038>("find_folded", "haystack needle"),
    row<QUVEX_002023, QUVEX_002050>("next_token", "string [cursor] set", leaves_string),
    row<QUVEX_002021, QUVEX_002048>("split", "string set [array]"),
    row<QUVEX_002024, QUVEX_002051>("trim", "string set", trims_null),
    row<QUVEX_002020, QUVEX_002047>("replace", "source pattern replacement [destination]", replaces_badly),
    row<QUVEX_002003, QUVEX_002004>("to_text", "value [destination] radix"),
    row<QUVEX_002000, QUVEX_002053>("to_integer", "source"),
    row<QUVEX_002029>("escape", "source [destination] size"),
    row<QUVEX_002001>("widen", "source [destination] size"),
    row<QUVEX_002002>("widen_units", "source [destination] count", exceeds),
    row<nullptr, QUVEX_002028>("copy_units", "source [destination] count", exceeds),
};
const Operation* const operations_end = operations + sizeof operations / sizeof *operations;
