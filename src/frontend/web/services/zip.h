// Archives of small files: what a player takes along or brings.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane {

// Files by their names, in their order.
using NamedFiles = std::vector<std::pair<std::string, std::string>>;

// Whether the bytes begin as those of an archive do.
bool LooksLikeZip(std::string_view bytes);

// An archive of these files, stored as they are. Equal files make equal archives.
std::string WriteZip(const NamedFiles& files);

// The files of an archive, stored or deflated as archives mostly are, without its folders. Nothing
// for what is no archive, is not whole, or has a file of more than a megabyte.
std::optional<NamedFiles> ReadZip(std::string_view bytes);

}  // namespace orvane
