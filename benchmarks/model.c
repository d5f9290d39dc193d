/* Three functions whose cycles are found by hand in the table of benchmarks/count.py: beside each instruction that takes
   other than 1. To each function come 2 for its call, and for a return by bx 3: it leads to a 4-byte call across a word. */
#include "board.h"

#define FUNCTION __attribute__((naked, noinline, aligned(4))) static void

FUNCTION loads(void) {
  __asm__(
      "mov r0, sp\n\t"
      "str r0, [r0, #-4]\n\t"
      "ldr r1, [r0, #-4]\n\t" /* after a store: 1 */
      "ldr r2, [r1, #-4]\n\t" /* of an address just loaded: 2 */
      "ldr r3, [r0, #-4]\n\t" /* after a load: 1 */
      "add r3, r3\n\t"
      "ldr r3, [r0, #-4]\n\t" /* 2 */
      "bx lr");
}

FUNCTION branches(void) {
  __asm__(
      "movs r0, #2\n"
      "1:\n\t"
      "subs r0, #1\n\t"
      "bne 1b\n\t" /* taken once: 2, then 1 */
      "movs r0, #2\n\t"
      ".balign 4\n\t"
      "nop\n"
      "2:\n\t"
      "subs.w r0, r0, #1\n\t" /* 4 bytes across a word */
      "bne 2b\n\t"            /* taken once: 3, then 1 */
      "bx lr");
}

FUNCTION multiples(void) {
  __asm__(
      "push {r4-r6, lr}\n\t"  /* 5 */
      "ldrd r0, r1, [sp]\n\t" /* 3 */
      "strd r0, r1, [sp]\n\t" /* 2 */
      "udiv r0, r0, r0\n\t"   /* 6 */
      "pop {r4-r6, pc}");     /* 7 */
}

__attribute__((noinline, aligned(4))) static void measured(void) {
  loads();
  branches();
  multiples();
  __asm__ volatile(""); /* not a tail call: it must return here */
}

int main(void) {
  for (const char* name = "loads\nbranches\nmultiples\n"; *name; ++name) board_write(*name);
  measured();
  return 0;
}
