// The effect sheet as a recipe: 8 by 6 cells of pictures at the left, their masks at the right.
#include "content/pictures/effects/shapes.h"

namespace orvane::paint {
namespace {

using namespace effects;  // the table below names nothing else

constexpr int kColumns = 8;
constexpr int kRows = 6;

struct Entry {
  int Column;
  int Row;
  Shape shape;
};

Image PaintEffects() {
  const std::vector<Entry> entries = {
      {0, 0, Atom(0)},        {1, 0, Sparkle(0)},     {2, 0, RockSpire()},
      {3, 0, Pillar()},       {4, 0, Boulder()},      {5, 0, RockShards()},
      {6, 0, Dust(0)},        {7, 0, Dust(1)},        {0, 1, Atom(1)},
      {1, 1, Sparkle(1)},     {2, 1, Sparkle(2)},     {3, 1, Sparkle(3)},
      {4, 1, Thrust()},       {5, 1, Slash(0)},       {6, 1, Slash(1)},
      {7, 1, Slash(2)},       {0, 2, Atom(2)},        {1, 2, Explosion(0)},
      {2, 2, Explosion(1)},   {3, 2, Explosion(2)},   {4, 2, Explosion(3)},
      {5, 2, Explosion(4)},   {6, 2, Explosion(5)},   {7, 2, Explosion(6)},
      {0, 3, Sun()},          {1, 3, DarkBurst(0)},   {2, 3, DarkBurst(1)},
      {3, 3, DarkOrb(0)},     {4, 3, DarkOrb(1)},     {5, 3, LightRing(0)},
      {6, 3, LightRing(1)},   {7, 3, LightRing(2)},   {0, 4, Impact(0)},
      {1, 4, LeafStar()},     {2, 4, Flame(0)},       {3, 4, Impact(1)},
      {4, 4, FireBall()},     {5, 4, Impact(2)},      {6, 4, Flame(1)},
      {7, 4, Impact(3)},      {0, 5, IceGrowing(0)},  {1, 5, IceGrowing(1)},
      {2, 5, IceGrowing(2)},  {3, 5, IceGrowing(3)},  {4, 5, IceCrystal()},
      {5, 5, IceBreaking(0)}, {6, 5, IceBreaking(1)}, {7, 5, IceBreaking(2)}};
  Image sheet(2 * kColumns * kCellSize, kRows * kCellSize, 0x000000);
  for (int y = 0; y < sheet.Height; ++y) {
    for (int x = 0; x < kColumns * kCellSize; ++x) sheet.At(x, y) = 0xFFFFFF;
  }
  for (const Entry& entry : entries) PaintCell(sheet, entry.Column, entry.Row, entry.shape);
  return sheet;
}

}  // namespace

void AddEffectRecipes(std::vector<Recipe>& recipes) {
  recipes.push_back({"effects", PaintEffects});
}

}  // namespace orvane::paint
