#include "src/field/encounter.h"

#include <string_view>

#include "src/core/game.h"
#include "src/core/music.h"
#include "src/field/map_travel.h"

namespace orvane {
namespace {

constexpr int kRollSize = 150;
constexpr int kEncounter = 100;

// Closes the field's music, opens the music of the fight and the effects; that of a thing got is of
// the field.
void LoadBattleSounds(Game& game) {
  if (const char* music = FieldMusicOf(game.state)) game.sound.Close(music);
  game.sound.Open(FightMusicOf(game.state));
  for (const char* effect : kEffectChannels) {
    if (std::string_view(effect) != kItemGotSound) game.sound.Open(effect);
  }
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
  state.EncounterRoll = Roll(game, kRollSize);
  const bool random_battle =
      state.EncounterRoll == kEncounter && state.InBook == kFalse && state.LastBossFight == kFalse;
  const Party party = PartyOf(state);
  const bool dragon = BeforeDragon(party);
  const bool last_dragon = state.LastBossFight == kTrue && BeforeLastDragon(party);
  if (!random_battle && dragon) state.BossFight = kTrue;
  if (random_battle || dragon || last_dragon) EnterBattle(game);
}

}  // namespace orvane
