#include "src/frontend/web/services/save_check.h"

#include "src/core/game_record.h"
#include "src/core/map.h"
#include "src/core/save_file.h"

namespace orvane {
namespace {

bool IsWithin(int value, int least, int most) {
  return value >= least && value <= most;
}

// Whether the record is one that the game could have written; a file of another kind with the same
// length hardly meets all of this.
bool IsReadable(const GameRecord& record) {
  constexpr int rounds = 4;
  constexpr int most_levels = 999;
  constexpr int items = 99;
  if (!IsWithin(record.Round, 1, rounds)) return false;
  if (!IsWithin(record.SaveX, 0, kMapColumns * kTileSize)) return false;
  if (!IsWithin(record.SaveY, 0, kMapRows * kTileSize)) return false;
  for (int hero = 0; hero < 2; ++hero) {
    if (!IsWithin(record.Level[hero], 1, most_levels)) return false;
    if (!IsWithin(record.HP[hero], 0, record.MaxHP[hero])) return false;
    if (!IsWithin(record.MP[hero], 0, record.MaxMP[hero])) return false;
    if (record.HeroName[hero].Trimmed().empty() || record.Exp[hero] < 0) return false;
  }
  for (int slot = 0; slot < kBagSize; ++slot) {
    if (!IsWithin(record.Items[slot], 0, items)) return false;
  }
  for (int chest = 0; chest < kChestCount; ++chest) {
    if (!IsWithin(record.TreasureLeft[chest], -1, 0)) return false;
  }
  return record.StoryNo >= 0 && IsWithin(record.ItemCount, 0, kBagSize);
}

}  // namespace

std::string SaveProblem(std::string_view bytes) {
  if (bytes.size() != kSaveFileSize) {
    return "セーブデータではありません（長さが" + std::to_string(kSaveFileSize) +
           "バイトではありません）。";
  }
  GameRecord record;
  UnpackRecord(bytes, record);
  if (!IsReadable(record)) return "セーブデータとして読めません。";
  return {};
}

std::string SaveSummary(std::string_view bytes) {
  if (!SaveProblem(bytes).empty()) return {};
  GameRecord record;
  UnpackRecord(bytes, record);
  if (record.SaveRound == 0) return "（まだ使われていません）";
  std::string text = "ラウンド" + std::to_string(record.SaveRound);
  for (int hero = 0; hero < 2; ++hero) {
    text +=
        "　" + record.SaveName[hero].Trimmed() + "　LV" + std::to_string(record.SaveLevel[hero]);
  }
  return text;
}

}  // namespace orvane
