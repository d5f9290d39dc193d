#ifndef BOARD_H
#define BOARD_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The next byte of the UART, waited for. */
int board_read(void);

void board_write(char character);

/* End the emulator with this exit status. */
__attribute__((noreturn)) void board_exit(int status);

/* Say what went wrong and end. Weak: an image that knows more may have its own. */
__attribute__((noreturn)) void board_fault(uint32_t address, uint32_t instruction, uint32_t status);

enum board_access { BOARD_ACCESS_ALL, BOARD_ACCESS_READ, BOARD_ACCESS_NONE };

/* Cortex-M3 and up: let the memory protection unit refuse what `access` does not allow. The image then ends with a line
   that names the address. `area` is 0 to 7, each in force until it is set anew; `size` is a power of two, 32 or more,
   and `address` a multiple of it. */
void board_protect(int area, const volatile void* address, uint32_t size, enum board_access access);

#if defined(__cplusplus) && !__STDC_HOSTED__
int main(); /* a function like any other to a freestanding compiler, which would mangle its name */
#endif

#ifdef __cplusplus
}
#endif

#endif
