#ifndef EXAMPLES_EVENT_LOG_H
#define EXAMPLES_EVENT_LOG_H

#include <stdint.h>

// The latest events as 16-bit text, as a display or a USB string descriptor wants it.
struct EventLog {
  static constexpr uint32_t size = 8;
  char16_t station[24];
  char16_t events[size][40];
  uint32_t count;  // of all events: the newest overwrites the oldest
  bool has_fix;
};

void start(EventLog* log);

// The station of the events to come. `name` is Latin-1; what does not fit is cut off.
void name_station(EventLog* log, const char* name);

// Adds an event if the fix has come or gone.
void note_fix(EventLog* log, bool has_fix, const char* time);

void print_events(const EventLog& log);

#endif
