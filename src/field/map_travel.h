// How the map on screen changes, and what the state says of the party's walk.
#pragma once

#include "src/field/step.h"

namespace orvane {

struct Game;
struct State;

// Where the state has the party. Which room it is in only its tiles tell.
Party PartyOf(const State& state);

// What the state says of the walk's rules.
WalkRules RulesOf(const State& state);

// Puts the party on a place of the grid's maps; the map is still to be read.
void PutParty(State& state, const Party& party);

// Reads the grid map MapA, MapB into MapTile.
void ReadMap(Game& game);

// Through a door: the room's tiles, the party in it, and the way back.
void EnterRoom(Game& game, const Party& party);

// After every step: at an edge of the screen the neighbouring map takes over, or a room is left.
void EdgeCheck(Game& game);

}  // namespace orvane
