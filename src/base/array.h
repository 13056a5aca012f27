// Arrays that refuse an index outside their bounds.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "src/base/error.h"

namespace orvane {

// Throws RunError(Subscript) unless 0 <= index < size.
inline void CheckIndex(int index, size_t size) {
  if (index < 0 || static_cast<size_t>(index) >= size) {
    throw RunError(ErrorKind::Subscript, std::to_string(index));
  }
}

// N values with the indexes 0 to N - 1; any other index throws RunError(Subscript).
template <class T, size_t N>
class Array {
 public:
  static constexpr int Size = static_cast<int>(N);

  T& operator[](int index) {
    CheckIndex(index, N);
    return values_[static_cast<size_t>(index)];
  }
  const T& operator[](int index) const {
    CheckIndex(index, N);
    return values_[static_cast<size_t>(index)];
  }
  bool operator==(const Array&) const = default;

  auto begin() { return values_.begin(); }
  auto end() { return values_.end(); }
  auto begin() const { return values_.begin(); }
  auto end() const { return values_.end(); }

 private:
  std::array<T, N> values_{};
};

}  // namespace orvane
