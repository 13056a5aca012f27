// The command line of the game.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

struct Options {
  std::optional<std::filesystem::path> Folder;  // the game folder; found by itself unless given
  std::optional<double> Scale;   // size of the windows, 0.5 to 8; chosen by the screen unless given
  std::optional<uint32_t> Seed;  // makes chance repeatable, for tests
  std::string Language;          // the code of the language to show; empty unless given
  std::optional<std::filesystem::path> Record;  // the file that takes a record of the play, if any
  bool WantsHelp = false;
  std::string Error;  // what is wrong with the command line; empty when all is well
};

// Reads the arguments that follow the program's name.
Options ReadOptions(const std::vector<std::string>& arguments);

// What --help prints.
std::string HelpText();

}  // namespace orvane
