#ifndef QUVEX_SRC_LEAF_H
#define QUVEX_SRC_LEAF_H

// A template is inlined into its exports at every level, so that each export is one section with all of its code.
// It throws no more than they do: where exceptions are on, clang would guard each call of one that might.
#define QUVEX_INLINE static inline __attribute__((always_inline, nothrow))

// Eight units a turn spare seven of eight branches back. At -Os GCC would leave the loop as it stands, clang would not.
#ifdef __OPTIMIZE_SIZE__
#define QUVEX_UNROLL
#else
#define QUVEX_UNROLL _Pragma("GCC unroll 8")
#endif

#if defined(__GNUC__) && !defined(__clang__)
// GCC would turn plain loops into calls of memcpy and strlen, which are not ours to call.
#pragma GCC optimize("no-tree-loop-distribute-patterns")
#elif defined(__clang__)
// A definition inherits nothrow from the header; clang would have it said again.
#pragma clang diagnostic ignored "-Wmissing-exception-spec"
#endif

#endif
