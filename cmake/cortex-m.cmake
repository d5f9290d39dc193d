# Shared by the toolchain files of the Cortex-M cores, which set the board first.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER arm-none-eabi-gcc)
set(CMAKE_CXX_COMPILER arm-none-eabi-g++)
set(CMAKE_C_FLAGS_INIT "-mcpu=${BOARD_CORE} -mthumb -mfloat-abi=soft")
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT}")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)  # a bare image needs a linker script
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/emulate -M ${BOARD_MACHINE})
