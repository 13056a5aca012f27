// Texts as the system takes and gives them: UTF-16 there, UTF-8 here.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// What is not well formed comes through as U+FFFD, both ways.
std::wstring Wide(std::string_view utf8);
std::string Utf8(std::wstring_view wide);

}  // namespace orvane
