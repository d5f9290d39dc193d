# The library alone, with clang. Images are linked by what compiles them.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++ CACHE STRING "clang++, or another version of it")
set(CMAKE_C_COMPILER_TARGET thumbv7em-none-eabi)
set(CMAKE_CXX_COMPILER_TARGET thumbv7em-none-eabi)
set(CMAKE_C_FLAGS_INIT "-mcpu=cortex-m4 -mfloat-abi=soft")
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT}")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)  # a bare image needs a linker script
