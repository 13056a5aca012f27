#include "src/battle/flow/leaving.h"

#include "src/battle/battle_screen.h"
#include "src/core/main_activation.h"

namespace orvane {

void LetGoAndSilence(BattleScreen& battle) {
  ClearDirections(battle.game);
  for (const char* music : {"bgm4", "bgm5", "bgm6"}) battle.game.sound.Close(music);
}

void FreeCommands(BattleScreen& battle) {
  battle.FleeButton.Enabled = true;
  for (int hero = 0; hero < 2; ++hero) {
    battle.HeroTabs.SetTabEnabled(hero, true);
    battle.state.HeroBusy[hero] = False;
  }
}

}  // namespace orvane
