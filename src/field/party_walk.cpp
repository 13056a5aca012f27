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

// What lies in the tile opens, unless its warning has already come; `then` follows, where a warning
// comes after its answer.
void OpenChests(Game& game, const Handler& then) {
  const int tile = game.state.TileHere;
  if (game.state.OnChest == False && tile == kChest) return OpenTreasure(game, then);
  if (game.state.OnChest == False && IsBookChest(tile)) return OpenBook(game, then);
  then();
}

// What a step brings: events of the tile just left, edges of the map, the figure.
void AfterStep(Game& game, int counter, const Handler& then) {
  OpenChests(game, [&game, counter, then] {
    State& state = game.state;
    if (state.TileHere == kRecovery) {
      RecoverAll(game);
    } else {
      state.OnRecovery = False;
    }
    if (state.TileHere != kChest && !IsBookChest(state.TileHere)) state.OnChest = False;
    EdgeCheck(game);
    DrawHero(game, counter);
    then();
  });
}

// Moves along one axis if the way is free; otherwise the hero stands and looks there.
void Step(Game& game, int counter, bool free, Int16& axis, int distance, const Handler& then) {
  if (!free) {
    DrawHero(game, 0);
    return then();
  }
  EncounterCheck(game);
  axis += distance;
  AfterStep(game, counter, then);
}

}  // namespace

void CharStep(Game& game, int counter, const Handler& then) {
  State& state = game.state;
  LookAround(state);
  if (!IsWalkable(state.TileHere)) return then();
  if (state.KeyUp != False) {
    const bool free = IsWalkable(state.TileUp) && state.HeroY > kLowest;
    if (free) BookRoomCheck(game);
    Step(game, counter, free, state.HeroY, -kStep, then);
  } else if (state.KeyDown != False) {
    Step(game, counter, IsWalkable(state.TileDown) && state.HeroY < kHighestY, state.HeroY, kStep,
         then);
  } else if (state.KeyLeft != False) {
    Step(game, counter, IsWalkable(state.TileLeft) && state.HeroX > kLowest, state.HeroX, -kStep,
         then);
  } else if (state.KeyRight != False) {
    Step(game, counter, IsWalkable(state.TileRight) && state.HeroX < kHighestX, state.HeroX, kStep,
         then);
  } else {
    OpenChests(game, [&game, then] {
      if (game.state.TileHere == kRecovery) RecoverAll(game);
      then();
    });
  }
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
