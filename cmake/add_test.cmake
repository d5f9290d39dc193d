# quvex_add_test(NAME SOURCE...): a GoogleTest program, each of its tests known to CTest; on the board if one is built for.
include(GoogleTest)
if(BOARD_MACHINE)
  include(${CMAKE_CURRENT_LIST_DIR}/board_googletest.cmake)
else()
  find_package(GTest)
  if(NOT GTest_FOUND)
    message(FATAL_ERROR "GoogleTest is missing: scripts/setup installs it, -DBUILD_TESTING=OFF does without the tests.")
  endif()
endif()

function(quvex_add_test name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE quvex GTest::gtest_main)
  if(BOARD_MACHINE)
    set_target_properties(${name} PROPERTIES CXX_EXTENSIONS ON)  # newlib declares what GoogleTest calls only then
  endif()
  # A test that never ends is a failed one. Discovery at test time, so that a build needs no emulator.
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 60)
endfunction()
