#include "src/core/music.h"

#include "src/core/game.h"

namespace orvane {

void KeepMusic(Game& game, const std::string& alias) {
  game.sound.Open(alias);
  RestartStoppedMusic(game, alias);
}

void RestartStoppedMusic(Game& game, const std::string& alias) {
  game.state.MciStatus = game.sound.Status(alias);
  if (LowerCase(LeftChars(game.state.MciStatus.Full(), 7)) == "stopped") game.sound.Play(alias);
}

}  // namespace orvane
