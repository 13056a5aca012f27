// Values as Lua writes them.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// A text in quotes; all bytes but printable ASCII as numbers.
std::string LuaText(std::string_view text);

// A number with all its digits.
std::string LuaNumber(double number);

}  // namespace orvane
