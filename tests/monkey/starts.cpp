#include "tests/monkey/starts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "src/core/hero_numbers.h"
#include "src/core/map.h"
#include "src/core/new_game.h"
#include "src/core/save_file.h"
#include "src/field/step.h"

namespace orvane::monkey {
namespace {

constexpr const char* kSlot = "Save01.sav";
constexpr std::array<int, 3> kStoryOfRound = {21, 24, 28};

// Heroes of a level, with some of the things and skills of their round, as a player may have them.
void Grow(GameRecord& record, int level, Dice& dice) {
  for (int hero = 0; hero < 2; ++hero) {
    const int more = level - 1;
    record.Level[hero] = level;
    record.MaxHP[hero] += 25 * more;
    record.MaxMP[hero] += 12 * more;
    record.HP[hero] =
        dice.OnceIn(3) ? dice.Between(1, record.MaxHP[hero]) : int{record.MaxHP[hero]};
    record.MP[hero] = dice.Between(0, record.MaxMP[hero]);
    record.BaseAttack[hero] += 4 * more;
    record.BaseDefence[hero] += 3 * more;
    record.Spirit[hero] += 4 * more;
    record.Exp[hero] = static_cast<int>(ExperienceToLeave(hero, more));
  }
  SumUp(record);
}

void FillBag(GameRecord& record, Dice& dice) {
  const int count = dice.OnceIn(3) ? 20 : dice.Between(0, 20);
  for (int slot = 0; slot < 20; ++slot) {
    record.Items[slot] = slot < count ? dice.Between(1, 50) : kNoItem;
  }
  // Gaps, as throwing away leaves them.
  record.ItemCount = count;
  for (int slot = 0; slot < count; ++slot) {
    if (!dice.OnceIn(6)) continue;
    record.Items[slot] = kNoItem;
    record.ItemCount -= 1;
  }
}

GameRecord StageRecord(Dice& dice, int round) {
  GameRecord record;
  FreshRecord(record);
  record.HeroName[0] = record.SaveName[0] = "カイ";
  record.HeroName[1] = record.SaveName[1] = "リナ";
  record.Round = record.SaveRound = round;
  record.StoryNo = kStoryOfRound.at(static_cast<size_t>(round - 1));
  Grow(record, dice.Between(1, 4) + 12 * (round - 1) + dice.Between(0, 8), dice);
  FillBag(record, dice);
  for (int skill = 0; skill < 4 * round && skill < 10; ++skill) {
    record.WazaKnown[skill] = dice.OnceIn(3) ? kFalse : kTrue;
    record.MagicKnown[skill] = dice.OnceIn(3) ? kFalse : kTrue;
    record.WazaUse[skill] = dice.Between(0, 200);
    record.MagicUse[skill] = dice.Between(0, 200);
  }
  for (int chest = 0; chest < kChestCount; ++chest) {
    record.TreasureLeft[chest] = dice.OnceIn(2) ? kTrue : kFalse;
  }
  for (int chest = 0; chest < kBookChestCount; ++chest) {
    record.BookLeft[chest] = dice.OnceIn(2) ? kTrue : kFalse;
  }
  record.SaveMapA = record.SaveMapB = 3;
  record.SaveX = kRoundStart.X;
  record.SaveY = kRoundStart.Y;
  return record;
}

void PutBeforeDragon(GameRecord& record) {
  record.SaveMapA = 4;
  record.SaveMapB = 1;
  record.SaveX = 232;
  record.SaveY = 128;
}

void MakeStrong(GameRecord& record) {
  for (int hero = 0; hero < 2; ++hero) {
    record.HP[hero] = record.MaxHP[hero] = 9999;
    record.BaseAttack[hero] = 3000;
    record.BaseDefence[hero] = 250;
  }
  SumUp(record);
}

void Damage(std::string& bytes, Dice& dice) {
  const int size = static_cast<int>(bytes.size());
  switch (dice.Between(0, 4)) {
    case 0:
      bytes.resize(static_cast<size_t>(dice.Between(0, size)));
      return;
    case 1:
      bytes.append(static_cast<size_t>(dice.Between(1, 700)),
                   static_cast<char>(dice.Between(0, 255)));
      return;
    case 2:
      for (char& byte : bytes) byte = static_cast<char>(dice.Between(0, 255));
      return;
    default:
      for (int times = dice.Between(1, 40); times > 0 && size > 0; --times) {
        bytes[static_cast<size_t>(dice.Between(0, size - 1))] =
            static_cast<char>(dice.Between(0, 255));
      }
      return;
  }
}

}  // namespace

Beginning Prepare(Dice& dice, Files& files) {
  Beginning begins;
  begins.What = static_cast<Start>(dice.Between(0, 5));
  const int round = begins.What == Start::Ending ? 3 : dice.Between(1, 3);
  GameRecord record = StageRecord(dice, round);
  if (begins.What == Start::BeforeDragon || begins.What == Start::Ending) PutBeforeDragon(record);
  begins.IsStrong = begins.What == Start::Ending || dice.OnceIn(4);
  if (begins.IsStrong) MakeStrong(record);
  files[kSlot] = PackRecord(record);
  if (begins.What == Start::DamagedSave) Damage(files[kSlot], dice);
  if (begins.What == Start::DamagedFile) {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files) names.push_back(name);
    for (int times = dice.Between(1, 5); times > 0; --times) Damage(files[dice.OneOf(names)], dice);
    Damage(files["Mapdata/map3-3.dat"], dice);
  }
  begins.IsSound = begins.What != Start::DamagedSave && begins.What != Start::DamagedFile;
  return begins;
}

}  // namespace orvane::monkey
