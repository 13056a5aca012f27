// Sums over what a program has come to, equal on every system.
#pragma once

#include <cstdint>

namespace orvane {

class Program;

// Over the state, the screens with their controls, the boxes, and whether and how the program has
// ended.
uint64_t SumOfState(Program& program);

// The same and the pixels that can be seen: of the pictures on visible screens and of screens that
// are drawn on, what is drawn and what is shown.
uint64_t SumOfAll(Program& program);

}  // namespace orvane
