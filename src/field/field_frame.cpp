#include "src/field/field_frame.h"

#include <algorithm>

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
  MainScreen& main = game.Main;
  Surface& field = main.FieldPicture.Picture;
  const Surface& sheet = main.TileSheet.Picture;
  const MapTiles& tiles = game.state.MapTile;
  // Outside what has been drawn over it since, the map of the last frame still stands.
  Bounds part = field.TakeTouched();
  if (main.OnField.Tiles != tiles || !main.OnField.Sheet.SharesPixelsWith(sheet)) {
    main.OnField = {tiles, sheet};
    part = {0, 0, kMapColumns * kTileSize, kMapRows * kTileSize};
  }
  const int columns = std::min(kMapColumns, (part.Right + kTileSize - 1) / kTileSize);
  const int rows = std::min(kMapRows, (part.Bottom + kTileSize - 1) / kTileSize);
  for (int column = part.Left / kTileSize; column < columns; ++column) {
    for (int row = part.Top / kTileSize; row < rows; ++row) {
      const int code = tiles[column][row];
      if (code < 1 || code > kHighestTile) continue;
      BitBlt(field, column * kTileSize, row * kTileSize, kTileSize, kTileSize, sheet,
             (code - 1) % kTilesPerSheetRow * kTileSize, (code - 1) / kTilesPerSheetRow * kTileSize,
             Blit::Copy);
    }
  }
  field.TakeTouched();
}

}  // namespace orvane
