// Reads NMEA sentences from the UART and says of each, in one line, what position it gives or why it is skipped.

#include "../input.h"
#include "../print.h"
#include "event_log.h"
#include "nmea.h"

namespace {

struct Line {
  char text[96];     // The standard allows 82; some receivers send a little more.
  const char* flaw;  // why it is no text, or null
  bool is_last;
};

void read_line(Line* line) {
  uint32_t length = 0;
  line->flaw = nullptr;
  int byte;
  while ((byte = read_byte()) != '\n' && byte != end_of_input) {
    if (byte == 0) line->flaw = "zero byte";
    if (length == sizeof line->text - 1) line->flaw = "line too long";
    // A flawed line is read to its end all the same: the next one starts after it.
    if (!line->flaw) line->text[length++] = static_cast<char>(byte);
  }
  line->text[length] = 0;
  line->is_last = byte == end_of_input;
  quvex::trim(line->text, "\r");
}

// Text from outside: what a terminal might obey shows as an escape.
void print_quoted(const char16_t* text) {
  char escaped[9 * 24];
  print("\"", quvex::escape(text, escaped), "\"");
}

void print_skipped(const char* line, const char* reason) {
  char16_t beginning[16];
  quvex::widen(line, beginning);
  if (char16_t* comma = quvex::find_character(beginning, ',')) *comma = 0;
  print("skipped ");
  print_quoted(beginning);
  print(": ", reason);
}

void print_number(const char* name, int32_t number) {
  if (number == absent) return print(name, "-");
  print(name, number);
}

void print_position(const char* kind, const Position& position) {
  print(kind, " time=", *position.time ? position.time : "-");
  print_number(" latitude=", position.latitude);
  print_number(" longitude=", position.longitude);
  print_number(" fix=", position.fix);
  print_number(" satellites=", position.satellites);
  print_number(" altitude=", position.altitude);
}

void process(const Line& line, EventLog* log) {
  char sentence[sizeof line.text];
  quvex::copy(sentence, line.text);
  const char* flaw = line.flaw ? line.flaw : check(sentence);
  if (flaw) return print_skipped(line.text, flaw);

  char* fields[16];
  const int32_t count = cut_fields(sentence + 1, fields, 16);
  if (count == 3 && quvex::compare(fields[0], "PQVX") == 0 && quvex::compare(fields[1], "name") == 0) {
    name_station(log, fields[2]);
    print("station ");
    return print_quoted(log->station);
  }

  Position position;
  flaw = read_position(fields, count, &position);
  if (flaw) return print_skipped(line.text, flaw);
  print_position(fields[0], position);
  note_fix(log, position.fix > 0, position.time);
}

}  // namespace

int main() {
  static EventLog log;
  start(&log);
  Line line;
  for (uint32_t number = 1; true; ++number) {
    read_line(&line);
    if (line.is_last && !*line.text && !line.flaw) break;
    print(static_cast<int32_t>(number), " ");
    process(line, &log);
    print("\n");
    if (line.is_last) break;
  }
  print_events(log);
  board_exit(0);
}
