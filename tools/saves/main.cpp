// orvane-saves FOLDER: makes the save slots Save01.sav to Save10.sav that are not there yet. A slot
// holds a fresh game as it stands when the opening has ended, so that loading it by mistake starts
// a game; the copies for the load screen are empty, so that it looks like an empty slot.
#include <cstdio>
#include <filesystem>
#include <string>

#include "src/core/map.h"
#include "src/core/new_game.h"
#include "src/core/save_file.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

constexpr int kSlots = 10;
constexpr int kAfterOpening = 21;

GameRecord SlotRecord() {
  GameRecord record;
  FreshRecord(record);
  record.HeroName[0] = "カイ";
  record.HeroName[1] = "リナ";
  record.StoryNo = kAfterOpening;
  record.SaveMapA = 3;
  record.SaveMapB = 3;
  record.SaveX = (record.SaveX - 1) * kTileSize;
  record.SaveY = (record.SaveY - 1) * kTileSize;
  return record;
}

int MakeSlots(const std::filesystem::path& folder) {
  const std::string bytes = PackRecord(SlotRecord());
  for (int slot = 1; slot <= kSlots; ++slot) {
    const std::string number = std::to_string(slot);
    const std::filesystem::path file =
        folder / ("Save" + std::string(slot < 10 ? "0" : "") + number + ".sav");
    if (std::filesystem::exists(file)) continue;
    if (!WriteWholeFile(file, bytes)) {
      std::fprintf(stderr, "orvane-saves: cannot write %s\n", file.string().c_str());
      return 1;
    }
  }
  return 0;
}

}  // namespace
}  // namespace orvane

int main(int count, char** words) {
  if (count != 2) {
    std::fprintf(stderr, "usage: orvane-saves FOLDER\n");
    return 2;
  }
  return orvane::MakeSlots(words[1]);
}
