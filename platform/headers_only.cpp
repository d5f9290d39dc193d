// What the headers of the C++ library leave to its archive, which RISC-V's compiler lacks.
#include <stdlib.h>

#include <string>

template class std::basic_string<char>;

void* operator new(size_t size) {
  void* const memory = malloc(size);
  if (!memory) abort();
  return memory;
}
void operator delete(void* memory) noexcept { free(memory); }
void operator delete(void* memory, size_t) noexcept { free(memory); }

namespace std {
void __throw_bad_alloc() { abort(); }
void __throw_bad_array_new_length() { abort(); }
void __throw_logic_error(const char*) { abort(); }
void __throw_length_error(const char*) { abort(); }
void __throw_out_of_range_fmt(const char*, ...) { abort(); }
}  // namespace std
