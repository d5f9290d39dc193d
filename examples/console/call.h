#ifndef EXAMPLES_CALL_H
#define EXAMPLES_CALL_H

#include "quvex.h"

enum class Kind { number, narrow_text, wide_text, narrow_buffer, wide_buffer, cursor, array };

// An argument, and room for what it points to.
struct Argument {
  // With texts that long no operation exceeds the capacity, but for the calls that its `refuse` excludes.
  static constexpr int32_t longest_text = 64, capacity = 640, slot_count = 34;
  static constexpr int32_t marker = 0xa5, wide_marker = 0xa5a5;

  char* name;
  Kind kind;
  bool is_provided;  // by the console, unless it is typed
  bool has_place;    // in the line, for a value without a name
  bool is_given, is_null;
  int32_t number;
  Argument* owner;  // of the units that it points to: itself, or another argument
  int32_t offset;   // into them
  int32_t length;   // of the text that was typed
  union {
    quvex_narrow narrow[2 * capacity];
    quvex_wide wide[capacity];
    uint32_t cursor;
    void* slots[slot_count];
  };

  bool is_text() const { return kind >= Kind::narrow_text && kind <= Kind::wide_buffer; }
  bool is_buffer() const { return kind == Kind::narrow_buffer || kind == Kind::wide_buffer; }
  bool is_wide() const { return kind == Kind::wide_text || kind == Kind::wide_buffer; }
  int32_t unit(int32_t index) const { return is_wide() ? wide[index] : narrow[index]; }
  bool is_marker(int32_t index) const { return unit(index) == (is_wide() ? wide_marker : marker); }
};

struct Outcome {
  enum { nothing, number, pointer } kind;
  int32_t value;
  const void* address;
};

// An operation in one width.
struct Form {
  Outcome (*call)(Argument* arguments);  // null: there is no such form
  const Kind* kinds;
  int32_t count;
  const char* link_name;
};

// Why the contract excludes a call, or null.
using Refuse = const char*(const Form& form, Argument* arguments);

struct Operation {
  const char* name;
  const char* parameters;  // in the order of the call; what stands in brackets may be left out
  const char* summary;
  Form narrow, wide;
  Refuse* refuse;
};

extern const Operation operations[];
extern const Operation* const operations_end;

// What may be typed for an argument.
const char* takes(Kind kind);

// Find an operation by its name or a link name, and tell whether that is the link name of its wide form. Null, and a
// line that says so, if there is none.
const Operation* find_operation(const char* name, bool* is_wide);

struct Call {
  const Operation* operation;
  const Form* form;
  Argument arguments[4];
};

// Read a call from a line, which is cut up. False, and a line that says why, if it is none or outside the contract.
bool read_call(char* line, Call* call);

#endif
