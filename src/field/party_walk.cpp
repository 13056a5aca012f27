#include "src/field/party_walk.h"

#include "src/core/game.h"
#include "src/core/map_file.h"
#include "src/field/encounter.h"
#include "src/field/map_travel.h"
#include "src/field/pickups.h"
#include "src/field/tiles.h"

namespace orvane {
namespace {

constexpr int kStep = 4;
constexpr int kChest = 36;
constexpr int kRecovery = 135;

// Positions beyond which no step leads on.
constexpr int kLowest = 17;
constexpr int kHighestX = 463;
constexpr int kHighestY = 249;

// The figure stands around the feet.
constexpr int kFrameWidth = 24;
constexpr int kFrameHeight = 32;
constexpr int kFeetX = 12;
constexpr int kFeetY = 28;
constexpr int kMasks = 72;

bool IsBookChest(int tile) {
  return tile == 73 || tile == 74 || tile == 103 || tile == 104;
}

void LookAround(State& state) {
  const int column = Quotient(state.HeroX, TileSize);
  const int row = Quotient(state.HeroY, TileSize);
  state.TileHere = state.MapTile[column][row];
  state.TileUp = state.MapTile[column][row - 1];
  state.TileDown = state.MapTile[column][row + 1];
  state.TileLeft = state.MapTile[column - 1][row];
  state.TileRight = state.MapTile[column + 1][row];
}

// What lies in the tile opens, unless its warning has already come.
void OpenChests(Game& game) {
  if (game.state.OnChest != False) return;
  if (game.state.TileHere == kChest) OpenTreasure(game);
  if (IsBookChest(game.state.TileHere)) OpenBook(game);
}

// Moves along one axis if the way is free; otherwise the hero stands and looks there.
void Step(Game& game, int counter, bool free, Int16 SharedState::*axis, int distance) {
  if (!free) return DrawHero(game, 0);
  EncounterCheck(game);
  game.state.*axis += distance;
  AfterStep(game, counter);
}

}  // namespace

void CharStep(Game& game, int counter) {
  State& state = game.state;
  LookAround(state);
  if (!IsWalkable(state.TileHere)) return;
  if (state.KeyUp != False) {
    const bool free = IsWalkable(state.TileUp) && state.HeroY > kLowest;
    if (free) BookRoomCheck(game);
    Step(game, counter, free, &SharedState::HeroY, -kStep);
  } else if (state.KeyDown != False) {
    Step(game, counter, IsWalkable(state.TileDown) && state.HeroY < kHighestY, &SharedState::HeroY,
         kStep);
  } else if (state.KeyLeft != False) {
    Step(game, counter, IsWalkable(state.TileLeft) && state.HeroX > kLowest, &SharedState::HeroX,
         -kStep);
  } else if (state.KeyRight != False) {
    Step(game, counter, IsWalkable(state.TileRight) && state.HeroX < kHighestX, &SharedState::HeroX,
         kStep);
  } else {
    OpenChests(game);
    if (state.TileHere == kRecovery) RecoverAll(game);
  }
}

void AfterStep(Game& game, int counter) {
  State& state = game.state;
  OpenChests(game);
  if (state.TileHere == kRecovery) {
    RecoverAll(game);
  } else {
    state.OnRecovery = False;
  }
  if (state.TileHere != kChest && !IsBookChest(state.TileHere)) state.OnChest = False;
  EdgeCheck(game);
  DrawHero(game, counter);
}

void DrawHero(Game& game, int counter) {
  const State& state = game.state;
  const int x = state.HeroX - kFeetX;
  const int y = state.HeroY - kFeetY;
  const int frame = counter % 3 * kFrameWidth;
  Surface& field = game.Main.FieldPicture.Picture;
  const Surface& sheet = game.Main.ManSheet.Picture;
  BitBlt(field, x, y, kFrameWidth, kFrameHeight, sheet, kMasks + frame, state.HeroSpriteY,
         RasterOp::SRCPAINT);
  BitBlt(field, x, y, kFrameWidth, kFrameHeight, sheet, frame, state.HeroSpriteY, RasterOp::SRCAND);
}

}  // namespace orvane
