#include "src/field/party_walk.h"

#include "src/core/game.h"
#include "src/field/direction_keys.h"
#include "src/field/encounter.h"
#include "src/field/map_travel.h"
#include "src/field/pickups.h"
#include "src/field/tiles.h"

namespace orvane {
namespace {

// The figure stands around the feet.
constexpr int kFrameWidth = 24;
constexpr int kFrameHeight = 32;
constexpr int kFeetX = 12;
constexpr int kFeetY = 28;
constexpr int kMasks = 72;

// Writes what lies around the party into the state.
Surroundings LookAround(State& state) {
  const Surroundings around = LookAround(state.MapTile, state.HeroX, state.HeroY);
  state.TileHere = around.Here;
  state.TileUp = around.Up;
  state.TileDown = around.Down;
  state.TileLeft = around.Left;
  state.TileRight = around.Right;
  return around;
}

// What lies in the tile opens, unless its warning has already come; `then` follows, where a warning
// comes after its answer.
void OpenChests(Game& game, const Handler& then) {
  const int tile = game.state.TileHere;
  if (game.state.OnChest == kFalse && tile == kChest) return OpenTreasure(game, then);
  if (game.state.OnChest == kFalse && IsBookChest(tile)) return OpenBook(game, then);
  then();
}

// What a step brings: events of the tile just left, edges of the map, the figure.
void AfterStep(Game& game, int counter, const Handler& then) {
  OpenChests(game, [&game, counter, then] {
    State& state = game.state;
    if (state.TileHere == kRecovery) {
      RecoverAll(game);
    } else {
      state.OnRecovery = kFalse;
    }
    if (state.TileHere != kChest && !IsBookChest(state.TileHere)) state.OnChest = kFalse;
    EdgeCheck(game);
    DrawHero(game, counter);
    then();
  });
}

void Step(Game& game, int counter, const StepTaken& step, const Handler& then) {
  if (step.ThroughDoor) EnterRoom(game, step.Before);
  // A fight that begins here has changed screens when the check returns, and the step goes on all
  // the same: the party has moved when it comes back to the field.
  EncounterCheck(game);
  game.state.HeroX = step.After.X;
  game.state.HeroY = step.After.Y;
  AfterStep(game, counter, then);
}

void StandStill(Game& game, const Handler& then) {
  OpenChests(game, [&game, then] {
    if (game.state.TileHere == kRecovery) RecoverAll(game);
    then();
  });
}

}  // namespace

void WalkOneStep(Game& game, int counter, const Handler& then) {
  State& state = game.state;
  const Surroundings around = LookAround(state);
  if (!IsWalkable(around.Here)) return then();
  const std::optional<Direction> direction = DrivingDirection(state);
  if (!direction) return StandStill(game, then);
  const StepTaken step = TryStep(around, RulesOf(state), PartyOf(state), *direction);
  if (step.Free) return Step(game, counter, step, then);
  DrawHero(game, 0);
  then();
}

void DrawHero(Game& game, int counter) {
  const State& state = game.state;
  const int x = state.HeroX - kFeetX;
  const int y = state.HeroY - kFeetY;
  const int frame = counter % 3 * kFrameWidth;
  Surface& field = game.Main.FieldPicture.Picture;
  const Surface& sheet = game.Main.ManSheet.Picture;
  BitBlt(field, x, y, kFrameWidth, kFrameHeight, sheet, kMasks + frame, state.HeroSpriteY,
         Blit::Or);
  BitBlt(field, x, y, kFrameWidth, kFrameHeight, sheet, frame, state.HeroSpriteY, Blit::And);
}

}  // namespace orvane
