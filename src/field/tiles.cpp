#include "src/field/tiles.h"

#include <algorithm>
#include <iterator>

namespace orvane {
namespace {

struct CodeRange {
  int First;
  int Last;
};

constexpr CodeRange kWalkable[] = {
    {7, 14},    {19, 21},   {25, 33},   {35, 36},   {43, 44},   {47, 47},   {52, 54},
    {62, 62},   {64, 81},   {94, 111},  {113, 113}, {116, 116}, {124, 141}, {146, 146},
    {160, 162}, {170, 170}, {175, 180}, {190, 192}, {206, 210}, {220, 222}, {234, 240},
};

}  // namespace

bool IsWalkable(int code) {
  return std::any_of(std::begin(kWalkable), std::end(kWalkable), [code](const CodeRange& range) {
    return code >= range.First && code <= range.Last;
  });
}

bool IsBookChest(int code) {
  return code == kBookTopLeft || code == kBookTopRight || code == kBookBottomLeft ||
         code == kBookBottomRight;
}

bool IsRoomDoor(int code) {
  return code == 47 || code == 116;
}

bool IsDoor(int code) {
  return IsRoomDoor(code) || code == kLastBookDoor;
}

}  // namespace orvane
