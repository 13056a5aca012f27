// What is held down on a game pad.
#pragma once

#include <array>
#include <cstddef>

namespace orvane {

// Directions as Direction counts them, then what the other buttons stand for.
enum class PadButton { Left, Up, Right, Down, Accept, Back, Menu, Previous, Next };
constexpr size_t kPadButtons = 9;

using PadState = std::array<bool, kPadButtons>;

// The stick of a game pad as a cross of four directions.
class PadStick {
 public:
  // Takes the stick's place, -1 to 1 on each axis, right and down positive, and sets at most one
  // direction in `state`: that of the longer way out. It comes and goes at different lengths, so
  // that a hand that trembles does not make the party stumble.
  void Add(double x, double y, PadState& state);

 private:
  bool held_ = false;
  bool upright_ = false;  // the direction held is up or down
};

}  // namespace orvane
