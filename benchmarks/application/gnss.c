/* examples/gnss over a C library: the lines, the fields, the events. Its text is in with_string.c and with_stdio.c. */
#include "gnss.h"

#include <string.h>

#include "board.h"

enum { END_OF_INPUT = -1, FIELDS = 16, EVENTS = 8, STATION = 24, EVENT = 40 };

struct line {
  char text[96];
  const char* flaw;
  bool is_last;
};

static struct {
  uint16_t station[STATION];
  uint16_t events[EVENTS][EVENT];
  uint32_t count;
  bool has_fix;
} log;

void put(const char* text) {
  while (*text) board_write(*text++);
}

static int read_byte(void) {
  const int byte = board_read();
  if (byte == 4) return END_OF_INPUT;
  return byte == 16 ? board_read() : byte;
}

static void read_line(struct line* line) {
  size_t length = 0;
  line->flaw = NULL;
  int byte;
  while ((byte = read_byte()) != '\n' && byte != END_OF_INPUT) {
    if (byte == 0) line->flaw = "zero byte";
    if (length == sizeof line->text - 1) line->flaw = "line too long";
    if (!line->flaw) line->text[length++] = (char)byte;
  }
  while (length && line->text[length - 1] == '\r') --length;
  line->text[length] = 0;
  const size_t start = strspn(line->text, "\r");
  memmove(line->text, line->text + start, length - start + 1);
  line->is_last = byte == END_OF_INPUT;
}

/* No C library has functions for 16-bit text. */
static void widen(uint16_t* destination, size_t size, const char* source) {
  while (--size && *source) *destination++ = (unsigned char)*source++;
  *destination = 0;
}

static void append_wide(uint16_t* destination, size_t size, const uint16_t* source) {
  while (*destination) {
    ++destination;
    --size;
  }
  while (--size && *source) *destination++ = *source++;
  *destination = 0;
}

static void put_quoted(const uint16_t* text) {
  char escaped[9 * STATION];
  escape(text, escaped, sizeof escaped);
  put("\"");
  put(escaped);
  put("\"");
}

static void put_skipped(const char* line, const char* reason) {
  uint16_t beginning[16];
  widen(beginning, 16, line);
  for (uint16_t* unit = beginning; *unit; ++unit) {
    if (*unit == ',') *unit = 0;
    if (!*unit) break;
  }
  put("skipped ");
  put_quoted(beginning);
  put(": ");
  put(reason);
}

static void note_fix(bool has_fix, const char* time) {
  if (has_fix == log.has_fix) return;
  log.has_fix = has_fix;
  uint16_t wide_time[12];
  widen(wide_time, 12, *time ? time : "-");
  uint16_t* event = log.events[log.count++ % EVENTS];
  event[0] = has_fix ? 0x25b2 : 0x25bc;
  event[1] = ' ';
  event[2] = 0;
  append_wide(event, EVENT, log.station);
  append_wide(event, EVENT, (const uint16_t[]){' ', 0});
  append_wide(event, EVENT, wide_time);
}

/* The place in `values` of the one character of a field, or -1. */
static int32_t choice(const char* field, const char* values) {
  const char* found = *field ? strchr(values, *field) : NULL;
  return found && !field[1] ? (int32_t)(found - values) : -1;
}

static bool is_time(const char* field) {
  if (!*field) return true;
  const int32_t time = scaled(field, 6, 6, 0);
  return time >= 0 && time / 10000 < 24 && time / 100 % 100 < 60 && time % 100 <= 60;
}

static bool read_angle(char** field, size_t degree_digits, const char* hemispheres, int32_t* angle) {
  *angle = ABSENT;
  if (!*field[0] && !*field[1]) return true;
  const int32_t number = scaled(field[0], degree_digits + 2, degree_digits + 2, 4);
  const int32_t sign = choice(field[1], hemispheres);
  const int32_t minutes = number % 1000000;
  if (number < 0 || sign < 0 || minutes >= 600000) return false;
  const int32_t magnitude = number / 1000000 * 100000 + (minutes + 3) / 6;
  if (magnitude > (degree_digits == 2 ? 9000000 : 18000000)) return false;
  *angle = sign ? -magnitude : magnitude;
  return true;
}

static bool read_altitude(char** field, int32_t* altitude) {
  *altitude = ABSENT;
  if (!*field[0]) return true;
  const bool negative = *field[0] == '-';
  const int32_t centimetres = scaled(field[0] + negative, 1, 6, 2);
  if (centimetres < 0 || strcmp(field[1], "M") != 0) return false;
  const int32_t magnitude = (centimetres + 5) / 10;
  *altitude = negative ? -magnitude : magnitude;
  return true;
}

static bool read_satellites(const char* field, int32_t* satellites) {
  *satellites = ABSENT;
  if (!*field) return true;
  const int32_t number = small_number(field);
  if (number < 0) return false;
  *satellites = number;
  return true;
}

static const char* read_position(char** fields, int count, struct position* position) {
  const char* address = fields[0];
  const bool is_standard =
      strlen(address) == 5 && strspn(address, "ABCDEFGHIJKLMNOPQRSTUVWXYZ") == 5 && *address != 'P';
  const bool gga = is_standard && strcmp(address + 2, "GGA") == 0;
  const bool rmc = is_standard && strcmp(address + 2, "RMC") == 0;
  if (!gga && !rmc) return "no position";
  if (count < (gga ? 11 : 10)) return "fields missing";
  position->time = fields[1];
  if (!is_time(position->time)) return "malformed time";
  if (!read_angle(fields + (gga ? 2 : 3), 2, "NS", &position->latitude)) return "malformed latitude";
  if (!read_angle(fields + (gga ? 4 : 5), 3, "EW", &position->longitude)) return "malformed longitude";
  position->fix = gga ? choice(fields[6], "012345678") : choice(fields[2], "VA");
  if (position->fix < 0) return "malformed fix";
  position->satellites = position->altitude = ABSENT;
  if (gga && !read_satellites(fields[7], &position->satellites)) return "malformed satellites";
  if (gga && !read_altitude(fields + 9, &position->altitude)) return "malformed altitude";
  return NULL;
}

static void process(const struct line* line) {
  char sentence[sizeof line->text];
  strlcpy(sentence, line->text, sizeof sentence);
  const char* flaw = line->flaw ? line->flaw : check(sentence);
  if (flaw) {
    put_skipped(line->text, flaw);
    return;
  }
  char *fields[FIELDS], *rest = sentence + 1;
  int count = 0;
  while (count < FIELDS && (fields[count] = strsep(&rest, ","))) ++count;
  if (count == 3 && strcmp(fields[0], "PQVX") == 0 && strcmp(fields[1], "name") == 0) {
    widen(log.station, STATION, fields[2]);
    put("station ");
    put_quoted(log.station);
    return;
  }
  struct position position;
  flaw = read_position(fields, count, &position);
  if (flaw) {
    put_skipped(line->text, flaw);
    return;
  }
  put_position(fields[0], &position);
  note_fix(position.fix > 0, position.time);
}

int main(void) {
  log.station[0] = 0x2026;
  struct line line;
  for (uint32_t number = 1;; ++number) {
    read_line(&line);
    if (line.is_last && !*line.text && !line.flaw) break;
    put_number(number);
    put(" ");
    process(&line);
    put("\n");
    if (line.is_last) break;
  }
  const uint32_t oldest = log.count > EVENTS ? log.count - EVENTS : 0;
  put_count(log.count, oldest);
  put("\n");
  for (uint32_t i = oldest; i < log.count; ++i) {
    char escaped[9 * EVENT];
    escape(log.events[i % EVENTS], escaped, sizeof escaped);
    put(escaped);
    put("\n");
  }
  board_exit(0);
}
