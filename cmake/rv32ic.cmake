set(BOARD_CORE rv32ic)
include(${CMAKE_CURRENT_LIST_DIR}/riscv.cmake)
