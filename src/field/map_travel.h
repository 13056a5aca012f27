// How the map on screen changes.
#pragma once

namespace orvane {

struct Game;

// Reads the grid map MapA, MapB into MapTile.
void ReadMap(Game& game);

// After every step: at an edge of the screen the neighbouring map takes over, or a room is left.
void EdgeCheck(Game& game);

// On the map 5, 4: once nine techniques are known, the hidden map 6, 4 takes its place.
void HiddenMapCheck(Game& game);

// On a step upward: a door tile above leads into a room.
void BookRoomCheck(Game& game);

}  // namespace orvane
