set(BOARD_CORE cortex-m3)
set(BOARD_MACHINE mps2-an385)  # as QEMU names it
include(${CMAKE_CURRENT_LIST_DIR}/mps2.cmake)
