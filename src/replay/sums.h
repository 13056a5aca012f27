// Sums over what a program has come to, equal on every system: FNV-1a, of 64 bits.
#pragma once

#include <cstdint>
#include <string_view>

namespace orvane {

class Program;

uint64_t SumOfBytes(std::string_view bytes);

// Over the state, the screens with their controls, the boxes, and whether and how the program has
// ended.
uint64_t SumOfState(Program& program);

// The same and the pixels that can be seen: of the pictures on visible screens and of screens that
// are drawn on, what is drawn and what is shown.
uint64_t SumOfAll(Program& program);

}  // namespace orvane
