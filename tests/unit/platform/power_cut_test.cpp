// Saving on a disk whose power fails: at any step, with any call failing, and with any part of what
// was not flushed on the disk.
#include <gtest/gtest.h>

#include "src/base/little_endian.h"
#include "src/platform/path_text.h"
#include "tests/power/cuts.h"

namespace orvane::power {
namespace {

// Any record that is not one of the others.
std::string AnyRecord(std::mt19937& random) {
  std::string record;
  while (record.size() < 540) AppendLittleEndian(record, random(), 4);
  return record;
}

// One series of saves, which a cut ends. What each slot may hold is known at any moment.
class Series {
 public:
  Series(std::uint32_t seed, const Way& way)
      : random_(seed), disk_(seed + 1, RoomFor(seed)), way_(way) {
    for (int slot = 0; slot < kSlots; ++slot) {
      if (random_() % 4 != 0) disk_.Put(SlotName(slot), AnyRecord(random_));
    }
    promises_.emplace(disk_);
  }

  void Run(CutCount& count) {
    Trouble trouble{disk_, random_, static_cast<int>(random_() % 150), random_() % 2 == 0};
    std::string name;
    std::string record;
    try {
      for (int save = 0; save < kSaves; ++save) {
        name = SlotName(static_cast<int>(random_() % kSlots));
        record = AnyRecord(random_);
        if (Replace(name, record, trouble).empty()) {
          promises_->Done(name, record);
          ++count.Done;
        } else {
          promises_->Refused(name, record);
          ++count.Refused;
        }
        promises_->Look("a save");
      }
    } catch (const PowerCut&) {
      ++count.Cuts;
      promises_->CutOff(name, record);
    }
    disk_.LosePower();
    promises_->Look("a power cut");
    (disk_.Held(name) == record ? count.New : count.Old) += 1;
    SaveOnceMore();
  }

 private:
  // Some disks have hardly room for the slots.
  static std::size_t RoomFor(std::uint32_t seed) {
    return seed % 3 == 0 ? std::size_t{5600} : std::size_t{1} << 20;
  }

  std::string Replace(const std::string& name, const std::string& record, Trouble& trouble) {
    return way_.Replace(PathOf("folder/" + name), record, trouble);
  }

  // Whatever lies about does not keep the next save from coming to last.
  void SaveOnceMore() {
    for (int slot = 0; slot < kSlots; ++slot) {
      const std::string record = AnyRecord(random_);
      Trouble none{disk_, random_};
      if (!Replace(SlotName(slot), record, none).empty()) {
        EXPECT_LT(disk_.Left(), record.size()) << "a save was refused without reason";
        continue;
      }
      disk_.LosePower();
      EXPECT_TRUE(disk_.Held(SlotName(slot)) == record) << "a save that was reported done is lost";
    }
  }

  std::mt19937 random_;
  Disk disk_;
  const Way& way_;
  std::optional<Promises> promises_;
};

TEST(PowerCut, EverySlotHoldsTheOldOrTheNewRecordWhole) {
  const int series = 3000 / static_cast<int>(Ways().size());
  for (const Way& way : Ways()) {
    CutCount count;
    for (int seed = 1; seed <= series && !HasFailure(); ++seed) {
      SCOPED_TRACE(std::string(way.Name) + ", series " + std::to_string(seed));
      Series(static_cast<std::uint32_t>(seed), way).Run(count);
    }
    EXPECT_GT(count.Cuts, series / 2);
    EXPECT_GT(count.Old, series / 10);
    EXPECT_GT(count.New, series / 20);
    EXPECT_GT(count.Done, series * 5 / 2);
    EXPECT_GT(count.Refused, series / 4);
  }
}

}  // namespace
}  // namespace orvane::power
