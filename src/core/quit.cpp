#include "src/core/quit.h"

#include <string>

#include "src/core/game.h"

namespace orvane {
namespace {

constexpr int kMusicChannels = 8;
constexpr int kEffectChannels = 10;

// Asks, and ends the program on OK; on Cancel the walk's timer becomes what the caller says.
void Ask(Game& game, bool walks_on) {
  game.Main.WalkTimer.SetEnabled(false);
  game.stage.Ask({"終了しますか？", "ゲームの終了", BoxButtons::OkCancel},
                 [&game, walks_on](BoxAnswer answer) {
                   if (answer != BoxAnswer::Ok) return game.Main.WalkTimer.SetEnabled(walks_on);
                   CloseAllSound(game, kMusicChannels);
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
  for (int i = 1; i <= last_music; ++i) game.sound.Close("bgm" + std::to_string(i));
  for (int i = 1; i <= kEffectChannels; ++i) game.sound.Close("snd" + std::to_string(i));
}

}  // namespace orvane
