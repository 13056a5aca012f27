#include "src/field/encounter.h"

#include <gtest/gtest.h>

#include "src/core/game.h"
#include "src/platform/quiet_services.h"
#include "tests/unit/noted_chance.h"

namespace orvane {
namespace {

class EncounterTest : public testing::Test {
 protected:
  QuietServices quiet_;
  NotedChance chance_;
  Game game_{Services{quiet_.Sound, chance_, quiet_.Files}};
};

TEST_F(EncounterTest, SeedsTheGeneratorBeforeEachStepsOneDraw) {
  EncounterCheck(game_);
  EXPECT_EQ(chance_.Calls, "sd");
  EncounterCheck(game_);
  EXPECT_EQ(chance_.Calls, "sdsd");
}

TEST_F(EncounterTest, DrawsInRoomsAndInTheLastStageToo) {
  game_.state.InBook = kTrue;
  EncounterCheck(game_);
  game_.state.InBook = kFalse;
  game_.state.LastBossFight = kTrue;
  game_.state.HeroY = 100;
  EncounterCheck(game_);
  EXPECT_EQ(chance_.Calls, "sdsd");
}

}  // namespace
}  // namespace orvane
