# The memory of Arm's MPS2 boards whose core has no TrustZone; shared by the toolchain files of those cores.
set(BOARD_CODE 0x00000000)
set(BOARD_CODE_SIZE 4M)
set(BOARD_DATA 0x20000000)
set(BOARD_DATA_SIZE 4M)
set(BOARD_UART_KIND cmsdk)
set(BOARD_UART 0x40004000)
include(${CMAKE_CURRENT_LIST_DIR}/cortex-m.cmake)
