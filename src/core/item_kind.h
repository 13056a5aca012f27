// What an item is to the game: the kind in its record.
#pragma once

#include <cstdint>

namespace orvane {

enum class ItemKind : int32_t {
  Other = 0,
  HisWeapon = 1,
  HisArmour = 2,
  HerWeapon = 3,
  HerArmour = 4,
  Book = 5,
  Recovery = 6,
};

}  // namespace orvane
