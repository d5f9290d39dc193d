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

// Units alone, without a terminator after them.
inline Text operator""_u(const char16_t* units, std::size_t size) { return Text(units, size); }
const Text fresh = u""_u;

// Exactly the units of `before` and as many markers as a longer `after` needs, which must stand there at the end.
// Without `after`, or with null, it is only read: a store faults. So does an access to the unit before the first, or to
// the one past the last: which of them is the side under test, and so is whether
// the first buffer of a row lies before the others or behind them.
template <class Unit>
class Guarded {
 public:
  explicit Guarded(const Text& before, const Text& after = nullptr)
      : page_(side_under_test == Side::start ? used_pages : pages - 1 - used_pages),
        is_null_(before.is_null),
        expected_(after.is_null ? before.units : after.units) {
    ++used_pages;
    std::u16string units = before.units;
    units.resize(std::max(units.size(), expected_.size()), u'#');
    uint8_t* start = protect_page(page_, Access::write);
    if (side_under_test == Side::end) start += page_size - units.size() * sizeof(Unit);
    first_ = reinterpret_cast<Unit*>(start);
    end_ = std::copy(units.begin(), units.end(), first_);
    protect_page(page_, after.is_null ? Access::read : Access::write);
  }
  ~Guarded() {
    EXPECT_EQ(std::u16string(first_, end_), expected_);
    protect_page(page_, Access::none), --used_pages;
  }

  operator Unit*() const { return is_null_ ? nullptr : first_; }

  // Where a result points; -1 for null.
  int index_of(const Unit* result) const { return result ? static_cast<int>(result - first_) : -1; }

 private:
  int page_;
  bool is_null_;
  std::u16string expected_;
  Unit *first_, *end_;
};

#endif
