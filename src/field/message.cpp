#include "src/field/message.h"

#include "src/core/game.h"
#include "src/core/main_activation.h"

namespace orvane {

void StartMessage(Game& game) {
  game.Main.WalkTimer.SetEnabled(false);
  game.Main.MessageTimer.SetEnabled(true);
}

void MessageTick(Game& game) {
  State& state = game.state;
  state.MessageFrame += 1;
  game.sound.Open(kItemGotSound);
  if (state.MessageFrame == 1) game.sound.Play(kItemGotSound);
  game.Main.MessageWindow.Visible = true;
  game.Main.GoOnMark.Visible = state.MessageFrame % 10 >= 5;
}

void CloseMessage(Game& game) {
  MainScreen& main = game.Main;
  main.MessageWindow.Visible = false;
  game.state.MessageFrame = 0;
  ShowStatus(game);
  game.state.RecoveryShown = kFalse;
  main.FileMenu.Enabled = true;
  main.ItemMenu.Enabled = true;
  main.InfoMenu.Enabled = true;
  main.MessageTimer.SetEnabled(false);
  main.WalkTimer.SetEnabled(true);
}

}  // namespace orvane
