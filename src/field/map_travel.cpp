#include "src/field/map_travel.h"

#include <string>

#include "src/core/game.h"
#include "src/core/map_file.h"

namespace orvane {
namespace {

// Limits of the feet's position, and how far a map change shifts it.
constexpr int kTopEdge = 17;
constexpr int kBottomEdge = 240;
constexpr int kLeftEdge = 18;
constexpr int kRightEdge = 463;
constexpr int kVerticalShift = 210;
constexpr int kHorizontalShift = 447;

// The hidden map takes the place of its neighbour in the grid.
constexpr int kHiddenColumn = 6;
constexpr int kHiddenNeighbour = 5;
constexpr int kHiddenRow = 4;
constexpr int kTechniquesForHiddenMap = 9;

constexpr int kRoomX = 232;
constexpr int kRoomY = 224;

// From the hidden map one walks on as from its neighbour.
void CountFromNeighbour(State& state) {
  if (state.MapA == kHiddenColumn) state.MapA = kHiddenNeighbour;
}

// The room behind the doors 47 and 116 of the map on screen.
std::string DoorRoomFile(const State& state) {
  const bool resting_place =
      (state.MapA == 1 && state.MapB == 1) || (state.MapA == 3 && state.MapB == 5);
  if (resting_place) return "Mapdata/Fresh.dat";
  return "Mapdata/Book" + std::to_string(state.Round) + ".dat";
}

void EnterRoom(Game& game, const std::string& file) {
  State& state = game.state;
  ReadMapFile(game.services.Files, file, state);
  state.BookReturnX = state.HeroX;
  state.BookReturnY = state.HeroY;
  state.HeroX = kRoomX;
  state.HeroY = kRoomY;
}

void LeaveRoom(Game& game) {
  State& state = game.state;
  state.HeroX = state.BookReturnX;
  state.HeroY = state.BookReturnY;
  ReadMap(game);
  state.InBook = False;
  game.Main.SaveItem.Enabled = true;
}

void ChangeRow(Game& game, int step) {
  State& state = game.state;
  CountFromNeighbour(state);
  state.MapB += step;
  HiddenMapCheck(game);
  state.HeroY -= step * kVerticalShift;
  ReadMap(game);
}

}  // namespace

void ReadMap(Game& game) {
  ReadMapFile(game.services.Files, GridMapFile(game.state.MapA, game.state.MapB), game.state);
}

void EdgeCheck(Game& game) {
  State& state = game.state;
  if (state.HeroY <= kTopEdge) {
    ChangeRow(game, -1);
  } else if (state.HeroY >= kBottomEdge && state.InBook == False) {
    ChangeRow(game, 1);
  } else if (state.HeroY >= kBottomEdge) {
    LeaveRoom(game);
  } else if (state.HeroX < kLeftEdge) {
    CountFromNeighbour(state);
    state.MapA -= 1;
    state.HeroX += kHorizontalShift;
    ReadMap(game);
  } else if (state.HeroX >= kRightEdge) {
    state.MapA += 1;
    HiddenMapCheck(game);
    state.HeroX -= kHorizontalShift;
    ReadMap(game);
  }
}

void HiddenMapCheck(Game& game) {
  State& state = game.state;
  if (state.MapA != kHiddenNeighbour || state.MapB != kHiddenRow) return;
  int known = 0;
  for (int i = 0; i < kTechniquesForHiddenMap; ++i) known += state.WazaKnown[i] == True ? 1 : 0;
  if (known == kTechniquesForHiddenMap) state.MapA = kHiddenColumn;
}

void BookRoomCheck(Game& game) {
  State& state = game.state;
  if (state.TileUp == 47 || state.TileUp == 116) {
    state.InBook = True;
    game.Main.SaveItem.Enabled = false;
    game.Main.LoadItem.Enabled = false;
    EnterRoom(game, DoorRoomFile(state));
  } else if (state.TileUp == 131) {
    state.InBook = True;
    EnterRoom(game, "Mapdata/BookF.dat");
  }
}

}  // namespace orvane
