// orvane-script: plays the game without a window, as Lua scripts say.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "src/frontend/script/replay/replay_files.h"
#include "src/frontend/script/run/script_file.h"
#include "src/frontend/script/run/tally.h"
#include "src/platform/arguments.h"
#include "src/platform/path_text.h"
#include "src/platform/program_path.h"

namespace {

constexpr int kCannotRun = 2;
constexpr const char* kUsage =
    "usage: orvane-script [--folder DIR] [--record FILE] FILE.lua ...\n"
    "       orvane-script [--folder DIR] --replay FILE ...\n"
    "       orvane-script [--folder DIR] --to-lua FILE\n";

struct Arguments {
  std::filesystem::path Folder;
  std::vector<std::string> Files;
  std::filesystem::path Record;  // the file that takes a record of what the scripts do
  bool Replays = false;
  bool TellsAsLua = false;
  bool Wrong = false;
};

Arguments Read(const std::vector<std::string>& words) {
  // The game folder that the build makes beside its programs.
  Arguments arguments;
  arguments.Folder = orvane::ProgramPath().parent_path() / "game";
  for (size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--folder" && i + 1 < words.size()) {
      arguments.Folder = std::filesystem::absolute(orvane::PathOf(words[++i]));
    } else if (words[i] == "--record" && i + 1 < words.size()) {
      arguments.Record = std::filesystem::absolute(orvane::PathOf(words[++i]));
    } else if (words[i] == "--replay") {
      arguments.Replays = true;
    } else if (words[i] == "--to-lua") {
      arguments.TellsAsLua = true;
    } else if (words[i].rfind('-', 0) == 0) {
      arguments.Wrong = true;
    } else {
      arguments.Files.push_back(words[i]);
    }
  }
  const bool takes_replays = arguments.Replays || arguments.TellsAsLua;
  arguments.Wrong = arguments.Wrong || arguments.Files.empty() ||
                    (arguments.Replays && arguments.TellsAsLua) ||
                    (takes_replays && !arguments.Record.empty()) ||
                    (arguments.TellsAsLua && arguments.Files.size() > 1);
  return arguments;
}

}  // namespace

int main(int count, char** words) {
  const Arguments arguments = Read(orvane::ProgramArguments(count, words));
  if (arguments.Wrong) {
    std::fputs(kUsage, stderr);
    return kCannotRun;
  }
  if (arguments.TellsAsLua) return orvane::PrintAsScript(arguments.Files.front(), arguments.Folder);
  if (arguments.Replays) {
    int status = 0;
    for (const std::string& file : arguments.Files) {
      status = std::max(status, orvane::PlayReplay(file, arguments.Folder));
    }
    return status;
  }
  orvane::Tally tally;
  for (const std::string& file : arguments.Files) {
    orvane::RunScript(file, arguments.Folder, arguments.Record, tally);
  }
  tally.PrintSum();
  return tally.ExitStatus();
}
