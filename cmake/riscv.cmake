# Shared by the toolchain files of the RISC-V cores, which name the core first.
set(BOARD_MACHINE virt)  # as QEMU names it
set(BOARD_CODE 0x80000000)
set(BOARD_CODE_SIZE 4M)
set(BOARD_DATA 0x80400000)
set(BOARD_DATA_SIZE 4M)
set(BOARD_UART_KIND 16550)
set(BOARD_UART 0x10000000)

set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR riscv32)
set(CMAKE_C_COMPILER riscv64-unknown-elf-gcc)
set(CMAKE_CXX_COMPILER riscv64-unknown-elf-g++)
# picolibc: this compiler knows of no C library by itself.
set(CMAKE_C_FLAGS_INIT "-march=${BOARD_CORE} -mabi=ilp32 --specs=picolibc.specs")
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT}")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)  # a bare image needs a linker script
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/emulate -M ${BOARD_MACHINE})
