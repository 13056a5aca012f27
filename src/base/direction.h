// The four directions in which one walks, looks and presses keys.
#pragma once

namespace orvane {

// The numbers are those by which the state names a held key (LastKey), where 0 is none.
enum class Direction { Up = 1, Down = 2, Left = 3, Right = 4 };

// All of them in the order in which they are tried.
constexpr Direction kDirections[] = {Direction::Up, Direction::Down, Direction::Left,
                                     Direction::Right};

}  // namespace orvane
