// Names as scripts write them, "Main.Label5(0).Caption" or "MapTile[5][7]", in parts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A word and the indexes behind it.
struct NamePart {
  std::string Word;
  std::vector<int> Indexes;
};

// The parts between the dots of a name. Parentheses and brackets mean the same. Throws ScriptError
// for what is no name.
std::vector<NamePart> SplitName(std::string_view name);

// The part as controls are named: "Label5(0)".
std::string WithParentheses(const NamePart& part);

}  // namespace orvane
