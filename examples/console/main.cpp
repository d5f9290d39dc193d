// A console on the UART: type an operation and its arguments, and see its result and the units that it wrote.

#include "../input.h"
#include "../print.h"
#include "call.h"

namespace {

struct Line {
  char text[200];
  uint32_t length;
  bool is_cut;   // more came than it holds
  bool is_last;  // the input ended with it
};

void rub_out(Line* line) {
  if (!line->length) return;
  --line->length;
  line->is_cut = false;
  print("\b \b");
}

// A byte that is not printable ASCII becomes the escape that stands for it in a text: no control character is echoed.
void put(Line* line, int byte) {
  if (byte == '\t') byte = ' ';
  char shown[11];
  shown[0] = static_cast<char>(byte);
  shown[1] = 0;
  if (byte < ' ' || byte > '~') {
    // The 1 in front keeps a leading zero, and makes room for the x.
    quvex::to_text_bounded(0x100 + byte, shown + 1, sizeof shown - 1, 16);
    shown[0] = '\\';
    shown[1] = 'x';
  }
  const auto length = static_cast<uint32_t>(quvex::length(shown));
  line->is_cut = line->is_cut || line->length + length >= sizeof line->text;
  if (line->is_cut) return;
  quvex::copy_bounded(line->text + line->length, sizeof shown, shown);
  line->length += length;
  print(shown);
}

// Echoes what is typed, as consoles on a serial line do, since the terminal is in raw mode. Input from a pipe is echoed
// after its prompt, too.
void read_line(Line* line) {
  enum { interrupt = 3, backspace = 8, kill = 21, escape = 27, rubout = 127 };
  static int byte = 0;       // kept from line to line: a line feed after a return ends no second line
  bool is_sequence = false;  // that a cursor key sends
  line->length = 0;
  line->is_cut = false;
  print("> ");
  while (true) {
    const int previous = byte;
    byte = read_byte();
    if (byte == '\n' && previous == '\r') continue;
    if (byte == '\r' || byte == '\n' || byte == end_of_input) break;
    if (is_sequence && byte >= ' ') {
      is_sequence = byte < '@' || byte == '[' || byte == 'O';
      continue;
    }
    is_sequence = byte == escape;
    if (byte == backspace || byte == rubout) {
      rub_out(line);
    } else if (byte == kill || byte == interrupt) {
      while (line->length) rub_out(line);
    } else if (byte != escape) {
      put(line, byte);
    }
  }
  line->is_last = byte == end_of_input;
  line->text[line->length] = 0;
  print("\n");
}

void print_form(const Operation& operation) {
  print(!operation.wide.call ? "       " : operation.narrow.call ? "[wide] " : " wide  ");
  print(operation.name, " ", operation.parameters, "\n");
}

void print_help() {
  for (const Operation* operation = operations; operation < operations_end; ++operation) print_form(*operation);
  print("Arguments stand in this order, or as name=value; those in brackets may be left out.\n");
  print("Values: \"text\\x80\\u4e2d\", 'c', 16, 0x10, null, or another text's name, as in destination=source+1.\n");
  print("Units: 'c', \\xHH or \\uHHHH, 0 for a terminator, # where the marker \\xa5 or \\ua5a5 still stands.\n");
  print("help NAME tells more of an operation. A name as in C or C++ and a link name will do. quit ends.\n");
}

void print_help_on(char* name) {
  bool is_wide;
  quvex::trim(name, " ");
  const Operation* operation = find_operation(name, &is_wide);
  if (!operation) return;
  print_form(*operation);
  print("What it does: ", operation->summary, ".\n");
  const Form* form = operation->narrow.call ? &operation->narrow : &operation->wide;
  print("Link name: ", form->link_name);
  if (form != &operation->wide && operation->wide.call) print(", wide ", operation->wide.link_name);
  print("\n");
  char names[80];
  char* parameters[4];
  quvex::copy(names, operation->parameters);
  const int32_t count = quvex::split(names, " ", parameters);
  for (int32_t i = 0; i < count; ++i) print("  ", parameters[i], " takes ", takes(form->kinds[i]), "\n");
}

void print_unit(int32_t unit, bool is_wide) {
  const char quoted[] = {'\'', static_cast<char>(unit), '\'', 0};
  if (unit >= ' ' && unit <= '~') return print(quoted);
  if (!unit) return print("0");
  char digits[10];
  quvex::to_text((is_wide ? 0x10000 : 0x100) + unit, digits, 16);  // The 1 in front keeps leading zeros.
  print(is_wide ? "\\u" : "\\x", digits + 1);
}

void print_units(const Argument& argument) {
  int32_t end = Argument::capacity;
  while (end > 0 && argument.is_marker(end - 1)) --end;
  print(argument.name, ":");
  for (int32_t i = 0; i < end + 4 && i < Argument::capacity; ++i) {
    print(" ");
    if (argument.is_marker(i)) {
      print("#");
    } else {
      print_unit(argument.unit(i), argument.is_wide());
    }
  }
  print("\n");
}

void print_place(const Call& call, const void* address) {
  if (!address) return print("null");
  for (int32_t i = 0; i < call.form->count; ++i) {
    const Argument& argument = call.arguments[i];
    const auto bytes = static_cast<int32_t>(static_cast<const quvex_narrow*>(address) - argument.narrow);
    if (bytes < 0 || bytes >= 2 * Argument::capacity) continue;
    return print(argument.name, "+", argument.is_wide() ? bytes / 2 : bytes);
  }
  print("a constant empty string");
}

void run(const Call& call, Argument* arguments) {
  const Outcome outcome = call.form->call(arguments);
  if (outcome.kind == Outcome::number) print("result: ", outcome.value, "\n");
  if (outcome.kind == Outcome::pointer) {
    print("result: ");
    print_place(call, outcome.address);
    print("\n");
  }
  for (int32_t i = 0; i < call.form->count; ++i) {
    const Argument& argument = arguments[i];
    if (argument.is_null) {
      if (argument.is_buffer()) print(argument.name, ": null\n");
      continue;
    }
    if (argument.is_buffer()) print_units(*argument.owner);
    if (argument.kind == Kind::cursor) print("cursor: ", static_cast<int32_t>(argument.cursor), "\n");
    if (argument.kind == Kind::array) {
      print("array:");
      for (int32_t slot = 0; slot < outcome.value; ++slot) {
        print(" ");
        print_place(call, argument.slots[slot]);
      }
      print("\n");
    }
  }
}

}  // namespace

int main() {
  static Call call;
  static Line line;
  print("Type an operation and its arguments, or help. Ctrl-D or quit ends.\n");
  do {
    read_line(&line);
    quvex::trim(line.text, " ");
    if (line.is_cut) {
      print("? the line is longer than 199 characters\n");
    } else if (quvex::compare(line.text, "quit") == 0 || quvex::compare(line.text, "exit") == 0) {
      break;
    } else if (quvex::compare(line.text, "help") == 0) {
      print_help();
    } else if (quvex::compare_counted(line.text, "help ", 5) == 0) {
      print_help_on(line.text + 5);
    } else if (*line.text && read_call(line.text, &call)) {
      run(call, call.arguments);
    }
  } while (!line.is_last);
  board_exit(0);
}
