#ifndef TESTS_SUPPORT_GUARDED_H
#define TESTS_SUPPORT_GUARDED_H

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "memory.h"

// What a row says of a string or a buffer: a literal stands for its characters and terminator, nullptr for null.
struct Text {
  Text(std::nullptr_t) : is_null(true) {}
  Text(const std::u16string& characters) : units(characters + u'\0') {}
  Text(const char16_t* first, std::size_t size) : units(first, size) {}
  template <std::size_t size>
  Text(const char16_t (&literal)[size]) : units(literal, size) {}

  std::u16string units;
  bool is_null = false;
};

// Units alone, without a terminator behind them.
inline Text operator""_u(const char16_t* units, std::size_t size) { return Text(units, size); }

// A buffer of exactly these units. An access to the one before the first, or to the one past the last, faults: which
// of them is the side under test.
template <class Unit>
class Guarded {
 public:
  Guarded(const Text& text, Access access) : page_(used_pages++), size_(text.units.size()), is_null_(text.is_null) {
    uint8_t* start = protect_page(page_, Access::write);
    if (side_under_test == Side::end) start += page_size - size_ * sizeof(Unit);
    first_ = reinterpret_cast<Unit*>(start);
    std::copy(text.units.begin(), text.units.end(), first_);
    protect_page(page_, access);
  }
  ~Guarded() { protect_page(page_, Access::none), --used_pages; }

  Unit* data() const { return is_null_ ? nullptr : first_; }
  std::u16string units() const { return std::u16string(first_, first_ + size_); }

  // Where a result points; -1 for null.
  int index_of(const Unit* result) const { return result ? static_cast<int>(result - first_) : -1; }

 private:
  int page_;
  std::size_t size_;
  bool is_null_;
  Unit* first_;
};

// A string that is read: a store faults.
template <class Unit>
struct Source : Guarded<Unit> {
  Source(const Text& text) : Guarded<Unit>(text, Access::read) {}
  operator const Unit*() const { return this->data(); }
};

// A buffer that is written, and must hold `after` when it goes. It is exactly as long, and holds markers where `before`
// does not reach. A null `after` says that nothing may be stored, not even what is there already.
template <class Unit>
class Destination : public Guarded<Unit> {
 public:
  Destination(const Text& before, const Text& after)
      : Guarded<Unit>(padded(before, after), after.is_null ? Access::read : Access::write),
        expected_(after.is_null ? before.units : after.units) {}
  explicit Destination(const Text& after) : Destination(after.is_null ? u"#"_u : u""_u, after) {}
  ~Destination() { EXPECT_EQ(this->units(), expected_); }
  operator Unit*() const { return this->data(); }

 private:
  static Text padded(Text text, const Text& after) {
    text.units.resize(std::max(text.units.size(), after.units.size()), u'#');
    return text;
  }
  std::u16string expected_;
};

#endif
