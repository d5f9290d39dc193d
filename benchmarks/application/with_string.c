/* Text by the functions of string.h and stdlib.h, and no printf. */
#include <stdlib.h>
#include <string.h>

#include "gnss.h"

static const char digits[] = "0123456789";

const char* check(char* line) {
  if (!*line) return "empty line";
  if (*line != '$') return "no $ at its start";
  char* star = strchr(line, '*');
  if (!star) return "no checksum";
  unsigned sum = 0;
  for (const char* unit = line + 1; unit < star; ++unit) sum ^= (unsigned char)*unit;
  if (strspn(star + 1, "0123456789abcdefABCDEF") != 2 || star[3] || strtoul(star + 1, NULL, 16) != sum) {
    return "bad checksum";
  }
  *star = 0;
  return NULL;
}

int32_t scaled(const char* field, size_t least, size_t most, size_t places) {
  const size_t whole = strspn(field, digits);
  if (whole < least || whole > most || (field[whole] && field[whole] != '.')) return -1;
  const char* decimals = field[whole] ? field + whole + 1 : "";
  if (decimals[strspn(decimals, digits)]) return -1;
  char text[9 + 1];
  strlcpy(text, field, whole + 1);
  strlcat(text, decimals, whole + places + 1);
  strlcat(text, "000000000", whole + places + 1);
  return strtol(text, NULL, 10);
}

int32_t small_number(const char* field) {
  return strlen(field) > 2 || field[strspn(field, digits)] ? -1 : strtol(field, NULL, 10);
}

static void put_named(const char* name, int32_t number) {
  char text[12];
  put(name);
  put(number == ABSENT ? "-" : itoa((int)number, text, 10));
}

void put_number(uint32_t number) { put_named("", (int32_t)number); }

void put_position(const char* kind, const struct position* position) {
  put(kind);
  put(" time=");
  put(*position->time ? position->time : "-");
  put_named(" latitude=", position->latitude);
  put_named(" longitude=", position->longitude);
  put_named(" fix=", position->fix);
  put_named(" satellites=", position->satellites);
  put_named(" altitude=", position->altitude);
}

void put_count(uint32_t count, uint32_t overwritten) {
  put_named("events: ", (int32_t)count);
  put_named(", overwritten: ", (int32_t)overwritten);
}

void escape(const uint16_t* text, char* output, size_t size) {
  for (; *text; ++text) {
    char piece[10] = {(char)*text};
    if (*text < ' ' || *text > '~') {
      strcpy(piece, "&(0x");
      itoa(*text, piece + 4, 16);
      strcat(piece, ")");
    }
    const size_t length = strlen(piece);
    if (length >= size) break;
    memcpy(output, piece, length);
    output += length;
    size -= length;
  }
  *output = 0;
}
