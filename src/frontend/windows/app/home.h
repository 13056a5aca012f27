// Where the game folder is.
#pragma once

#include <filesystem>
#include <string>

namespace orvane {

struct Home {
  // Empty where the player has no place for one.
  std::filesystem::path Folder;
  // What Folder is to be made after; empty where it stands by itself.
  std::filesystem::path Installed;
};

// The folder "game" beside the program. Where nothing can be written there, the player's own among
// the local application data.
Home FindHome();

// Makes or renews the player's own folder. Returns what is wrong, or nothing.
std::string MakeReady(const Home& home);

}  // namespace orvane
