// What the tile codes mean to the walking party.
#pragma once

namespace orvane::maps {

constexpr int kChest = 36;
constexpr int kRecovery = 135;
constexpr int kBookFDoor = 131;
// A book chest is one object of two by two cells.
constexpr int kBookTopLeft = 73;
constexpr int kBookTopRight = 74;
constexpr int kBookBottomLeft = 103;
constexpr int kBookBottomRight = 104;

// True for the codes that the party can step on; every other code, 0 included, blocks.
bool Walkable(int code);

// True for the four cells of a book chest.
bool IsBook(int code);

// True for the doors to the spring room or the round's book room.
bool IsRoomDoor(int code);

// True for any door.
bool IsDoor(int code);

// True for the grounds on which battles show their second background.
bool IsOtherGround(int code);

}  // namespace orvane::maps
