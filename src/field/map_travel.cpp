#include "src/field/map_travel.h"

#include "src/core/game.h"
#include "src/core/map_file.h"

namespace orvane {
namespace {

constexpr int kTechniquesForHiddenMap = 9;

bool KnowsNineTechniques(const State& state) {
  for (int i = 0; i < kTechniquesForHiddenMap; ++i) {
    if (state.WazaKnown[i] != kTrue) return false;
  }
  return true;
}

}  // namespace

Party PartyOf(const State& state) {
  Party party{state.MapA, state.MapB, state.HeroX, state.HeroY};
  party.InBook = state.InBook != kFalse;
  if (party.InBook) {
    party.ReturnX = state.BookReturnX;
    party.ReturnY = state.BookReturnY;
  }
  return party;
}

WalkRules RulesOf(const State& state) {
  return {state.Round, KnowsNineTechniques(state), state.LastBossFight == kTrue};
}

void PutParty(State& state, const Party& party) {
  state.MapA = party.MapA;
  state.MapB = party.MapB;
  state.HeroX = party.X;
  state.HeroY = party.Y;
}

void ReadMap(Game& game) {
  ReadMapFile(game.services.Files, {game.state.MapA, game.state.MapB}, game.state.MapTile);
}

void EnterRoom(Game& game, const Party& party) {
  State& state = game.state;
  state.InBook = kTrue;
  // There is saving in the last book's room: a game saved there goes on outside, at the room's
  // coordinates.
  if (party.Inside != kLastBookRoom) {
    game.Main.SaveItem.Enabled = false;
    game.Main.LoadItem.Enabled = false;
  }
  ReadMapFile(game.services.Files, party.Map(), state.MapTile);
  state.BookReturnX = party.ReturnX;
  state.BookReturnY = party.ReturnY;
  PutParty(state, party);
}

void EdgeCheck(Game& game) {
  State& state = game.state;
  const Party party = PartyOf(state);
  const std::optional<Party> next = CrossEdge(RulesOf(state), party);
  if (!next) return;
  PutParty(state, *next);
  ReadMap(game);
  if (!party.InBook || next->InBook) return;
  state.InBook = kFalse;
  game.Main.SaveItem.Enabled = true;
}

}  // namespace orvane
