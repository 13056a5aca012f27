#include "src/core/quit.h"

#include <string>

#include "src/core/game.h"

namespace orvane {
namespace {

constexpr int kMusicChannels = 8;
constexpr int kEffectChannels = 10;

bool WantsToQuit(Game& game) {
  game.Main.WalkTimer.SetEnabled(false);
  return game.stage.ShowBox("終了しますか？", "ゲームの終了", BoxButtons::OkCancel) ==
         BoxAnswer::Ok;
}

[[noreturn]] void Quit(Game& game) {
  CloseAllSound(game, kMusicChannels);
  game.stage.EndProgram(0);
}

}  // namespace

void AskToQuit(Game& game) {
  if (WantsToQuit(game)) Quit(game);
  game.Main.WalkTimer.SetEnabled(true);
}

void AskToCloseMain(Game& game) {
  const bool walking = game.Main.WalkTimer.IsEnabled();
  if (WantsToQuit(game)) Quit(game);
  game.Main.WalkTimer.SetEnabled(walking);
}

void CloseAllSound(Game& game, int last_music) {
  for (int i = 1; i <= last_music; ++i) game.sound.Close("bgm" + std::to_string(i));
  for (int i = 1; i <= kEffectChannels; ++i) game.sound.Close("snd" + std::to_string(i));
}

}  // namespace orvane
