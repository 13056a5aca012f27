// The Japanese texts that stand in sources.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane::texts {

// Whether a text has a kana, a kanji or a sign of full width.
bool IsJapanese(std::string_view text);

// The Japanese literals of a source of C++ or JavaScript, in which literals side by side are one
// and comments have none. What stands in a literal of JavaScript as ${...} parts it.
std::vector<std::string> Literals(std::string_view source);

// The Japanese texts and attributes of a page.
std::vector<std::string> PageTexts(std::string_view page);

}  // namespace orvane::texts
