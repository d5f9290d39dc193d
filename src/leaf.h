#ifndef QUVEX_SRC_LEAF_H
#define QUVEX_SRC_LEAF_H

// A template is inlined into its exports at every level, so that each export is one section with all of its code.
// It throws no more than they do: where exceptions are on, clang would guard each call of one that might.
#define QUVEX_INLINE static inline __attribute__((always_inline, nothrow))

// More turns than a string can have units, for a loop that its body ends; a multiple of 8, so that unrolling leaves
// none over. Counted only where speed is asked for: GCC unrolls no loop with several ways out that it cannot count.
#define QUVEX_TURNS(Unit) (UINTPTR_MAX / sizeof(Unit) & ~uintptr_t{7})

#ifdef __OPTIMIZE_SIZE__
#define QUVEX_SPEED 0
#define QUVEX_UNROLL(turns)  // clang would unroll at -Os, too
#define QUVEX_ENDLESS(Unit) while (true)
#else
#define QUVEX_SPEED 1
#define QUVEX_TEXT(words) #words
#define QUVEX_UNROLL(turns) _Pragma(QUVEX_TEXT(GCC unroll turns))
#define QUVEX_ENDLESS(Unit) QUVEX_UNROLL(4) for (uintptr_t turns = QUVEX_TURNS(Unit); turns; --turns)
#endif

#if defined(__clang__)
// A definition inherits nothrow from the header; clang would have it said again.
#pragma clang diagnostic ignored "-Wmissing-exception-spec"
#elif defined(__GNUC__)
// GCC would turn plain loops into calls of memcpy and strlen, which are not ours to call.
#pragma GCC optimize("no-tree-loop-distribute-patterns")
// An offset for each turn would cost an addition at each way out; a pointer that moves costs none.
#pragma GCC optimize("no-split-ivs-in-unroller")
#endif

#endif
