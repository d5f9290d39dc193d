# The library as a component of ESP-IDF; the manifest is idf_component.yml.
idf_component_register(
  SRC_DIRS src/basic src/compare src/convert src/edit
  INCLUDE_DIRS include)
target_compile_options(${COMPONENT_LIB} PRIVATE -ffreestanding -fno-lto)  # see library_flags.cmake
