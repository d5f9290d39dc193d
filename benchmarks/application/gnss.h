/* examples/gnss over a C library: what with_string.c and with_stdio.c each do in their own way. */
#ifndef APPLICATION_GNSS_H
#define APPLICATION_GNSS_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#define ABSENT INT32_MIN

struct position {
  const char* time;
  int32_t latitude, longitude, fix, satellites, altitude;
};

/* Null if the checksum holds, which is then cut off; else what is wrong. */
const char* check(char* line);

/* A decimal number of `least` to `most` digits before its point, in units of 10^-places, or -1. */
int32_t scaled(const char* field, size_t least, size_t most, size_t places);

/* One or two digits, or -1. */
int32_t small_number(const char* field);

void put(const char* text);
void put_number(uint32_t number);
void put_position(const char* kind, const struct position* position);
void put_count(uint32_t count, uint32_t overwritten);

/* 16-bit text as printable ASCII, any other unit as `&(0x`, its hexadecimal digits and `)`. */
void escape(const uint16_t* text, char* output, size_t size);

#endif
