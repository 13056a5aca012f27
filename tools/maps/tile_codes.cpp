#include "tools/maps/tile_codes.h"

namespace orvane::maps {
namespace {

struct Range {
  int first;
  int last;
};

constexpr Range kWalkable[] = {
    {7, 14},    {19, 21},   {25, 33},   {35, 36},   {43, 44},   {47, 47},   {52, 54},
    {62, 62},   {64, 81},   {94, 111},  {113, 113}, {116, 116}, {124, 141}, {146, 146},
    {160, 162}, {170, 170}, {175, 180}, {190, 192}, {206, 210}, {220, 222}, {234, 240},
};

}  // namespace

bool Walkable(int code) {
  for (const Range& range : kWalkable) {
    if (code >= range.first && code <= range.last) return true;
  }
  return false;
}

bool IsBook(int code) {
  return code == kBookTopLeft || code == kBookTopRight || code == kBookBottomLeft ||
         code == kBookBottomRight;
}

bool IsRoomDoor(int code) {
  return code == 47 || code == 116;
}

bool IsDoor(int code) {
  return IsRoomDoor(code) || code == kBookFDoor;
}

bool IsOtherGround(int code) {
  return code == 13 || code == 14 || code == 19 || code == 234;
}

}  // namespace orvane::maps
