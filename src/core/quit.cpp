#include "src/core/quit.h"

#include <span>

#include "src/core/game.h"

namespace orvane {
namespace {

// Asks, and ends the program on OK; on Cancel the walk's timer becomes what the caller says.
void Ask(Game& game, bool walks_on) {
  game.Main.WalkTimer.SetEnabled(false);
  game.stage.Ask({"終了しますか？", "ゲームの終了", BoxButtons::OkCancel},
                 [&game, walks_on](BoxAnswer answer) {
                   if (answer != BoxAnswer::Ok) return game.Main.WalkTimer.SetEnabled(walks_on);
                   CloseAllSound(game, static_cast<int>(kMusicChannels.size()));
                   game.stage.EndProgram(0);
                 });
}

}  // namespace

void AskToQuit(Game& game) {
  Ask(game, true);
}

void AskToCloseMain(Game& game) {
  Ask(game, game.Main.WalkTimer.IsEnabled());
}

void CloseAllSound(Game& game, int last_music) {
  for (const char* music : std::span(kMusicChannels).first(static_cast<size_t>(last_music))) {
    game.sound.Close(music);
  }
  for (const char* effect : kEffectChannels) game.sound.Close(effect);
}

}  // namespace orvane
