// The four directions in which one walks, looks and presses keys.
#pragma once

namespace orvane {

enum class Direction { Left, Up, Right, Down };

// All of them in the order of their numbers.
constexpr Direction kDirections[] = {Direction::Left, Direction::Up, Direction::Right,
                                     Direction::Down};

}  // namespace orvane
