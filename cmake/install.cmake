# cmake --install: headers, archive, and what find_package and pkg-config look for.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/quvex)
install(TARGETS quvex EXPORT quvex ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
# Nothing else has to be found first, so that the targets' own file is the package's.
install(EXPORT quvex NAMESPACE quvex:: FILE quvex-config.cmake DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/quvex-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/quvex-config-version.cmake DESTINATION ${package})
# Relative to its own place, so that an installed tree can be moved.
file(RELATIVE_PATH prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/quvex.pc.in quvex.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quvex.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
