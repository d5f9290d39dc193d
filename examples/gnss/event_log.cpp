#include "event_log.h"

#include "../print.h"

void start(EventLog* log) {
  quvex::copy(log->station, u"\u2026");
  log->count = 0;
  log->has_fix = false;
}

void name_station(EventLog* log, const char* name) {
  quvex::widen(name, log->station);  // A character of Latin-1 has the same number in 16 bits.
}

void note_fix(EventLog* log, bool has_fix, const char* time) {
  if (has_fix == log->has_fix) return;
  log->has_fix = has_fix;
  char16_t wide_time[12];
  quvex::widen(*time ? time : "-", wide_time);
  char16_t(&event)[40] = log->events[log->count++ % EventLog::size];
  quvex::copy(event, has_fix ? u"\u25b2 " : u"\u25bc ");
  quvex::append(event, log->station);
  quvex::append(event, u" ");
  quvex::append(event, wide_time);
}

void print_events(const EventLog& log) {
  const uint32_t oldest = log.count > EventLog::size ? log.count - EventLog::size : 0;
  print("events: ", static_cast<int32_t>(log.count), ", overwritten: ", static_cast<int32_t>(oldest), "\n");
  for (uint32_t i = oldest; i < log.count; ++i) {
    char escaped[9 * 40];  // An escape takes 9 units at most: nothing is lost.
    print(quvex::escape(log.events[i % EventLog::size], escaped), "\n");
  }
}
