#ifndef QUVEX_SRC_LEAF_H
#define QUVEX_SRC_LEAF_H

// A template is inlined into its exports at every level, so that each export is one section with all of its code.
// It throws no more than they do: where exceptions are on, clang would guard each call of one that might.
#define QUVEX_INLINE static inline __attribute__((always_inline, nothrow))

// More turns than a string can have units: GCC unrolls a loop with several ways out only if it can count its turns.
#define QUVEX_TURNS(Unit) (UINTPTR_MAX / sizeof(Unit) & ~uintptr_t{7})

#ifdef __OPTIMIZE_SIZE__  // clang would unroll at -Os, too
#define QUVEX_UNROLL
#define QUVEX_ENDLESS(Unit) while (true)
#else
// Four turns of the loop that follows behind one another, with one branch back.
#define QUVEX_UNROLL _Pragma("GCC unroll 4")
// A loop that its body ends.
#define QUVEX_ENDLESS(Unit) QUVEX_UNROLL for (uintptr_t turns = QUVEX_TURNS(Unit); turns; --turns)
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
