# GoogleTest for a bare image: built from Debian's sources over newlib, whose input and output reach the emulator's host.
set(googletest /usr/src/googletest/googletest)
if(NOT EXISTS ${googletest}/src/gtest-all.cc)
  message(FATAL_ERROR "GoogleTest's sources are missing: scripts/setup installs them, -DBUILD_TESTING=OFF does without.")
endif()

add_library(board_googletest STATIC EXCLUDE_FROM_ALL
  ${googletest}/src/gtest-all.cc ${googletest}/src/gtest_main.cc)
target_include_directories(board_googletest PRIVATE ${googletest})
target_include_directories(board_googletest SYSTEM PUBLIC ${googletest}/include)
target_compile_definitions(board_googletest PUBLIC
  GTEST_HAS_PTHREAD=0 GTEST_HAS_POSIX_RE=0 GTEST_HAS_STREAM_REDIRECTION=0 GTEST_HAS_DEATH_TEST=0  # newlib has none of them
  _POSIX_PATH_MAX=128)                                                                            # nor this limit
target_compile_options(board_googletest
  PRIVATE -w -ffunction-sections -fdata-sections  # not our warnings; an image keeps what it uses
  PUBLIC -Wno-psabi)                              # a note on a change of GCC 7, in its headers
set_target_properties(board_googletest PROPERTIES CXX_EXTENSIONS ON)  # fileno is no C++17
target_link_libraries(board_googletest PUBLIC board_libc)
add_library(GTest::gtest_main ALIAS board_googletest)
