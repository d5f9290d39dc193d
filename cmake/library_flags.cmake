# What the library's own objects need, whoever builds them. All of it PRIVATE: nothing reaches a target that links them.
target_compile_features(quvex PRIVATE cxx_std_17)
set_target_properties(quvex PROPERTIES
  CXX_EXTENSIONS OFF
  INTERPROCEDURAL_OPTIMIZATION OFF)  # see -fno-lto

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "^(GNU|Clang)$")
  return()
endif()

target_compile_options(quvex PRIVATE
  -ffreestanding                    # a plain loop must not become a call of memcpy, memset or strlen
  -fno-lto                          # inlined into an application by LTO, the loops would lose -ffreestanding
  -ffunction-sections               # one section an operation: an image keeps only those that it calls
  -fdata-sections                   # likewise for the two constants
  -fno-exceptions                   # nothing throws
  -fno-unwind-tables                # 8 bytes of .ARM.exidx a function otherwise
  -fno-asynchronous-unwind-tables   # .eh_frame otherwise
  -fno-rtti                         # no class has a use for it
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=quvex  # the same bytes in whatever folder they are built
  -ffile-prefix-map=${CMAKE_BINARY_DIR}=build    # likewise
  -include ${CMAKE_CURRENT_LIST_DIR}/any_float_abi.h
  $<$<CXX_COMPILER_ID:GNU>:-fno-ipa-icf>         # equal twins must not be merged: each is a section of its own
  $<$<CXX_COMPILER_ID:Clang>:-mno-outline>       # likewise for what they share, at -Oz
  $<$<CXX_COMPILER_ID:Clang>:-fsjlj-exceptions>) # no .ARM.exidx, which clang emits even where nothing throws

if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  target_compile_options(quvex PRIVATE
    $<$<CONFIG:MinSizeRel>:-fno-shrink-wrap>       # one way in and out is smaller than a short one past the saved registers
    $<$<CONFIG:MinSizeRel>:-fno-ivopts>            # a pointer for each use of an index saves time, not bytes
    $<$<CONFIG:MinSizeRel>:-fno-schedule-insns2>   # the order that is written needs fewer 4-byte instructions
    $<$<CONFIG:MinSizeRel>:-fno-cse-follow-jumps>  # a constant kept in a register costs more than one made again
    $<$<CONFIG:Release>:-fno-tree-pre>             # what it computes ahead of a loop's next turn costs a copy in each
    $<$<CONFIG:Release>:-fno-tree-loop-im>)        # a constant moved out of a loop takes a register that is saved for it
endif()

# D: no time, user or mode of a member in the archive.
set(CMAKE_CXX_ARCHIVE_CREATE "<CMAKE_AR> qcD <TARGET> <LINK_FLAGS> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_FINISH "<CMAKE_RANLIB> -D <TARGET>")
