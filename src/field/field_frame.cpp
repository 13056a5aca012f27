#include "src/field/field_frame.h"

#include "src/core/game.h"
#include "src/core/music.h"
#include "src/field/direction_keys.h"
#include "src/field/party_walk.h"
#include "src/field/tiles.h"

namespace orvane {
namespace {

constexpr int kTilesPerSheetRow = 30;

// A party that no direction drives stands; then the frame is shown.
void FinishFrame(Game& game) {
  if (!DrivingDirection(game.state)) DrawHero(game, 0);
  game.Main.FieldPicture.Picture.Refresh();
}

}  // namespace

void FieldTick(Game& game) {
  State& state = game.state;
  if (state.GameStarted != kTrue) return;
  state.FieldFrame += 1;
  if (const char* music = FieldMusicOf(state)) KeepMusic(game, music);
  DrawMap(game);
  WalkOneStep(game, state.FieldFrame, [&game] { FinishFrame(game); });
}

void DrawMap(Game& game) {
  Surface& field = game.Main.FieldPicture.Picture;
  const Surface& sheet = game.Main.TileSheet.Picture;
  for (int column = 0; column < kMapColumns; ++column) {
    for (int row = 0; row < kMapRows; ++row) {
      const int code = game.state.MapTile[column][row];
      if (code < 1 || code > kHighestTile) continue;
      BitBlt(field, column * kTileSize, row * kTileSize, kTileSize, kTileSize, sheet,
             (code - 1) % kTilesPerSheetRow * kTileSize, (code - 1) / kTilesPerSheetRow * kTileSize,
             Blit::Copy);
    }
  }
}

}  // namespace orvane
