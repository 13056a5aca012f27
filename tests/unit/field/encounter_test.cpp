#include "src/field/encounter.h"

#include <gtest/gtest.h>

#include <string>

#include "src/core/game.h"

namespace orvane {
namespace {

// Notes in which order the generator is seeded (s) and drawn from (d).
class NotedChance : public Chance {
 public:
  float Draw() override {
    Calls += 'd';
    return 0;
  }
  void Reseed() override { Calls += 's'; }

  std::string Calls;
};

class Silence : public SoundDevice {
 public:
  std::string Send(const std::string&) override { return {}; }
};

class NoBoxes : public BoxKeeper {
 public:
  BoxAnswer Show(const Box&) override { return BoxAnswer::Ok; }
  void ShowError(const Box&) override {}
};

class NoSleep : public Sleeper {
 public:
  void Sleep(int) override {}
};

class EncounterTest : public testing::Test {
 protected:
  Silence sound_;
  NotedChance chance_;
  NoBoxes boxes_;
  NoSleep time_;
  Game game_{"/nonexistent", Services{sound_, chance_, boxes_, time_}};
};

TEST_F(EncounterTest, SeedsTheGeneratorBeforeEachStepsOneDraw) {
  EncounterCheck(game_);
  EXPECT_EQ(chance_.Calls, "sd");
  EncounterCheck(game_);
  EXPECT_EQ(chance_.Calls, "sdsd");
}

TEST_F(EncounterTest, DrawsInRoomsAndInTheLastStageToo) {
  game_.state.InBook = True;
  EncounterCheck(game_);
  game_.state.InBook = False;
  game_.state.LastBossFight = True;
  game_.state.HeroY = 100;
  EncounterCheck(game_);
  EXPECT_EQ(chance_.Calls, "sdsd");
}

}  // namespace
}  // namespace orvane
