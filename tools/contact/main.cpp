// orvane-contact OUTFOLDER [SHEETFOLDER]: shows all picture sheets at 1x and 3x, and every enemy,
// pose, effect, panel and strip in place on its background, as PNG files in OUTFOLDER.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "tools/contact/page.h"
#include "tools/contact/scenes.h"
#include "tools/contact/windows.h"

namespace orvane::contact {
namespace {

struct Group {
  const char* Page;
  std::vector<const char*> Beginnings;  // of the names of its sheets
  int Width;
};

// Which sheets share a page; "sheets_other" takes what no group names.
const std::vector<Group>& Groups() {
  static const std::vector<Group> groups = {
      {"sheets_dragons", {"enemy_00", "enemy_01", "enemy_02", "enemy_13", "enemy_18"}, 2150},
      {"sheets_enemies", {"enemy_"}, 1680},
      {"sheets_heroes", {"hero_", "face_"}, 1220},
      {"sheets_grounds", {"ground_", "title", "ending_"}, 1940},
      {"sheets_panels", {"message_", "name_", "status_", "victory_"}, 1940},
      {"sheets_icons", {"icon_"}, 1640},
      {"sheets_tiles", {"tiles", "effects"}, 1950},
      {"sheets_other", {""}, 1640},
  };
  return groups;
}

struct Floor {
  const char* Name;
  std::vector<int> Codes;
};

const std::vector<Floor>& Floors() {
  static const std::vector<Floor> floors = {
      {"grass", {7, 8, 9, 10, 11, 12}},
      {"path", {95}},
      {"sand", {25, 26, 27, 28}},
      {"forest floor", {107, 130, 132}},
      {"paving", {110, 113}},
      {"rock", {175, 176, 177, 179, 180}},
      {"gravel", {178}},
      {"waste", {13, 14, 19, 234}},
      {"marsh", {20, 21}},
      {"planks", {170}},
      {"shallows", {29, 30}},
      {"bridges", {32, 35}},
      {"stairs", {53, 62}},
      {"boards", {206, 207}},
      {"carpet", {209}},
      {"last floor", {235, 236, 237, 238}},
  };
  return floors;
}

bool Begins(const std::string& name, const Group& group) {
  for (const char* beginning : group.Beginnings) {
    if (name.starts_with(beginning)) return true;
  }
  return false;
}

void WriteSheets(const Sheets& sheets, const std::string& folder) {
  Sheets left = sheets;
  for (const Group& group : Groups()) {
    Page page(group.Width);
    Sheets others;
    for (const auto& [name, sheet] : left) {
      if (!Begins(name, group)) {
        others.emplace(name, sheet);
        continue;
      }
      page.AddTwice(name, sheet);
    }
    page.Write(folder + "/" + group.Page + ".png");
    left = std::move(others);
  }
}

void WriteEnemies(const Sheets& sheets, const std::string& folder) {
  for (const char* ground : {"ground_open", "ground_waste"}) {
    Page page(1780);
    for (int row = 0; row <= 17; ++row) {
      Surface scene = Ground(sheets, ground);
      PutEnemies(scene, sheets, row);
      PutHeroes(scene, sheets);
      page.Add("enemy " + std::to_string(row) + " on " + ground, scene);
    }
    page.Write(folder + "/place_enemies_" + ground + ".png");
  }
  Page page(1760);
  Surface scene = Ground(sheets, "ground_lair");
  PutEnemies(scene, sheets, 18);
  PutHeroes(scene, sheets);
  page.AddTwice("enemy 18 on ground_lair", scene);
  page.Write(folder + "/place_enemies_ground_lair.png");
}

void WriteHeroes(const Sheets& sheets, const std::string& folder) {
  Page battle(1340);
  for (const char* ground : {"ground_open", "ground_waste", "ground_lair"}) {
    for (int frame = 0; frame < 3; ++frame) {
      Surface scene = Ground(sheets, ground);
      PutSteppingHeroes(scene, sheets, frame);
      battle.Add(std::string(ground) + ", frame " + std::to_string(frame), scene);
    }
  }
  battle.Write(folder + "/place_heroes_battle.png");
  Page field(1180);
  for (const Floor& floor : Floors()) {
    for (const char* hero : {"hero_man", "hero_woman"}) {
      field.Add(std::string(hero) + " on " + floor.Name, HeroOnTiles(sheets, hero, floor.Codes));
    }
  }
  field.Write(folder + "/place_heroes_field.png");
}

void WriteEffects(const Sheets& sheets, const std::string& folder) {
  for (const int size : {48, 96}) {
    Page page(1340);
    for (int row = 0; row < 6; ++row) {
      for (const char* ground : {"ground_open", "ground_waste", "ground_lair"}) {
        Surface scene = Ground(sheets, ground);
        PutEffects(scene, sheets, row, size);
        page.Add("effects, row " + std::to_string(row) + " on " + ground, scene);
      }
    }
    page.Write(folder + "/place_effects_" + std::to_string(size) + ".png");
  }
}

void WriteWindows(const Sheets& sheets, const std::string& folder) {
  Windows windows(sheets);
  Page title(1960);
  const Shown seen = windows.TheTitle();
  title.AddTwice(seen.Name, seen.Picture);
  title.Write(folder + "/place_title.png");
  Page panels(1470);
  for (const Shown& shown : windows.OfTheField()) panels.AddTwice(shown.Name, shown.Picture);
  for (const Shown& shown : windows.OfTheBattle()) panels.Add(shown.Name, shown.Picture);
  panels.Write(folder + "/place_panels.png");
  Page credits(1400);
  for (const Shown& shown : windows.OfTheEnding()) credits.Add(shown.Name, shown.Picture);
  credits.Write(folder + "/place_credits.png");
  Page faces(950);
  for (const Shown& shown : Faces(sheets)) faces.AddTwice(shown.Name, shown.Picture);
  faces.Write(folder + "/place_faces.png");
}

int Run(const std::vector<std::string>& words) {
  if (words.empty() || words.size() > 2) {
    std::fprintf(stderr, "usage: orvane-contact OUTFOLDER [SHEETFOLDER]\n");
    return 2;
  }
  const std::string& folder = words[0];
  std::filesystem::create_directories(folder);
  Sheets sheets;
  for (const auto& entry :
       std::filesystem::directory_iterator(words.size() == 2 ? words[1] : ORVANE_SHEETS)) {
    if (entry.path().extension() != ".png") continue;
    sheets.emplace(entry.path().stem().string(), ReadSheet(entry.path().string()));
  }
  WriteSheets(sheets, folder);
  WriteEnemies(sheets, folder);
  WriteHeroes(sheets, folder);
  WriteEffects(sheets, folder);
  WriteWindows(sheets, folder);
  std::printf("%zu sheets shown in %s\n", sheets.size(), folder.c_str());
  return 0;
}

}  // namespace
}  // namespace orvane::contact

int main(int count, char** words) {
  try {
    return orvane::contact::Run(std::vector<std::string>(words + 1, words + count));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orvane-contact: %s\n", error.what());
    return 2;
  }
}
