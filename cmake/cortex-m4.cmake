set(BOARD_CORE cortex-m4)
set(BOARD_MACHINE mps2-an386)  # as QEMU names it
include(${CMAKE_CURRENT_LIST_DIR}/mps2.cmake)
