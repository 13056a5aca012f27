// The monkey: plays the game by whatever comes to its mind, and looks after every action whether
// all holds that must.
//   orvane-monkey [--seed N] [--actions N] [--lives N] [--out DIR] GAME_FOLDER
// Plays lives from the seed on until so many actions are done. What fails prints its seed and
// leaves a replay in the folder; the same seed with --lives 1 does it again.

#include <charconv>
#include <chrono>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "src/platform/arguments.h"
#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"
#include "tests/game_files.h"
#include "tests/monkey/life.h"

namespace {

using namespace orvane;

struct Settings {
  uint64_t Seed = 1;
  uint64_t Actions = 100000;
  uint64_t Lives = UINT64_MAX;
  std::string Out = ".";
  std::string Folder;
  bool Wrong = false;
};

Settings Read(const std::vector<std::string>& words) {
  Settings settings;
  for (size_t i = 0; i < words.size(); ++i) {
    uint64_t* number = nullptr;
    if (words[i] == "--seed") number = &settings.Seed;
    if (words[i] == "--actions") number = &settings.Actions;
    if (words[i] == "--lives") number = &settings.Lives;
    if (number == nullptr && words[i] != "--out") {
      settings.Wrong = settings.Wrong || !settings.Folder.empty() || words[i].starts_with("-");
      settings.Folder = words[i];
    } else if (++i == words.size()) {
      settings.Wrong = true;
    } else if (number == nullptr) {
      settings.Out = words[i];
    } else {
      const char* end = words[i].data() + words[i].size();
      const auto read = std::from_chars(words[i].data(), end, *number);
      settings.Wrong = settings.Wrong || read.ec != std::errc() || read.ptr != end;
    }
  }
  settings.Wrong = settings.Wrong || settings.Folder.empty();
  return settings;
}

// How many lives came how far.
struct Tally {
  uint64_t Battles = 0, Techniques = 0, Spells = 0, Things = 0, Dragons = 0, LastStages = 0,
           LastDragons = 0, Endings = 0;

  void Add(const monkey::Life::Reached& came) {
    Battles += came.Battle ? 1 : 0;
    Techniques += came.Technique ? 1 : 0;
    Spells += came.Spell ? 1 : 0;
    Things += came.Thing ? 1 : 0;
    Dragons += came.Dragon ? 1 : 0;
    LastStages += came.LastStage ? 1 : 0;
    LastDragons += came.LastDragon ? 1 : 0;
    Endings += came.Ending ? 1 : 0;
  }
  bool HasAll() const {
    return Battles > 0 && Techniques > 0 && Spells > 0 && Things > 0 && Dragons > 0 &&
           LastStages > 0 && LastDragons > 0 && Endings > 0;
  }
};

}  // namespace

int main(int count, char** words) {
  constexpr int longest = 900;
  constexpr uint64_t again = 10;
  constexpr uint64_t enough = 20000;
  const Settings settings = Read(ProgramArguments(count, words));
  if (settings.Wrong) {
    std::fputs(
        "usage: orvane-monkey [--seed N] [--actions N] [--lives N] [--out DIR] GAME_FOLDER\n",
        stderr);
    return 2;
  }
  const monkey::Files folder = test::ReadGameFiles(PathOf(settings.Folder));
  const auto begin = std::chrono::steady_clock::now();
  uint64_t actions = 0;
  uint64_t lives = 0;
  Tally tally;
  for (; actions < settings.Actions && lives < settings.Lives; ++lives) {
    const uint64_t seed = settings.Seed + lives;
    monkey::Life life(seed, folder);
    try {
      life.Play(static_cast<int>(100 + seed % longest));
      if (seed % again == 0) life.PlayAgain();
    } catch (const monkey::Fault& fault) {
      const std::string file = settings.Out + "/monkey-" + std::to_string(seed) + ".replay";
      std::printf("seed %" PRIu64 ", action %d: %s; see %s\n", seed, life.Actions(), fault.what(),
                  file.c_str());
      if (!WriteWholeFile(PathOf(file), life.Replay())) std::printf("it cannot be written\n");
      return 1;
    }
    actions += static_cast<uint64_t>(life.Actions());
    tally.Add(life.Came());
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  std::printf("%" PRIu64 " actions in %" PRIu64 " lives, %.0f actions/s\n", actions, lives,
              static_cast<double>(actions) / took.count());
  std::printf("lives with a battle %" PRIu64 ", a technique %" PRIu64 ", a spell %" PRIu64
              ", a thing used there %" PRIu64 "\n",
              tally.Battles, tally.Techniques, tally.Spells, tally.Things);
  std::printf("lives with a dragon %" PRIu64 ", the last stage %" PRIu64 ", its dragon %" PRIu64
              ", the ending %" PRIu64 "\n",
              tally.Dragons, tally.LastStages, tally.LastDragons, tally.Endings);
  // A monkey that gets nowhere finds nothing.
  const bool is_long = actions >= enough;
  return is_long && !tally.HasAll() ? 1 : 0;
}
