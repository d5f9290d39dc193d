#include "board.h"

// What stands at address 0, the vectors, is not the library's to touch: a guard against null that is missing faults.
// The last area, which counts where two overlap.
[[maybe_unused]] static const bool closed = (board_protect(7, nullptr, 64, BOARD_ACCESS_NONE), true);
