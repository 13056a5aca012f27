// Texts as the system's controls take them.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// UTF-16, and every "&" doubled, which would else underline the letter behind it.
std::wstring WideCaption(std::string_view text);

// UTF-16, with lines that end in two characters.
std::wstring WideLines(std::string_view text);

}  // namespace orvane
