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
  -ffunction-sections               # a section for each operation: an image keeps only those that it calls
  -fdata-sections                   # likewise for the two constants
  -fno-exceptions                   # nothing throws
  -fno-unwind-tables                # 8 bytes of .ARM.exidx a function otherwise
  -fno-asynchronous-unwind-tables   # .eh_frame otherwise
  -fno-rtti                         # no class has a use for it
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=quvex  # the same bytes in whatever folder they are built
  -ffile-prefix-map=${CMAKE_BINARY_DIR}=build    # likewise
  -include ${CMAKE_CURRENT_LIST_DIR}/any_float_abi.h
  $<$<CXX_COMPILER_ID:GNU>:-fno-ipa-icf>         # equal twins must not be merged: each needs its own section
  $<$<CXX_COMPILER_ID:Clang>:-mno-outline>       # nor must what they share, at -Oz
  $<$<CXX_COMPILER_ID:Clang>:-fsjlj-exceptions>) # no .ARM.exidx, which clang emits even where nothing throws

if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  target_compile_options(quvex PRIVATE
    $<$<CONFIG:MinSizeRel,Release>:-fno-shrink-wrap>  # one way in and out is smaller than a second one that saves no registers
    # For size: off are the passes that duplicate code, or keep values in registers that must then be saved.
    $<$<CONFIG:MinSizeRel>:-fno-ivopts>               # keeps a pointer for each use of an index
    $<$<CONFIG:MinSizeRel>:-fno-cse-follow-jumps>     # keeps a constant live instead of reloading it
    $<$<CONFIG:MinSizeRel>:-fno-thread-jumps>         # copies a test for each path that leads to it
    $<$<CONFIG:MinSizeRel>:-fno-tree-dominator-opts>  # likewise
    $<$<CONFIG:MinSizeRel>:-fno-tree-tail-merge>      # merges before it is known to be smaller; a later pass knows
    $<$<CONFIG:MinSizeRel>:-fno-ssa-phiopt>           # turns two branches into an expression of wider instructions
    $<$<CONFIG:MinSizeRel>:-fno-schedule-insns2>      # an order that needs registers which only 4-byte instructions reach
    $<$<CONFIG:MinSizeRel>:-freorder-blocks-algorithm=stc>  # the order of the source needs more jumps
    # For speed.
    $<$<CONFIG:Release>:-fno-tree-pre>                # computes the next iteration's values early: a copy in each iteration
    $<$<CONFIG:Release>:-fno-tree-loop-im>            # keeps a constant in a register that must then be saved
    $<$<CONFIG:Release>:-fno-schedule-insns>)         # likewise
endif()

# D: no time, user or mode of a member in the archive.
set(CMAKE_CXX_ARCHIVE_CREATE "<CMAKE_AR> qcD <TARGET> <LINK_FLAGS> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_FINISH "<CMAKE_RANLIB> -D <TARGET>")
