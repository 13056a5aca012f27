// The monkey's own chance, apart from the game's.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <vector>

namespace orvane::monkey {

class Dice {
 public:
  explicit Dice(uint64_t seed) : generator_(seed) {}

  // A whole number from `least` to `most`, both included.
  int Between(int least, int most) {
    const auto span = static_cast<uint64_t>(most - least) + 1;
    return least + static_cast<int>(generator_() % span);
  }
  // True once in `count` times.
  bool OnceIn(int count) { return Between(1, count) == 1; }
  template <class T>
  const T& OneOf(const std::vector<T>& things) {
    return things[static_cast<size_t>(Between(0, static_cast<int>(things.size()) - 1))];
  }

 private:
  std::mt19937_64 generator_;
};

}  // namespace orvane::monkey
