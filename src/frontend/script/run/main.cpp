// orvane-script: plays the game without a window, as Lua scripts say.

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "src/frontend/script/run/script_file.h"
#include "src/frontend/script/run/tally.h"
#include "src/platform/arguments.h"
#include "src/platform/path_text.h"
#include "src/platform/program_path.h"

namespace {

constexpr int kCannotRun = 2;
constexpr const char* kUsage = "usage: orvane-script [--folder DIR] FILE.lua ...\n";

struct Arguments {
  std::filesystem::path Folder;
  std::vector<std::string> Files;
  bool Wrong = false;
};

Arguments Read(const std::vector<std::string>& words) {
  // The game folder that the build makes beside its programs.
  Arguments arguments{orvane::ProgramPath().parent_path() / "game", {}};
  for (size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--folder" && i + 1 < words.size()) {
      arguments.Folder = std::filesystem::absolute(orvane::PathOf(words[++i]));
    } else if (words[i].rfind('-', 0) == 0) {
      arguments.Wrong = true;
    } else {
      arguments.Files.push_back(words[i]);
    }
  }
  arguments.Wrong = arguments.Wrong || arguments.Files.empty();
  return arguments;
}

}  // namespace

int main(int count, char** words) {
  const Arguments arguments = Read(orvane::ProgramArguments(count, words));
  if (arguments.Wrong) {
    std::fputs(kUsage, stderr);
    return kCannotRun;
  }
  orvane::Tally tally;
  for (const std::string& file : arguments.Files) {
    orvane::RunScript(file, arguments.Folder, tally);
  }
  tally.PrintSum();
  return tally.ExitStatus();
}
