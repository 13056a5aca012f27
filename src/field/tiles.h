// What the tile codes mean to the party.
#pragma once

namespace orvane {

constexpr int kHighestTile = 240;  // codes 1 to 240 are drawn, others leave their cells as they are

constexpr int kChest = 36;
constexpr int kRecovery = 135;
constexpr int kLastBookDoor = 131;
// A book chest is one object of two by two cells.
constexpr int kBookTopLeft = 73;
constexpr int kBookTopRight = 74;
constexpr int kBookBottomLeft = 103;
constexpr int kBookBottomRight = 104;

// Whether a tile code is walkable; everything else blocks, code 0 included.
bool IsWalkable(int code);

// Whether a tile is one of the four cells of a book chest.
bool IsBookChest(int code);

// Whether a tile is a door to the spring room or to the round's book room.
bool IsRoomDoor(int code);

// Whether a tile is any door.
bool IsDoor(int code);

}  // namespace orvane
