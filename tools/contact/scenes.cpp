#include "tools/contact/scenes.h"

#include "src/battle/rules/formation.h"

namespace orvane::contact {
namespace {

constexpr int kLastRoundBoss = 2;
constexpr Rect kBigPlace{75, 30, 160, 240};
constexpr Rect kManPlace{365, 140, 40, 56};
constexpr Rect kWomanPlace{385, 200, 40, 56};
constexpr int kBattleRow = 96;  // of a hero's sheet
constexpr int kTile = 16;
constexpr int kTilesPerRow = 30;

// A sprite by the rule of the game: mask, then picture, `mask_from` pixels apart.
void PutSprite(Surface& scene, const Rect& place, const Surface& sheet, const Rect& cell,
               int mask_from) {
  StretchBlt(scene, place, sheet, {cell.X + mask_from, cell.Y, cell.Width, cell.Height}, Blit::Or);
  StretchBlt(scene, place, sheet, cell, Blit::And);
}

void PutHero(Surface& scene, const Rect& place, const Surface& sheet, int frame) {
  PutSprite(scene, place, sheet, {24 * frame, kBattleRow, 24, 32}, 72);
}

std::string EnemyName(int row) {
  return std::string(row < 10 ? "enemy_0" : "enemy_") + std::to_string(row);
}

}  // namespace

Surface Ground(const Sheets& sheets, const std::string& ground) {
  Surface scene(432, 264);
  StretchBlt(scene, {0, 0, 432, 264}, sheets.at(ground), {0, 0, 480, 288}, Blit::Copy);
  return scene;
}

void PutHeroes(Surface& scene, const Sheets& sheets) {
  PutHero(scene, kManPlace, sheets.at("hero_man"), 0);
  PutHero(scene, kWomanPlace, sheets.at("hero_woman"), 0);
}

void PutSteppingHeroes(Surface& scene, const Sheets& sheets, int frame) {
  const int forward = 5 * frame;
  PutHero(scene, {kManPlace.X - forward, kManPlace.Y, kManPlace.Width, kManPlace.Height},
          sheets.at("hero_man"), frame);
  PutHero(scene, {kWomanPlace.X - forward, kWomanPlace.Y, kWomanPlace.Width, kWomanPlace.Height},
          sheets.at("hero_woman"), frame);
}

void PutEnemies(Surface& scene, const Sheets& sheets, int row) {
  const Surface& sheet = sheets.at(EnemyName(row));
  if (row <= kLastRoundBoss) {
    PutSprite(scene, kBigPlace, sheet, {0, 0, 128, 192}, 128);
  } else if (row == kBoneDragonKind || row == kLastBossKind) {
    PutSprite(scene, kBigPlace, sheet, {0, 0, 160, 240}, 160);
  } else {
    for (int slot = 1; slot <= 4; ++slot) {
      PutSprite(scene, {SlotX(slot), SlotY(slot), 64, 64}, sheet, {0, 0, 64, 64}, 64);
    }
  }
}

void PutEffects(Surface& scene, const Sheets& sheets, int row, int size) {
  for (int column = 0; column < 8; ++column) {
    const int x = 24 + column % 4 * 100;
    const int y = 40 + column / 4 * 108;
    PutSprite(scene, {x, y, size, size}, sheets.at("effects"), {24 * column, 24 * row, 24, 24},
              192);
  }
}

Surface HeroOnTiles(const Sheets& sheets, const std::string& hero, const std::vector<int>& codes) {
  constexpr int columns = 36;
  constexpr int rows = 3;
  Surface field(columns * kTile, rows * kTile);
  for (int i = 0; i < columns * rows; ++i) {
    // A stride that is prime to the row's length mixes the variants.
    const int code = codes[static_cast<size_t>(i * 7 / 3) % codes.size()];
    BitBlt(field, i % columns * kTile, i / columns * kTile, kTile, kTile, sheets.at("tiles"),
           (code - 1) % kTilesPerRow * kTile, (code - 1) / kTilesPerRow * kTile, Blit::Copy);
  }
  for (int cell = 0; cell < 12; ++cell) {
    PutSprite(field, {12 + 48 * cell, 8, 24, 32}, sheets.at(hero),
              {24 * (cell % 3), 32 * (cell / 3), 24, 32}, 72);
  }
  return field;
}

}  // namespace orvane::contact
