#ifndef EXAMPLES_NMEA_H
#define EXAMPLES_NMEA_H

#include <stdint.h>

// A number whose field is empty, or that the kind of sentence does not carry.
constexpr int32_t absent = INT32_MIN;

struct Position {
  const char* time;   // hhmmss, with a fraction if the receiver sends one; empty if unknown
  int32_t latitude;   // in 1e-5 degrees, rounded to the nearest, halves away from zero; south is negative
  int32_t longitude;  // likewise; west is negative
  int32_t fix;        // GGA: its quality, 0 for none; RMC: 1 or 0
  int32_t satellites;
  int32_t altitude;  // in decimetres, rounded as above
};

// Check a line as a sentence and cut off its checksum. Null if the checksum holds, else what is wrong.
const char* check(char* line);

// Cut a sentence at its commas, in place, into `most` fields or fewer; empty ones count, too. The result is their number.
int32_t cut_fields(char* sentence, char** fields, int32_t most);

// Read the position out of the fields of a sentence. Null if it has one, else why not.
const char* read_position(char** fields, int32_t count, Position* position);

#endif
