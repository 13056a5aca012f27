// Long play leaves no more behind than a little.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

#include "tests/windows/game_folder.h"
#include "tests/windows/journey.h"

namespace orvane::test {
namespace {

constexpr double kMayGrow = 12;  // MB; a player would not notice
constexpr int kTicksPerStroll = 30;

// What this process takes of the memory, in MB.
double Memory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmRSS:", 0) == 0) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

class Memories : public testing::Test {
 protected:
  Opening InFolder() const {
    Opening opening;
    opening.Folder = folder_.Path();
    return opening;
  }

  // One way of a walk, in one go, and what is painted after it.
  void Stroll(Qt::Key key) {
    Session::KeyDown(key);
    session_.Send([&](Program& program) {
      auto& walk = session_.As<Timer>("Main.Timer1");
      for (int i = 0; i < kTicksPerStroll && walk.IsEnabled(); ++i) {
        program.Tick(walk);
        played_ += walk.Pace;
      }
    });
    if (session_.HasKeys("Main")) Session::KeyUp(key);
  }

  // The first enemy that lives, as a row of the targets.
  int Target() {
    int row = 1;
    while (row < 5 && session_.Facts().EnemyAlive[row - 1] == 0) ++row;
    return row;
  }

  void Fight() {
    session_.Opens("Battle");
    Session::KeyUp(Qt::Key_Left);
    Session::KeyUp(Qt::Key_Right);
    AwaitCommand(session_);
    while (!IsWon(session_)) {
      Strike(session_, Target());
      session_.Run("Battle.Timer1", [&] { return false; });
      AwaitCommand(session_);
    }
    LeaveVictory(session_);
    ++battles_;
  }

  // Walks to and fro for so many minutes of the game, and fights as well; heroes stay well.
  void Play(int minutes) {
    played_ = 0;
    while (played_ < minutes * 60000.0) {
      for (int hero = 0; hero < 2; ++hero) session_.Facts().HP[hero] = 800;
      for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) {
        if (!session_.Shows("Battle")) Stroll(key);
      }
      if (session_.Shows("Battle")) Fight();
    }
  }

  GameFolder folder_;
  Session session_{InFolder()};
  double played_ = 0;  // ms of the game
  int battles_ = 0;
};

TEST_F(Memories, DoNotGrowInLongPlay) {
  LoadSave(session_, kTravellersRow);
  Play(2);
  const double before = Memory();
  ASSERT_GT(before, 1);
  Play(10);
  EXPECT_GT(battles_, 20);
  EXPECT_LT(Memory() - before, kMayGrow);
  std::printf("%d battles, %.1f MB, then %.1f MB\n", battles_, before, Memory());
}

}  // namespace
}  // namespace orvane::test
