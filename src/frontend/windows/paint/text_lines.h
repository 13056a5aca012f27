// Breaks texts into lines.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// How wide a piece of text is, in any unit.
using MeasureText = std::function<int(std::wstring_view)>;

// The lines of a text that are no wider than `width`, as far as it can be broken: at its own line
// ends, at blanks, and beside letters of Japanese words, but for signs that may not begin a line.
std::vector<std::wstring> BreakLines(std::wstring_view text, int width, const MeasureText& measure);

}  // namespace orvane
