#include "src/frontend/script/replay/replay_files.h"

#include <cinttypes>
#include <cstdio>
#include <functional>

#include "src/frontend/script/replay/scenario.h"
#include "src/platform/folder_storage.h"
#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"
#include "src/replay/replayer.h"
#include "src/replay/sums.h"

namespace orvane {
namespace {

constexpr int kDiffers = 1;
constexpr int kCannotRun = 2;

// Reads a replay and gives it to `play`; says what goes wrong on the standard error output.
int With(const std::string& file, const std::filesystem::path& game_folder,
         const std::function<void(Replayer&)>& play) {
  const auto complain = [&file](const std::string& what) {
    std::fprintf(stderr, "%s: %s\n", file.c_str(), what.c_str());
  };
  const std::optional<std::string> bytes = ReadWholeFile(PathOf(file));
  if (!bytes) {
    complain("it cannot be read");
    return kCannotRun;
  }
  const FolderStorage folder(game_folder);
  try {
    Replayer replayer(*bytes, folder);
    try {
      play(replayer);
      return 0;
    } catch (const ReplayDiffers& difference) {
      complain(difference.what() + (", recorded by version " + replayer.Version()));
      return kDiffers;
    }
  } catch (const BrokenReplay& broken) {
    complain(broken.what());
    return kCannotRun;
  }
}

}  // namespace

int PlayReplay(const std::string& file, const std::filesystem::path& game_folder) {
  return With(file, game_folder, [&](Replayer& replayer) {
    while (replayer.Next() != nullptr) {
    }
    const char* end = replayer.IsClosed() ? "" : "; it was cut, and has no sum to compare with";
    std::printf("%s: %d events come out the same, sum %016" PRIx64 "%s\n", file.c_str(),
                replayer.Events(), SumOfAll(replayer.TheProgram()), end);
  });
}

int PrintAsScript(const std::string& file, const std::filesystem::path& game_folder) {
  return With(file, game_folder, [&](Replayer& replayer) {
    const std::string text = ScenarioOf(replayer, FolderStorage(game_folder));
    std::fwrite(text.data(), 1, text.size(), stdout);
  });
}

}  // namespace orvane
