#include "src/core/music.h"

#include "src/core/game.h"
#include "src/platform/music_places.h"

namespace orvane {

const char* FieldMusicOf(const State& state) {
  return FieldMusic(state.Round, state.LastBossFight == kTrue);
}

const char* FightMusicOf(const State& state) {
  return FightMusic(state.BossFight == kTrue, state.LastBossFight == kTrue);
}

void KeepMusic(Game& game, const std::string& alias) {
  game.sound.Open(alias);
  RestartStoppedMusic(game, alias);
}

void RestartStoppedMusic(Game& game, const std::string& alias) {
  game.state.MciStatus = game.sound.Status(alias);
  if (LowerCase(LeftChars(game.state.MciStatus.Full(), 7)) == "stopped") game.sound.Play(alias);
}

}  // namespace orvane
