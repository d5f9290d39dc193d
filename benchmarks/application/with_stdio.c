/* Text by snprintf and sscanf wherever they serve. */
#include <inttypes.h>
#include <stdio.h>
#include <string.h>

#include "gnss.h"

const char* check(char* line) {
  if (!*line) return "empty line";
  if (*line != '$') return "no $ at its start";
  char* star = strchr(line, '*');
  if (!star) return "no checksum";
  unsigned sum = 0;
  for (const char* unit = line + 1; unit < star; ++unit) sum ^= (unsigned char)*unit;
  char expected[3], given[4] = "";
  sscanf(star + 1, "%3s", given);
  snprintf(expected, sizeof expected, "%02x", sum);
  if (strlen(star + 1) != 2 || strcasecmp(given, expected) != 0) return "bad checksum";
  *star = 0;
  return NULL;
}

int32_t scaled(const char* field, size_t least, size_t most, size_t places) {
  int whole = 0, end = 0;
  sscanf(field, "%*[0-9]%n", &whole);
  if ((size_t)whole < least || (size_t)whole > most || (field[whole] && field[whole] != '.')) return -1;
  const char* decimals = field[whole] ? field + whole + 1 : "";
  sscanf(decimals, "%*[0-9]%n", &end);
  if (decimals[end]) return -1;
  char text[9 + 1];
  const int missing = end < (int)places ? (int)places - end : 0;
  snprintf(text, sizeof text, "%.*s%.*s%.*s", whole, field, (int)places, decimals, missing, "000000000");
  int32_t number;
  return sscanf(text, "%" SCNd32, &number) == 1 ? number : -1;
}

int32_t small_number(const char* field) {
  int32_t number;
  int end = 0;
  if (*field < '0' || *field > '9') return -1;
  return sscanf(field, "%2" SCNd32 "%n", &number, &end) == 1 && !field[end] ? number : -1;
}

static const char* number_or_dash(char* text, int32_t number) {
  if (number == ABSENT) return "-";
  snprintf(text, 12, "%" PRId32, number);
  return text;
}

void put_position(const char* kind, const struct position* position) {
  char line[160], latitude[12], longitude[12], satellites[12], altitude[12];
  snprintf(line, sizeof line, "%s time=%s latitude=%s longitude=%s fix=%" PRId32 " satellites=%s altitude=%s", kind,
           *position->time ? position->time : "-", number_or_dash(latitude, position->latitude),
           number_or_dash(longitude, position->longitude), position->fix,
           number_or_dash(satellites, position->satellites), number_or_dash(altitude, position->altitude));
  put(line);
}

void put_count(uint32_t count, uint32_t overwritten) {
  char line[48];
  snprintf(line, sizeof line, "events: %" PRIu32 ", overwritten: %" PRIu32, count, overwritten);
  put(line);
}

void put_number(uint32_t number) {
  char text[12];
  snprintf(text, sizeof text, "%" PRIu32, number);
  put(text);
}

void escape(const uint16_t* text, char* output, size_t size) {
  for (; *text; ++text) {
    char piece[10];
    const bool plain = *text >= ' ' && *text <= '~';
    const int length = snprintf(piece, sizeof piece, plain ? "%c" : "&(0x%x)", *text);
    if ((size_t)length >= size) break;
    memcpy(output, piece, (size_t)length);
    output += length;
    size -= (size_t)length;
  }
  *output = 0;
}
