// Integers as wide as they say: leaving the range throws instead of wrapping around.
#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <string>

#include "src/base/error.h"

namespace orvane {

// A signed integer of T's width. Arithmetic with another one or with an int gives the same width
// again (the wider of two), and throws RunError(Overflow) when the result does not fit. Division by
// "/" is left out on purpose: say Int(a / 2.0) for the floor, or Quotient for whole numbers that
// are not negative.
template <class T>
class Checked {
 public:
  constexpr Checked() = default;
  constexpr Checked(int value)
      : value_(Fit(value)) {}  // NOLINT: plain numbers are meant to convert
  template <class U>
  constexpr Checked(Checked<U> other) : value_(Fit(int{other})) {}  // NOLINT: checked all the same
  Checked(double) = delete;  // say RoundToInt16, RoundToInt32 or Int

  constexpr operator int() const { return value_; }  // NOLINT: comparisons and indexes read it

  friend constexpr Checked operator+(Checked a, Checked b) { return Make(Wide(a) + Wide(b)); }
  friend constexpr Checked operator-(Checked a, Checked b) { return Make(Wide(a) - Wide(b)); }
  friend constexpr Checked operator*(Checked a, Checked b) { return Make(Wide(a) * Wide(b)); }
  friend constexpr Checked operator%(Checked a, Checked b) { return Make(Wide(a) % Wide(b)); }
  friend constexpr Checked operator+(Checked a, int b) { return Make(Wide(a) + b); }
  friend constexpr Checked operator-(Checked a, int b) { return Make(Wide(a) - b); }
  friend constexpr Checked operator*(Checked a, int b) { return Make(Wide(a) * b); }
  friend constexpr Checked operator%(Checked a, int b) { return Make(Wide(a) % b); }
  friend constexpr Checked operator+(int a, Checked b) { return Make(a + Wide(b)); }
  friend constexpr Checked operator-(int a, Checked b) { return Make(a - Wide(b)); }
  friend constexpr Checked operator*(int a, Checked b) { return Make(a * Wide(b)); }
  friend constexpr Checked operator-(Checked a) { return Make(-Wide(a)); }

  // With a floating value the arithmetic goes on in double precision.
  template <std::floating_point F>
  friend constexpr double operator+(Checked a, F b) {
    return a.value_ + static_cast<double>(b);
  }
  template <std::floating_point F>
  friend constexpr double operator-(Checked a, F b) {
    return a.value_ - static_cast<double>(b);
  }
  template <std::floating_point F>
  friend constexpr double operator*(Checked a, F b) {
    return a.value_ * static_cast<double>(b);
  }
  template <std::floating_point F>
  friend constexpr double operator*(F a, Checked b) {
    return static_cast<double>(a) * b.value_;
  }
  template <std::floating_point F>
  friend constexpr double operator/(Checked a, F b) {
    return a.value_ / static_cast<double>(b);
  }
  friend void operator/(Checked, int) = delete;
  friend void operator/(Checked, Checked) = delete;

  constexpr Checked& operator+=(int b) { return *this = *this + b; }
  constexpr Checked& operator-=(int b) { return *this = *this - b; }

 private:
  static constexpr int64_t Wide(Checked a) { return a.value_; }
  static constexpr T Fit(int64_t value) {
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) {
      throw RunError(ErrorKind::Overflow, std::to_string(value));
    }
    return static_cast<T>(value);
  }
  static constexpr Checked Make(int64_t value) {
    Checked made;
    made.value_ = Fit(value);
    return made;
  }

  T value_ = 0;
};

using Int16 = Checked<int16_t>;
using Int32 = Checked<int32_t>;

constexpr Int32 operator+(Int32 a, Int16 b) {
  return a + int{b};
}
constexpr Int32 operator-(Int32 a, Int16 b) {
  return a - int{b};
}
constexpr Int32 operator*(Int32 a, Int16 b) {
  return a * int{b};
}
constexpr Int32 operator+(Int16 a, Int32 b) {
  return int{a} + b;
}
constexpr Int32 operator-(Int16 a, Int32 b) {
  return int{a} - b;
}
constexpr Int32 operator*(Int16 a, Int32 b) {
  return int{a} * b;
}

// The truth values of 16-bit booleans. Only exactly -1 counts as true where the game tests for it.
constexpr int kTrue = -1;
constexpr int kFalse = 0;

// The floor, also below zero.
inline double Int(double value) {
  return std::floor(value);
}

// Whole-number quotient rounded down; `divisor` is positive.
constexpr int Quotient(int value, int divisor) {
  return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

// Nearest integer, ties to even; throws RunError(Overflow) outside 32 bits.
inline Int32 RoundToInt32(double value) {
  const double nearest = std::nearbyint(value);
  if (!(nearest >= std::numeric_limits<int32_t>::min() &&
        nearest <= std::numeric_limits<int32_t>::max())) {
    throw RunError(ErrorKind::Overflow, std::to_string(value));
  }
  return Int32(static_cast<int>(nearest));
}

// The same for 16 bits.
inline Int16 RoundToInt16(double value) {
  return Int16(RoundToInt32(value));
}

}  // namespace orvane
