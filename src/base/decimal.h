// Reading a number with decimals, the same whatever the system's language writes them like.
#pragma once

#include <optional>
#include <string_view>

namespace orvane {

// The number that a text says from its first character to its last: digits with a decimal point or
// without, a minus sign before them or not, an exponent behind them or not ("-1.5e3"). Nothing for
// any other text, an empty one, one with blanks, or a word such as "inf". A number too large for a
// double is the largest double.
std::optional<double> ReadDecimal(std::string_view text);

}  // namespace orvane
