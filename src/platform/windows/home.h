// Where the game folder is.
#pragma once

#include <filesystem>

namespace orvane {

struct Home {
  // Empty where the player has no place for one.
  std::filesystem::path Folder;
  // What Folder is to be made after; empty where it stands by itself.
  std::filesystem::path Installed;
};

// The folder "game" beside the program. Where files cannot be written in it, as among the programs
// of all users or on a disc, the player's own, Orvane\game in the local application data.
Home FindHome();

// The same by the folder of the program and that of the local application data, which may be empty.
Home FindHome(const std::filesystem::path& program, const std::filesystem::path& data);

}  // namespace orvane
