# What the library's own objects need beyond what src/quvex_compiler.h says to any compiler, whoever builds them. All of it
# PRIVATE: nothing reaches a target that links them.
target_compile_features(quvex PRIVATE cxx_std_17)
set_target_properties(quvex PROPERTIES CXX_EXTENSIONS OFF)

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "^(GNU|Clang)$")
  return()
endif()

target_compile_options(quvex PRIVATE
  -ffunction-sections               # a section for each operation: an image keeps only those that it calls
  -fdata-sections                   # likewise for the two constants
  -fno-exceptions                   # nothing throws
  -fno-unwind-tables                # 8 bytes of .ARM.exidx a function otherwise
  -fno-asynchronous-unwind-tables   # .eh_frame otherwise
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=quvex  # the same bytes in whatever folder they are built
  -ffile-prefix-map=${CMAKE_BINARY_DIR}=build    # likewise
  -include ${CMAKE_CURRENT_LIST_DIR}/any_float_abi.h)

if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  target_compile_options(quvex PRIVATE
    -fsjlj-exceptions      # no .ARM.exidx, which clang emits even where nothing throws
    -fomit-frame-pointer   # clang keeps one in every function with a stack
    -mno-outline           # at -Oz, code that operations share would become a function of its own
    $<$<CONFIG:MinSizeRel>:-Oz>  # -Os is for speed as well
    "$<$<CONFIG:MinSizeRel>:SHELL:-mllvm -enable-shrink-wrap=false>")  # as no-shrink-wrap for GCC
endif()

# D: no time, user or mode of a member in the archive.
set(CMAKE_CXX_ARCHIVE_CREATE "<CMAKE_AR> qcD <TARGET> <LINK_FLAGS> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_FINISH "<CMAKE_RANLIB> -D <TARGET>")
