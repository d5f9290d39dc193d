set(BOARD_CORE cortex-m7)
set(BOARD_MACHINE mps2-an500)  # as QEMU names it
include(${CMAKE_CURRENT_LIST_DIR}/mps2.cmake)
