// The console's parser, table and refusals for the page: a line comes in, a call in guarded memory goes out.

#include "../examples/console/call.h"
#include "../examples/print.h"

namespace {

// Each argument's units stand far from the others', so that an access tells whose bound it left. The first stands
// highest: nothing lies above it that a wild cursor could meet.
struct Room {
  Argument argument;
  char guard[1 << 18];
};
Room rooms[4];

Call call;
char output[4000];
char* end_of_output;

Argument& room(const Argument* argument) { return rooms[3 - (argument - call.arguments)].argument; }

void tell(const Argument& argument) {
  const bool is_text = argument.is_text();
  const int32_t size = argument.kind == Kind::number ? 0 : !is_text ? 4 : argument.is_wide() ? 2 : 1;
  const int32_t most = is_text ? Argument::capacity : argument.kind == Kind::array ? Argument::slot_count : 1;
  print("{\"name\":\"", argument.name, "\",\"size\":", size, ",\"isText\":", is_text, ",\"most\":", most);
  print(",\"isBuffer\":", argument.is_buffer(), ",\"isGiven\":", argument.is_given, ",\"isNull\":", argument.is_null);
  print(",\"number\":", argument.number, ",\"owner\":", static_cast<int32_t>(argument.owner - call.arguments));
  print(",\"offset\":", argument.offset, ",\"length\":", argument.length,
        ",\"base\":", reinterpret_cast<int32_t>(room(&argument).narrow), "}");
}

}  // namespace

extern "C" {

char line[1000];

void board_write(char character) {
  if (end_of_output < output + sizeof output - 1) *end_of_output++ = character;
}

// What the console says about the line, then a line that tells the call: 0 it is none, 1 the contract excludes it,
// 2 neither; the operation, in which widths, and its arguments. Only with 1 and 2 may `run` follow.
const char* read() {
  end_of_output = output;
  call.operation = nullptr;
  const bool is_allowed = read_call(line, &call);
  print("\n{\"verdict\":");
  if (!call.operation) return print("0,\"arguments\":[]}"), *end_of_output = 0, output;
  // A refusal is the contract's, and not the parser's, if it is what the operation says of the whole call.
  const char* reason = is_allowed ? nullptr : call.operation->refuse(*call.form, call.arguments);
  const bool is_refused = reason && quvex::compare_counted(output + 2, reason, quvex::length(reason)) == 0;
  print(is_allowed   ? "2"
        : is_refused ? "1"
                     : "0",
        ",\"name\":\"", call.operation->name, "\",\"parameters\":\"", call.operation->parameters);
  print("\",\"isWide\":", call.form == &call.operation->wide, ",\"arguments\":[");
  for (int32_t i = 0; i < call.form->count; ++i) {
    room(&call.arguments[i]) = call.arguments[i];
    print(i ? "," : "");
    tell(call.arguments[i]);
  }
  print("]}");
  *end_of_output = 0;
  for (Argument& argument : call.arguments) argument.owner = &room(argument.owner ? argument.owner : &argument);
  return output;
}

const Outcome* run() {
  static Outcome outcome;
  outcome = call.form->call(call.arguments);
  return &outcome;
}
}
