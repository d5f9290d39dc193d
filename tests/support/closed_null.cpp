#include "board.h"

// The vectors at address 0 are not the library's to touch: an operation without its guard against null faults.
// The last area: where two overlap, it is the one that counts.
[[maybe_unused]] static const bool closed = (board_protect(7, nullptr, 64, BOARD_ACCESS_NONE), true);
