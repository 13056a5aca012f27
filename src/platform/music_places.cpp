#include "src/platform/music_places.h"

#include "src/platform/sound_channels.h"

namespace orvane {
namespace {

struct FieldPiece {
  int Round;
  const char* Field;
  const char* Fight;  // what chance brings there: in the last stage only its dragon fights
};

constexpr FieldPiece kRounds[] = {
    {1, kFirstRoundMusic, kFightMusic},
    {2, kSecondRoundMusic, kFightMusic},
    {3, kThirdRoundMusic, kFightMusic},
};
constexpr FieldPiece kLastStage = {4, kLastStageMusic, kLastDragonMusic};

}  // namespace

const char* FieldMusic(int round, bool last_stage) {
  for (const FieldPiece& piece : kRounds) {
    if (piece.Round == round) return piece.Field;
  }
  return last_stage ? kLastStage.Field : nullptr;
}

const char* FightMusic(bool dragon, bool last_dragon) {
  if (dragon) return kDragonMusic;
  return last_dragon ? kLastDragonMusic : kFightMusic;
}

const char* FightMusicAfter(std::string_view field_music) {
  for (const FieldPiece& piece : kRounds) {
    if (piece.Field == field_music) return piece.Fight;
  }
  return field_music == kLastStage.Field ? kLastStage.Fight : nullptr;
}

}  // namespace orvane
