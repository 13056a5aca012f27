// Reading numbers that may have a fraction.
#pragma once

#include <charconv>

namespace orvane {

// std::from_chars for double, also where the standard library has it for whole numbers only.
std::from_chars_result ReadDouble(const char* first, const char* last, double& value);

}  // namespace orvane
