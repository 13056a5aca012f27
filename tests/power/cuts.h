// Ten saves in a row on a disk whose power fails at any moment, again and again.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>

#include "tests/power/disk.h"

namespace orvane::power {

// The power fails when so many steps have been taken; and each step may fail otherwise.
struct Trouble {
  Disk& On;
  std::mt19937& Random;
  int StepsLeft = 0;   // below 0 for no end of them
  bool Fails = false;  // whether steps fail now and then

  // To be called at the beginning of each step: the power may fail there.
  void Step() {
    if (StepsLeft == 0) throw PowerCut();
    --StepsLeft;
  }
  // Whether this step is to fail.
  bool StepFails() { return Fails && Random() % 12 == 0; }
};

// Replaces a file by the game's own steps on the disk; returns what is in the way.
using ReplaceFunction =
    std::function<std::string(const std::string& name, const std::string& bytes, Trouble& trouble)>;

struct CutCount {
  int Cuts = 0;
  int Old = 0;      // slots that were written last and held an older record after the cut
  int New = 0;      // and that held the newest one
  int Done = 0;     // saves that were reported done
  int Refused = 0;  // and that were not
};

// Any record that is not one of the others.
inline std::string AnyRecord(std::mt19937& random) {
  std::string record(540, ' ');
  for (char& byte : record) byte = static_cast<char>(random());
  return record;
}

// One series of saves, which a cut ends. What each slot may hold is known at any moment.
class Series {
 public:
  Series(std::uint32_t seed, ReplaceFunction replace)
      : random_(seed), disk_(seed + 1, RoomFor(seed)), replace_(std::move(replace)) {
    for (int slot = 0; slot < kSlots; ++slot) {
      const std::string name = NameOf(slot);
      if (random_() % 4 != 0) disk_.Put(name, AnyRecord(random_));
      may_hold_[name] = {Held(name)};  // nothing, where the slot has no file yet
    }
  }

  void Run(CutCount& count) {
    Trouble trouble{disk_, random_, static_cast<int>(random_() % 150), random_() % 2 == 0};
    std::string name;
    std::string record;
    try {
      for (int save = 0; save < kSaves; ++save) {
        name = NameOf(static_cast<int>(random_() % kSlots));
        record = AnyRecord(random_);
        const bool done = replace_(name, record, trouble).empty();
        (done ? count.Done : count.Refused) += 1;
        if (done) may_hold_[name].clear();
        // One that was refused at its last step may have come all the same.
        if (done || Held(name) == record) may_hold_[name].insert(record);
        Look("a save");
      }
    } catch (const PowerCut&) {
      ++count.Cuts;
      may_hold_[name].insert(record);
    }
    disk_.LosePower();
    Look("a power cut");
    (Held(name) == record ? count.New : count.Old) += 1;
    SaveOnceMore();
  }

 private:
  static constexpr int kSlots = 10;
  static constexpr int kSaves = 10;

  // Some disks have hardly room for the slots.
  static std::size_t RoomFor(std::uint32_t seed) {
    return seed % 3 == 0 ? std::size_t{5600} : std::size_t{1} << 20;
  }
  static std::string NameOf(int slot) {
    return "folder/Save" + std::string(slot < 9 ? "0" : "") + std::to_string(slot + 1) + ".sav";
  }
  std::optional<std::string> Held(const std::string& name) const {
    return disk_.Has(name) ? std::optional(disk_.Read(name)) : std::nullopt;
  }

  void Look(const char* after) const {
    for (const auto& [name, known] : may_hold_) {
      EXPECT_TRUE(known.contains(Held(name))) << name << " is spoilt after " << after;
    }
  }

  // Whatever lies about does not keep the next save from coming to last.
  void SaveOnceMore() {
    for (const auto& [name, known] : may_hold_) {
      const std::string record = AnyRecord(random_);
      Trouble none{disk_, random_, -1, false};
      if (!replace_(name, record, none).empty()) {
        EXPECT_LT(disk_.Left(), record.size()) << "a save was refused without reason";
        continue;
      }
      disk_.LosePower();
      EXPECT_EQ(Held(name), record) << "a save that was reported done is lost";
    }
  }

  std::mt19937 random_;
  Disk disk_;
  ReplaceFunction replace_;
  std::map<std::string, std::set<std::optional<std::string>>> may_hold_;
};

// So many series, each with its cut; stops at the first in which something is wrong.
inline CutCount RunSeries(int series, const ReplaceFunction& replace) {
  CutCount count;
  for (int seed = 1; seed <= series && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("series " + std::to_string(seed));
    Series(static_cast<std::uint32_t>(seed), replace).Run(count);
  }
  return count;
}

}  // namespace orvane::power
