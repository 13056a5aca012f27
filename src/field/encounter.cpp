#include "src/field/encounter.h"

#include <string>

#include "src/core/game.h"
#include "src/field/map_travel.h"

namespace orvane {
namespace {

constexpr int kRollSize = 150;
constexpr int kEncounter = 100;

void CloseFieldMusic(Game& game) {
  switch (game.state.Round) {
    case 1:
      return game.sound.Close("bgm1");
    case 2:
      return game.sound.Close("bgm2");
    case 3:
      return game.sound.Close("bgm3");
    default:
      if (game.state.LastBossFight == True) game.sound.Close("bgm8");
  }
}

// Closes the field's music, opens the music of the fight and the effects.
void LoadBattleSounds(Game& game) {
  CloseFieldMusic(game);
  const State& state = game.state;
  if (state.BossFight == False && state.LastBossFight == False) {
    game.sound.Open("bgm4");
  } else if (state.BossFight == True) {
    game.sound.Open("bgm5");
  } else if (state.LastBossFight == True) {
    game.sound.Open("bgm6");
  }
  for (int channel = 2; channel <= 10; ++channel) game.sound.Open("snd" + std::to_string(channel));
}

// Leaves the field for the battle screen.
void EnterBattle(Game& game) {
  LoadBattleSounds(game);
  game.Main.WalkTimer.SetEnabled(false);
  game.links.ShowBattle();
}

}  // namespace

void EncounterCheck(Game& game) {
  State& state = game.state;
  Randomize(game);
  state.EncounterRoll = RoundToInt16(Int(Rnd(game) * kRollSize));
  const bool random_battle =
      state.EncounterRoll == kEncounter && state.InBook == False && state.LastBossFight == False;
  const Party party = PartyOf(state);
  const bool dragon = BeforeDragon(party);
  const bool last_dragon = state.LastBossFight == True && BeforeLastDragon(party);
  if (!random_battle && dragon) state.BossFight = True;
  if (random_battle || dragon || last_dragon) EnterBattle(game);
}

}  // namespace orvane
