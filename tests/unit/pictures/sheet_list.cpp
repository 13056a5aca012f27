#include "tests/unit/pictures/sheet_list.h"

namespace orvane::pictures {
namespace {

std::string Numbered(const std::string& name, int first, int second) {
  return name + " " + std::to_string(first) + ", " + std::to_string(second);
}

std::string EnemyName(int row) {
  return std::string(row < 10 ? "enemy_0" : "enemy_") + std::to_string(row);
}

// Rows 0 to 2 and 13 and 18 are the big ones; row 6 lacks its feet; the mask of row 13 is cut.
EnemySheet Enemy(int row) {
  const std::string name = EnemyName(row);
  if (row <= 2) return {name, {name, {0, 0, 128, 192}, 128, 0, 4000}};
  if (row == 13 || row == 18) return {name, {name, {0, 0, 160, 240}, 160, 0, 8000}};
  return {name, {name, {0, 0, 64, row == 6 ? 50 : 64}, 64, 0, 700}};
}

}  // namespace

const std::vector<SheetSize>& AllSheets() {
  static const std::vector<SheetSize> sheets = {
      {"credits", 402, 386, 0},        {"credits_en", 402, 386, 0},
      {"effects", 384, 144, 0},        {"ending_still", 454, 300, 256},
      {"enemy_00", 256, 192, 0},       {"enemy_01", 256, 192, 0},
      {"enemy_02", 256, 192, 0},       {"enemy_03", 128, 64, 0},
      {"enemy_04", 128, 64, 0},        {"enemy_05", 128, 64, 0},
      {"enemy_06", 128, 50, 0},        {"enemy_07", 127, 64, 0},
      {"enemy_08", 128, 64, 0},        {"enemy_09", 128, 64, 0},
      {"enemy_10", 128, 64, 0},        {"enemy_100", 129, 64, 0},
      {"enemy_11", 128, 64, 0},        {"enemy_12", 129, 64, 0},
      {"enemy_13", 318, 240, 0},       {"enemy_14", 128, 64, 0},
      {"enemy_15", 128, 64, 0},        {"enemy_16", 128, 64, 0},
      {"enemy_17", 128, 64, 0},        {"enemy_18", 320, 240, 0},
      {"face_man", 48, 48, 0},         {"face_woman", 48, 48, 0},
      {"ground_lair", 480, 288, 256},  {"ground_open", 480, 288, 256},
      {"ground_waste", 480, 288, 256}, {"hero_man", 144, 128, 0},
      {"hero_woman", 144, 128, 0},     {"icon_128", 128, 128, 0},
      {"icon_16", 16, 16, 0},          {"icon_24", 24, 24, 0},
      {"icon_256", 256, 256, 0},       {"icon_32", 32, 32, 0},
      {"icon_48", 48, 48, 0},          {"icon_64", 64, 64, 0},
      {"message_window", 336, 64, 0},  {"name_panel_enemy", 200, 48, 0},
      {"name_panel_hero", 200, 48, 0}, {"status_panel", 480, 48, 0},
      {"tiles", 480, 128, 0},          {"title", 320, 160, 256},
      {"victory_panel", 336, 93, 0},
  };
  return sheets;
}

std::vector<EnemySheet> EnemySheets() {
  std::vector<EnemySheet> sheets;
  for (int row = 0; row <= 18; ++row) sheets.push_back(Enemy(row));
  sheets.push_back({"enemy_100", {"enemy_100", {0, 0, 64, 64}, 64, 0, 700}});
  return sheets;
}

std::vector<SpritePair> HeroPairs() {
  std::vector<SpritePair> pairs;
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 3; ++column) {
      const Rect cell{24 * column, 32 * row, 24, 32};
      pairs.push_back({Numbered("hero cell", column, row), cell, 72 + cell.X, cell.Y, 200});
    }
  }
  return pairs;
}

std::vector<SpritePair> EffectPairs() {
  std::vector<SpritePair> pairs;
  for (int row = 0; row < 6; ++row) {
    for (int column = 0; column < 8; ++column) {
      const Rect cell{24 * column, 24 * row, 24, 24};
      pairs.push_back({Numbered("effect", column, row), cell, 192 + cell.X, cell.Y, 20});
    }
  }
  return pairs;
}

std::vector<SpritePair> CreditPairs() {
  return {{"title", {0, 0, 400, 64}, 0, 64, 3000},
          {"left heading", {0, 128, 200, 32}, 0, 160, 600},
          {"right heading", {200, 128, 200, 32}, 200, 160, 600},
          {"wide image", {0, 288, 400, 32}, 0, 320, 1000}};
}

std::vector<WhiteStrip> CreditStrips() {
  std::vector<WhiteStrip> strips;
  for (int y = 192; y <= 256; y += 32) {
    for (int x = 0; x <= 200; x += 200) {
      strips.push_back({Numbered("names at", x, y), {x, y, 200, 32}, 400});
    }
  }
  strips.push_back({"last strip", {0, 352, 400, 32}, 400});
  return strips;
}

}  // namespace orvane::pictures
