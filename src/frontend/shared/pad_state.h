// What is held down on a game pad.
#pragma once

#include <array>
#include <cstddef>

namespace orvane {

// Directions in the order of Key: left, up, right, down; then what the other buttons stand for.
enum class PadButton { Left, Up, Right, Down, Accept, Back, Menu, Previous, Next };
constexpr size_t PadButtons = 9;

using PadState = std::array<bool, PadButtons>;

}  // namespace orvane
