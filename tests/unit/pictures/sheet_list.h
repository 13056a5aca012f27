// Every sheet of the game: its size, and the cells of those that hold sprites.
#pragma once

#include <string>
#include <vector>

#include "tests/unit/pictures/sprite_checks.h"

namespace orvane::pictures {

struct SheetSize {
  std::string Name;
  int Width;
  int Height;
  int MostColours;  // 0 for any number
};

// All sheets that the program holds.
const std::vector<SheetSize>& AllSheets();

// The enemies' sheets, "enemy_00" to "enemy_18" and "enemy_100", and the pair on each.
struct EnemySheet {
  std::string Name;
  SpritePair Pair;
};
std::vector<EnemySheet> EnemySheets();

// Cells of a hero's sheet: 4 directions of 3 frames; of the effects: 6 rows of 8.
std::vector<SpritePair> HeroPairs();
std::vector<SpritePair> EffectPairs();

// The strips of the credits: with a picture, and white ones.
std::vector<SpritePair> CreditPairs();
std::vector<WhiteStrip> CreditStrips();

}  // namespace orvane::pictures
