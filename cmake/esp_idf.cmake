# The library as a component of ESP-IDF; the manifest is idf_component.yml.
idf_component_register(
  SRC_DIRS src/basic src/compare src/convert src/edit
  INCLUDE_DIRS include)
target_compile_options(${COMPONENT_LIB} PRIVATE
  -ffunction-sections -fdata-sections -fno-exceptions -fno-unwind-tables -fno-asynchronous-unwind-tables)  # see library_flags.cmake
