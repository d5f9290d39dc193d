#include "../print.h"
#include "call.h"

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
    // The magnitude of the order is one more than what the two share from the start.
    const int32_t order = quvex::compare_folded(name, operation->name);
    const int32_t shared = order == 0 ? INT32_MAX : (order < 0 ? -order : order) - 1;
    if (shared <= most) continue;
    nearest = operation->name;
    most = shared;
  }
  return nearest ? fail("no operation ", name, "; did you mean ", nearest)
                 : fail("no operation ", name, "; help lists them");
}

bool read_operation(char* line, uint32_t* cursor, Call* call) {
  const char* name = quvex::next_token(line, cursor, " ");
  const bool is_wide = quvex::compare(name, "wide") == 0;
  if (is_wide) name = quvex::next_token(line, cursor, " ");
  if (!name) return fail("wide stands before an operation");
  const Operation* operation = operations;
  while (operation < operations_end && quvex::compare(name, operation->name) != 0) ++operation;
  if (operation == operations_end) return fail_unknown(name);
  if (is_wide && !operation->wide.call) return fail(name, " has no wide form");
  call->operation = operation;
  call->form = is_wide || !operation->narrow.call ? &operation->wide : &operation->narrow;
  return true;
}

// Give each argument its name, and markers to point to.
void prepare(Call* call) {
  static char names[80];
  char* name[4];
  quvex::copy(names, call->operation->parameters);
  quvex::split(names, " ", name);
  for (int32_t i = 0; i < call->form->count; ++i) {
    Argument& argument = call->arguments[i];
    argument.name = name[i];
    argument.is_optional = *name[i] == '[';
    quvex::trim(name[i], "[]");
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

// The first that must still be given, of those that a value with this first character suits; any for 0.
Argument* find_missing(Call* call, char first) {
  const bool is_number = quvex::find_character("'-0123456789", first);
  for (int32_t i = 0; i < call->form->count; ++i) {
    Argument& argument = call->arguments[i];
    if (argument.is_given || argument.is_optional) continue;
    if (!first || is_number == (argument.kind == Kind::number)) return &argument;
  }
  return nullptr;
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
    const char* values = "0123456789abcdef";
    const char* found = quvex::find_character(values, quvex::character_to_lower(**text));
    if (!found) return -1;
    number = number * 16 + static_cast<int32_t>(found - values);
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

bool read_text(Argument* argument, const char** text) {
  while (**text != '"') {
    if (!**text) return fail(argument->name, " has no closing quote");
    if (argument->length == Argument::longest_text) return fail(argument->name, " has more than 64 units");
    const int32_t unit = read_unit(text);
    if (unit < 0) return fail("an escape in ", argument->name, " is none of \\xHH \\uHHHH \\\\ \\\" \\'");
    if (unit > 255 && !argument->is_wide()) return fail(argument->name, " is narrow: no unit goes above \\xff");
    set_unit(argument, argument->length++, unit);
  }
  set_unit(argument, argument->length, 0);
  return true;
}

bool read_number(const char* word, int32_t* number) {
  *number = quvex::to_integer(word);
  char text[12];
  // It reads back as it was typed unless something was lost on the way.
  return quvex::compare(quvex::to_text(*number, text, 10), word) == 0;
}

// The name of another argument, plus an offset or not.
bool read_alias(Call* call, Argument* argument, char* word) {
  char* plus = quvex::find_character(word, '+');
  if (plus) *plus = 0;
  Argument* owner = find_named(call, word);
  if (!owner) return fail(argument->name, " takes \"text\", null or another argument's name, not ", word);
  if (!owner->is_text() || !owner->is_given || owner->is_null || owner->owner != owner) {
    return fail(word, " has no text of its own yet");
  }
  if (owner->is_wide() != argument->is_wide()) return fail(word, " has the other width");
  if (plus && !read_number(plus + 1, &argument->offset)) return fail("no offset: ", plus + 1);
  if (argument->offset < 0 || argument->offset > owner->length) return fail("the offset leaves ", word);
  argument->owner = owner;
  return true;
}

bool read_word(Call* call, Argument* argument, char* word) {
  if (argument->kind == Kind::number) {
    return read_number(word, &argument->number) ||
           fail(argument->name, " takes a 'c' or a number from -2147483648 to 2147483647, not ", word);
  }
  argument->is_null = quvex::compare(word, "null") == 0;
  if (argument->is_null) return true;
  if (argument->is_text()) return read_alias(call, argument, word);
  if (argument->kind == Kind::array || !read_number(word, &argument->number) || argument->number < 0) {
    return fail(argument->name, argument->kind == Kind::array ? " takes null, not " : " takes an index or null, not ",
                word);
  }
  argument->cursor = static_cast<uint32_t>(argument->number);
  return true;
}

bool read_value(Call* call, Argument* argument, char* line, uint32_t* cursor) {
  const char first = line[*cursor];
  if (!first || first == ' ') return fail(argument->name, " has no value");
  if (first != '"' && first != '\'') return read_word(call, argument, quvex::next_token(line, cursor, " "));

  const char* text = line + *cursor + 1;
  if (first == '"' ? !argument->is_text() : argument->kind != Kind::number) {
    return fail(argument->name, first == '"' ? " is no text" : " is no character");
  }
  if (first == '"') {
    if (!read_text(argument, &text)) return false;
  } else {
    argument->number = read_unit(&text);
    if (argument->number < 0 || *text != '\'') return fail(argument->name, " takes one character in its quotes");
  }
  if (text[1] && text[1] != ' ') return fail("no blank after the quote of ", argument->name);
  *cursor = static_cast<uint32_t>(text + 1 - line);
  return true;
}

bool read_arguments(Call* call, char* line, uint32_t cursor) {
  while (true) {
    while (line[cursor] == ' ') ++cursor;
    if (!line[cursor]) return true;
    Argument* argument = find_missing(call, line[cursor]);
    if (!argument) argument = find_missing(call, 0);  // which says what it takes instead
    char* end = line + cursor;
    while (*end && !quvex::find_character(" =\"'", *end)) ++end;
    if (*end == '=') {
      *end = 0;
      argument = find_named(call, line + cursor);
      if (!argument) return fail(call->operation->name, " has no argument ", line + cursor);
      cursor = static_cast<uint32_t>(end + 1 - line);
    }
    if (!argument) return fail(call->operation->name, " takes no more than ", call->operation->parameters);
    if (argument->is_given) return fail(argument->name, " is given twice");
    if (!read_value(call, argument, line, &cursor)) return false;
    argument->is_given = true;
  }
}

}  // namespace

bool read_call(char* line, Call* call) {
  uint32_t cursor = 0;
  if (!read_operation(line, &cursor, call)) return false;
  prepare(call);
  if (!read_arguments(call, line, cursor)) return false;
  if (const Argument* missing = find_missing(call, 0)) return fail(missing->name, " is missing");
  const char* reason = call->operation->refuse(*call->form, call->arguments);
  return !reason || fail(reason);
}
