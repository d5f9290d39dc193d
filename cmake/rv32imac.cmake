set(BOARD_CORE rv32imac)
include(${CMAKE_CURRENT_LIST_DIR}/riscv.cmake)
