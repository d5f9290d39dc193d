#include "nmea.h"

#include "quvex.hpp"

namespace {

// Where a kind of sentence carries what; 0: it does not.
struct Layout {
  const char* kind;
  const char* fixes;  // the values of its fix field, that of no fix first
  int32_t count, time, latitude, longitude, fix, satellites, altitude;
};

constexpr Layout layouts[] = {
    {"GGA", "012345678", 11, 1, 2, 4, 6, 7, 9},
    {"RMC", "VA", 10, 1, 3, 5, 2, 0, 0},
};

bool consists_of(const char* text, const char* set) {
  for (; *text; ++text) {
    if (!quvex::find_character(set, *text)) return false;
  }
  return true;
}

bool all_digits(const char* text) { return consists_of(text, "0123456789"); }

// A decimal number without a sign, in units of 10^-places; decimals beyond them are cut off. -1 if it is none, or if
// the digits before its point are not `least` to `most`. `most` and `places` together are 9 or less, to fit in 32 bits.
int32_t scaled(const char* field, int32_t least, int32_t most, int32_t places) {
  const char* point = quvex::find_character(field, '.');
  const int32_t whole = point ? static_cast<int32_t>(point - field) : quvex::length(field);
  if (whole < least || whole > most) return -1;
  const char* decimals = point ? point + 1 : "";
  char digits[9 + 1];
  const int32_t size = whole + places + 1;
  quvex::copy_bounded(digits, whole + 1, field);
  quvex::append_bounded(digits, size, decimals);
  quvex::append_bounded(digits, size, "000000000");
  if (!all_digits(digits) || !all_digits(decimals)) return -1;
  return quvex::to_integer(digits);
}

// The place in `values` of the one character of a field, or -1.
int32_t choice(const char* field, const char* values) {
  const char* found = quvex::find_character(values, *field);
  return found && !field[1] ? static_cast<int32_t>(found - values) : -1;
}

bool is_time(const char* field) {
  if (!*field) return true;
  const int32_t time = scaled(field, 6, 6, 0);
  return time >= 0 && time / 10000 < 24 && time / 100 % 100 < 60 && time % 100 <= 60;  // 60: a leap second
}

// Degrees and minutes, and the hemisphere in the next field: ddmm.mmmm,N or dddmm.mmmm,E.
bool read_angle(char** field, int32_t degree_digits, const char* hemispheres, int32_t* angle) {
  *angle = absent;
  if (!*field[0] && !*field[1]) return true;
  const int32_t number = scaled(field[0], degree_digits + 2, degree_digits + 2, 4);
  const int32_t sign = choice(field[1], hemispheres);
  const int32_t minutes = number % 1000000;  // in 1e-4 minutes
  if (number < 0 || sign < 0 || minutes >= 600000) return false;
  // 1e-5 degrees are 6 of these, half of it 3: no decimal after the fourth can change the rounding.
  const int32_t magnitude = number / 1000000 * 100000 + (minutes + 3) / 6;
  if (magnitude > (degree_digits == 2 ? 9000000 : 18000000)) return false;
  *angle = sign ? -magnitude : magnitude;
  return true;
}

// Metres, and their unit in the next field.
bool read_altitude(char** field, int32_t* altitude) {
  *altitude = absent;
  if (!*field[0]) return true;
  const bool negative = *field[0] == '-';
  const int32_t centimetres = scaled(field[0] + negative, 1, 6, 2);
  if (centimetres < 0 || quvex::compare(field[1], "M") != 0) return false;
  const int32_t magnitude = (centimetres + 5) / 10;
  *altitude = negative ? -magnitude : magnitude;
  return true;
}

bool read_satellites(const char* field, int32_t* satellites) {
  *satellites = absent;
  if (!*field) return true;
  if (quvex::length(field) > 2 || !all_digits(field)) return false;
  *satellites = quvex::to_integer(field);
  return true;
}

}  // namespace

const char* check(char* line) {
  if (!*line) return "empty line";
  if (*line != '$') return "no $ at its start";
  char* star = quvex::find_character(line, '*');
  if (!star) return "no checksum";
  int32_t sum = 0;
  for (const char* unit = line + 1; unit < star; ++unit) sum ^= static_cast<uint8_t>(*unit);
  char digits[10];
  quvex::to_text(0x100 + sum, digits, 16);  // The 1 in front keeps a leading zero.
  if (quvex::compare_folded(star + 1, digits + 1) != 0) return "bad checksum";
  *star = 0;
  return nullptr;
}

// Not next_field: to NMEA a quote is a character like any other.
int32_t cut_fields(char* sentence, char** fields, int32_t most) {
  int32_t count = 0;
  uint32_t cursor = 0;
  while (count < most) {
    fields[count++] = sentence + cursor;
    if (!sentence[cursor]) break;  // The last field is empty.
    if (sentence[cursor] == ',') {
      // An empty field. The next token would begin after this comma and those next to it, so it is ended here.
      sentence[cursor++] = 0;
      continue;
    }
    quvex::next_token(sentence, &cursor, ",");
    if (sentence[cursor - 1]) break;  // No comma became a terminator: the token ended with the sentence.
  }
  return count;
}

const char* read_position(char** fields, int32_t count, Position* position) {
  // Two letters that name the talker, then the kind; a maker's own sentence has a P in front.
  const char* address = fields[0];
  const bool is_standard =
      quvex::length(address) == 5 && consists_of(address, "ABCDEFGHIJKLMNOPQRSTUVWXYZ") && *address != 'P';
  const Layout* layout = nullptr;
  for (const Layout& known : layouts) {
    if (is_standard && quvex::compare(address + 2, known.kind) == 0) layout = &known;
  }
  if (!layout) return "no position";
  if (count < layout->count) return "fields missing";

  position->time = fields[layout->time];
  if (!is_time(position->time)) return "malformed time";
  if (!read_angle(fields + layout->latitude, 2, "NS", &position->latitude)) return "malformed latitude";
  if (!read_angle(fields + layout->longitude, 3, "EW", &position->longitude)) return "malformed longitude";
  position->fix = choice(fields[layout->fix], layout->fixes);
  if (position->fix < 0) return "malformed fix";
  position->satellites = position->altitude = absent;
  if (layout->satellites && !read_satellites(fields[layout->satellites], &position->satellites)) {
    return "malformed satellites";
  }
  if (layout->altitude && !read_altitude(fields + layout->altitude, &position->altitude)) return "malformed altitude";
  return nullptr;
}
