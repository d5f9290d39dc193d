#include "../print.h"
#include "call.h"
#include "quvex_line.h"

namespace {

template <class... Item>
bool fail(Item... items) {
  print("? ", items..., "\n");
  return false;
}

bool fail_unknown(const char* name) {
  const char* nearest = nullptr;
  int32_t most = 1;
  for (const Operation* operation = operations; operation < operations_end; ++operation) {
    // The magnitude of the order is one more than the length of the common prefix.
    const int32_t order = quvex::compare_folded(name, operation->name);
    const int32_t shared = order == 0 ? INT32_MAX : (order < 0 ? -order : order) - 1;
    if (shared <= most) continue;
    nearest = operation->name;
    most = shared;
  }
  return nearest ? fail("no operation ", name, "; did you mean ", nearest)
                 : fail("no operation ", name, "; help lists them");
}

// Step over a unit, and the one after a backslash between quotes. The result is the quote that is open now, or 0.
char step(const char** unit, char quote) {
  const char first = *(*unit)++;
  if (!quote) return first == '"' || first == '\'' ? first : '\0';
  if (first == '\\' && **unit) ++*unit;
  return first == quote ? '\0' : quote;
}

// Put blanks in place of what C sets around and between arguments.
void clear_punctuation(char* line) {
  char quote = 0;
  while (*line) {
    if (!quote && quvex::find_character("(),;\t", *line)) *line = ' ';
    const char* next = line;
    quote = step(&next, quote);
    line += next - line;
  }
}

bool read_operation(char* line, uint32_t* cursor, Call* call) {
  const char* name = quvex::next_token(line, cursor, " ");
  bool is_wide = quvex::compare(name, "wide") == 0;
  if (is_wide) name = quvex::next_token(line, cursor, " ");
  if (!name) return fail("no operation is named; help lists them");
  bool is_wide_link;
  const Operation* operation = find_operation(name, &is_wide_link);
  if (!operation) return false;
  if (is_wide && !operation->wide.call) return fail(name, " has no wide form; type it without wide");
  is_wide = is_wide || is_wide_link || !operation->narrow.call;
  call->operation = operation;
  call->form = is_wide ? &operation->wide : &operation->narrow;
  return true;
}

// Whether an argument that may be left out takes a value without a name: if the line has a value for each argument, and
// this one's is not given by name.
bool has_place(const Call& call, const char* name, const char* line) {
  const int32_t length = quvex::length(name);
  int32_t values = 0;
  while (true) {
    while (*line == ' ') ++line;
    if (!*line) return values == call.form->count;
    if (quvex::compare_counted(line, name, length) == 0 && line[length] == '=') return false;
    ++values;
    for (char quote = 0; *line && (quote || *line != ' ');) quote = step(&line, quote);
  }
}

// Give each argument its name, and markers to point to.
void prepare(Call* call, const char* line) {
  static char names[80];
  char* name[4];
  quvex::copy(names, call->operation->parameters);
  quvex::split(names, " ", name);
  for (int32_t i = 0; i < call->form->count; ++i) {
    Argument& argument = call->arguments[i];
    argument.name = name[i];
    argument.is_provided = *name[i] == '[';
    quvex::trim(name[i], "[]");
    argument.has_place = !argument.is_provided || has_place(*call, name[i], line);
    argument.kind = call->form->kinds[i];
    argument.is_given = argument.is_null = false;
    argument.owner = &argument;
    argument.number = argument.offset = argument.length = 0;
    for (int32_t j = 0; j < Argument::capacity; ++j) argument.wide[j] = Argument::wide_marker;
    if (argument.kind == Kind::cursor) argument.cursor = 0;
  }
}

Argument* find_named(Call* call, const char* name) {
  for (int32_t i = 0; i < call->form->count; ++i) {
    if (quvex::compare(name, call->arguments[i].name) == 0) return &call->arguments[i];
  }
  return nullptr;
}

bool begins_number(char first) { return quvex::find_character("-0123456789", first); }

// Whether a value with this first character may be meant for the argument; any for 0.
bool suits(const Argument& argument, char first) {
  const bool is_number = argument.kind == Kind::number;
  if (first == '"') return argument.is_text();
  if (first == '\'') return is_number;
  if (begins_number(first)) return is_number || argument.kind == Kind::cursor;
  return !first || !is_number;
}

// The first that must still be given, of those that a value with this first character suits.
Argument* find_missing(Call* call, char first) {
  for (int32_t i = 0; i < call->form->count; ++i) {
    Argument& argument = call->arguments[i];
    if (!argument.is_given && argument.has_place && suits(argument, first)) return &argument;
  }
  return nullptr;
}

int32_t digit(char character) {
  const char* digits = "0123456789abcdef";
  const char* found = quvex::find_character(digits, quvex::character_to_lower(character));
  return found ? static_cast<int32_t>(found - digits) : -1;
}

bool refuse(const Argument& argument, const char* value, const char* hint = "") {
  return fail(argument.name, " takes ", takes(argument.kind), ", not ", value, hint);
}

// One unit between quotes; -1 if there is none, or a malformed escape.
int32_t read_unit(const char** text) {
  const auto first = static_cast<uint8_t>(**text);
  if (!first) return -1;
  ++*text;
  if (first != '\\') return first;
  const char kind = **text;
  if (quvex::find_character("\\\"'", kind)) return *(*text)++;
  if (kind != 'x' && kind != 'u') return -1;
  ++*text;
  int32_t number = 0;
  for (int32_t digits = kind == 'x' ? 2 : 4; digits > 0; --digits, ++*text) {
    if (digit(**text) < 0) return -1;
    number = number * 16 + digit(**text);
  }
  return number;
}

void set_unit(Argument* argument, int32_t index, int32_t unit) {
  if (argument->is_wide()) {
    argument->wide[index] = static_cast<quvex_wide>(unit);
  } else {
    argument->narrow[index] = static_cast<quvex_narrow>(unit);
  }
}

bool read_text(const Call& call, Argument* argument, const char** text) {
  while (**text != '"') {
    if (!**text) return fail(argument->name, " lacks its closing quote");
    if (argument->length == Argument::longest_text) return fail(argument->name, " takes 64 units at most");
    const int32_t unit = read_unit(text);
    if (unit < 0) return fail("an escape in ", argument->name, " is none of \\xHH \\uHHHH \\\\ \\\" \\'");
    if (unit > 255 && !argument->is_wide()) {
      const bool has_twin = call.operation->wide.call;
      return fail(argument->name, " is narrow and goes to \\xff", has_twin ? "; type wide before the operation" : "");
    }
    set_unit(argument, argument->length++, unit);
  }
  set_unit(argument, argument->length, 0);
  return true;
}

bool read_number(const char* word, int32_t* number) {
  const quvex::integer decimal = quvex::read_integer(word);
  const quvex::hexadecimal bits = quvex::read_hexadecimal(word);
  const bool is_decimal = decimal.length && !word[decimal.length];
  *number = is_decimal ? decimal.value : static_cast<int32_t>(bits.value);
  return is_decimal || (quvex::find_character(word, 'x') && bits.length && !word[bits.length]);
}

// The name of another argument, plus an offset or not.
bool read_alias(Call* call, Argument* argument, char* word) {
  char* plus = quvex::find_character(word, '+');
  if (plus) *plus = 0;
  Argument* owner = find_named(call, word);
  if (!owner) return refuse(*argument, word, "; text stands in quotes");
  if (!owner->is_text() || !owner->is_given || owner->is_null || owner->owner != owner) {
    return fail(word, " has no text of its own yet: give it one before, as in ", word, "=\"text\"");
  }
  if (owner->is_wide() != argument->is_wide()) {
    return fail(word, " has the other width: give ", argument->name, " a text of its own");
  }
  if (plus && !read_number(plus + 1, &argument->offset)) return fail("an offset is a number of units, not ", plus + 1);
  if (argument->offset < 0 || argument->offset > owner->length) {
    return fail("the offset leaves ", word, ", which has a length of ", owner->length);
  }
  argument->owner = owner;
  return true;
}

bool read_word(Call* call, Argument* argument, char* word) {
  const bool is_index = argument->kind == Kind::cursor;
  if (argument->kind == Kind::number || (is_index && begins_number(*word))) {
    if (!read_number(word, &argument->number) || (is_index && argument->number < 0)) return refuse(*argument, word);
    if (is_index) argument->cursor = static_cast<uint32_t>(argument->number);
    return true;
  }
  if (argument->is_provided && quvex::compare(word, argument->name) == 0) return true;
  argument->is_null = quvex::compare(word, "null") == 0;
  if (argument->is_null) return true;
  return argument->is_text() ? read_alias(call, argument, word) : refuse(*argument, word);
}

bool read_value(Call* call, Argument* argument, char* line, uint32_t* cursor) {
  const char first = line[*cursor];
  if (!first || first == ' ') return fail(argument->name, "= needs its value right after it");
  if (first != '"' && first != '\'') return read_word(call, argument, quvex::next_token(line, cursor, " "));

  const char* text = line + *cursor + 1;
  if (!suits(*argument, first)) return refuse(*argument, first == '"' ? "text" : "a character");
  if (first == '"') {
    if (!read_text(*call, argument, &text)) return false;
  } else {
    argument->number = read_unit(&text);
    if (argument->number < 0 || *text != '\'') {
      return fail(argument->name, " takes one character between its quotes, as in 'a' or '\\x07'");
    }
  }
  if (text[1] && text[1] != ' ') return fail("a blank or a comma must follow the quote of ", argument->name);
  *cursor = static_cast<uint32_t>(text + 1 - line);
  return true;
}

bool read_arguments(Call* call, char* line, uint32_t cursor) {
  while (true) {
    while (line[cursor] == ' ') ++cursor;
    if (!line[cursor]) return true;
    Argument* argument = find_missing(call, line[cursor]);
    if (!argument) argument = find_missing(call, 0);  // to say what that takes instead
    char* end = line + cursor;
    while (*end && !quvex::find_character(" =\"'", *end)) ++end;
    if (*end == '=') {
      *end = 0;
      argument = find_named(call, line + cursor);
      if (!argument) {
        return fail(call->operation->name, " has no argument ", line + cursor, ": it takes ",
                    call->operation->parameters);
      }
      cursor = static_cast<uint32_t>(end + 1 - line);
    }
    if (!argument) return fail(call->operation->name, " takes no more than ", call->operation->parameters);
    if (argument->is_given) return fail(argument->name, " is given twice");
    if (!read_value(call, argument, line, &cursor)) return false;
    argument->is_given = true;
  }
}

}  // namespace

const char* takes(Kind kind) {
  switch (kind) {
    case Kind::number:
      return "a number such as 16, -1 or 0x10 that fits in 32 bits, or a character such as 'a'";
    case Kind::cursor:
      return "an index such as 0, or null";
    case Kind::array:
      return "null, or is left out";
    default:
      return "text such as \"abc\", null, or another text's name";
  }
}

const Operation* find_operation(const char* name, bool* is_wide) {
  // As a program in C or C++ has it.
  if (quvex::compare_counted(name, "quvex_", 6) == 0) name += 6;
  if (quvex::compare_counted(name, "quvex::", 7) == 0) name += 7;
  for (const Operation* operation = operations; operation < operations_end; ++operation) {
    *is_wide = quvex::compare(name, operation->wide.link_name) == 0;
    const bool is_narrow = quvex::compare(name, operation->narrow.link_name) == 0;
    if (*is_wide || is_narrow || quvex::compare(name, operation->name) == 0) return operation;
  }
  fail_unknown(name);
  return nullptr;
}

bool read_call(char* line, Call* call) {
  clear_punctuation(line);
  uint32_t cursor = 0;
  if (!read_operation(line, &cursor, call)) return false;
  prepare(call, line + cursor);
  if (!read_arguments(call, line, cursor)) return false;
  if (const Argument* missing = find_missing(call, 0)) {
    return fail(missing->name, " is missing: ", call->operation->name, " takes ", call->operation->parameters);
  }
  const char* reason = call->operation->refuse(*call->form, call->arguments);
  return !reason || fail(reason);
}
