#include "start.h"

int main(int argument_count, char** arguments);

/* Present only in an image that links a hosted C library. */
__attribute__((weak)) void initialise_monitor_handles(void);
__attribute__((weak, noreturn)) void exit(int status);

/* From board.ld. */
extern uint32_t board_data_load[], board_data[], board_data_end[], board_bss[], board_bss_end[];
extern void (*const board_constructors[])(void);
extern void (*const board_constructors_end[])(void);

void board_run(void) {
  const uint32_t* load = board_data_load;
  for (uint32_t* word = board_data; word != board_data_end;) *word++ = *load++;
  for (uint32_t* word = board_bss; word != board_bss_end;) *word++ = 0;

  static char* arguments[16];
  const int argument_count = board_open(arguments, 15);
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

void board_fault(uint32_t address, uint32_t instruction, uint32_t status) {
  write_text("\nfault at");
  write_hexadecimal(address);
  write_text(", instruction");
  write_hexadecimal(instruction);
  write_text(", status");
  write_hexadecimal(status);
  write_text("\n");
  board_exit(70);
}
