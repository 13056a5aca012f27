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
  // What is wrong where Folder is empty.
  std::string Problem;
};

// The folder "game" beside the program, as in a build or an unpacked archive. Where that is not for
// the player to write, as where it is installed for all, one of the player's own. Each front end
// has its own.
Home FindHome();

// Makes or renews the player's own folder. Returns what is wrong, or nothing.
std::string MakeReady(const Home& home);

}  // namespace orvane
