#include "start.h"

int main(int argument_count, char** arguments);

/* Present only in an image that links a hosted C library. */
__attribute__((weak)) void initialise_monitor_handles(void);
__attribute__((weak, noreturn)) void exit(int status);

/* From board.ld. */
extern uint32_t board_data_load[], board_data[], board_data_end[], board_bss[], board_bss_end[];
extern void (*const board_constructors[])(void);
extern void (*const board_constructors_end[])(void);

enum { SEMIHOST_COMMAND_LINE = 0x15, SEMIHOST_EXIT = 0x20 };

void board_exit(int status) {
  const uint32_t application_exit[] = {0x20026, (uint32_t)status};
  for (;;) board_semihost(SEMIHOST_EXIT, application_exit);
}

static int split_arguments(char* line, char** arguments, int limit) {
  int count = 0;
  while (*line && count < limit) {
    arguments[count++] = line;
    while (*line && *line != ' ') ++line;
    if (*line) *line++ = 0;
  }
  return count;
}

static int read_arguments(char** arguments, int limit) {
  static char line[1024];
  const uintptr_t command_line[] = {(uintptr_t)line, sizeof line};
  return board_semihost(SEMIHOST_COMMAND_LINE, command_line) == 0 ? split_arguments(line, arguments, limit) : 0;
}

void board_run(void) {
  const uint32_t* load = board_data_load;
  for (uint32_t* word = board_data; word != board_data_end;) *word++ = *load++;
  for (uint32_t* word = board_bss; word != board_bss_end;) *word++ = 0;

  board_open();
  static char* arguments[16];
  const int argument_count = read_arguments(arguments, 15);
  if (initialise_monitor_handles) initialise_monitor_handles();
  for (void (*const* constructor)(void) = board_constructors; constructor != board_constructors_end;)
    (*constructor++)();
  const int status = main(argument_count, arguments);
  if (exit) exit(status);
  board_exit(status);
}

static void write_text(const char* text) {
  while (*text) board_write(*text++);
}

static void write_hexadecimal(uint32_t value) {
  write_text(" 0x");
  for (int shift = 28; shift >= 0; shift -= 4) board_write("0123456789abcdef"[value >> shift & 15]);
}

__attribute__((weak)) void board_fault(uint32_t address, uint32_t instruction, uint32_t status) {
  write_text("\nfault at");
  write_hexadecimal(address);
  write_text(", instruction");
  write_hexadecimal(instruction);
  write_text(", status");
  write_hexadecimal(status);
  write_text("\n");
  board_exit(70);
}
