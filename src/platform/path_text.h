// The one way between paths and texts: UTF-8, whatever a system's own encoding of names is.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvane {

// The path of a UTF-8 text.
std::filesystem::path PathOf(std::string_view utf8);

// The UTF-8 text of a path, with the separators as they stand in it.
std::string TextOf(const std::filesystem::path& path);

}  // namespace orvane
