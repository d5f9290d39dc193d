#ifndef QUVEX_COMPILER_H
#define QUVEX_COMPILER_H

// What the sources ask of the compiler, whatever the flags. Only GCC and clang know all of it; any other builds the same
// operations without.

#include <stdint.h>

// A template is inlined into its exports at every level, so that each export is one section with all of its code.
// It throws no more than they do: where exceptions are on, clang would guard each call of one that might.
#define QUVEX_INLINE static inline __attribute__((always_inline, nothrow))

#define QUVEX_UNLIKELY(condition) __builtin_expect(!!(condition), 0)

#ifdef __OPTIMIZE_SIZE__
#define QUVEX_SPEED 0
#define QUVEX_UNROLL(iterations)  // clang would unroll at -Os, too
#else
#define QUVEX_SPEED 1
#define QUVEX_PRAGMA(words) _Pragma(#words)
#define QUVEX_UNROLL(iterations) QUVEX_PRAGMA(GCC unroll iterations)
#endif

// A loop that clang would unroll although it gains little.
#ifdef __clang__
#define QUVEX_ROLLED _Pragma("clang loop unroll(disable)")
#else
#define QUVEX_ROLLED
#endif

// Throughout the sources a load or store and the step behind it are two statements: only then does GCC, built for size,
// make one instruction of them.

// For a loop that is left from its body: an iteration count that no string reaches, half of the address space in units.
// GCC unrolls a loop of several exits only if it can count the iterations. For size the loop is endless: a count would
// cost a test.
#define QUVEX_MOST(Unit) ((UINTPTR_MAX / 2 + 1) / sizeof(Unit))
#define QUVEX_ENDLESS(unbounded) (!QUVEX_SPEED && (unbounded))

#define QUVEX_UNINITIALIZED __attribute__((uninitialized))   // -ftrivial-auto-var-init would call memset for an array
#define QUVEX_NO_CANARY __attribute__((no_stack_protector))  // a canary would call __stack_chk_fail

#if defined(__clang__)

// Inlined into an application by link-time optimization, a loop could become a call of memcpy, and a store to a unit would
// be taken for one that no char16_t can see.
#define QUVEX_EXPORT QUVEX_NO_CANARY __attribute__((noinline, no_builtin))
// A definition inherits nothrow from the header; clang would have it said again.
#pragma clang diagnostic ignored "-Wmissing-exception-spec"

#elif defined(__GNUC__)

// Equal operations must not be merged: each is a section of its own. A function that has options of its own, as all that
// follow here, is not inlined into one that has others, at link time either.
#define QUVEX_EXPORT QUVEX_NO_CANARY __attribute__((no_icf))
#pragma GCC diagnostic ignored "-Wpragmas"                // an option that this GCC does not know is not missed
#pragma GCC diagnostic ignored "-Wattributes"             // nor is an attribute
#pragma GCC optimize("no-tree-loop-distribute-patterns")  // a loop must not become a call of memcpy, memset or strlen
#pragma GCC optimize("no-shrink-wrap")  // one way in and out is smaller than a second one that saves no registers
#ifdef __OPTIMIZE_SIZE__
// Each of these passes duplicates code, or keeps values in registers that must be saved for them.
#pragma GCC optimize("no-ivopts")                     // keeps a pointer for each use of an index
#pragma GCC optimize("no-thread-jumps")               // copies a test for each path that leads to it
#pragma GCC optimize("no-cse-follow-jumps")           // keeps a constant live instead of reloading it
#pragma GCC optimize("no-tree-coalesce-vars")         // joins variables that then need a saved register
#pragma GCC optimize("no-ssa-phiopt")                 // turns two branches into an expression of wider instructions
#pragma GCC optimize("no-tree-tail-merge")            // merges before it is known to be smaller; a later pass knows
#pragma GCC optimize("reorder-blocks-algorithm=stc")  // the order of the source needs more jumps
#else
#pragma GCC optimize("no-split-ivs-in-unroller")  // an offset for each iteration costs an addition at each exit
#pragma GCC optimize("no-tree-pre")               // computes the next iteration early: a copy in each
#pragma GCC optimize("no-tree-loop-im")           // keeps a constant in a register that must then be saved
#pragma GCC optimize("no-schedule-insns")         // likewise
#endif

#else
#define QUVEX_EXPORT
#endif

#endif
