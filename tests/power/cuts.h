// What all tests of power cuts have in common: the trouble on the way, the ways in which a system
// replaces a file, and what each slot may hold by what was told of its saves.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "tests/power/disk.h"

namespace orvane::power {

constexpr int kSlots = 10;
constexpr int kSaves = 10;  // in a row

// The name of a slot, from 0.
std::string SlotName(int slot);

// The power fails when so many steps have been taken; and each step may fail otherwise.
struct Trouble {
  Disk& On;
  std::mt19937& Random;
  int StepsLeft = -1;  // below 0 for no end of them
  bool Fails = false;  // whether steps fail now and then

  // To be called at the beginning of each step: the power may fail there.
  void Step();
  // Whether this step is to fail.
  bool StepFails() { return Fails && Random() % 12 == 0; }
};

// A way in which this system replaces a file of the folder, by the game's own steps on the disk.
struct Way {
  const char* Name;
  // Returns what is in the way.
  std::function<std::string(const std::filesystem::path& path, const std::string& bytes,
                            Trouble& trouble)>
      Replace;
};
const std::vector<Way>& Ways();

// What came of many series.
struct CutCount {
  int Cuts = 0;
  int Old = 0;      // slots that were written last and held an older record after the cut
  int New = 0;      // and that held the newest one
  int Done = 0;     // saves that were reported done
  int Refused = 0;  // and that were not
  int Unread = 0;   // records that could not be read
  int Strays = 0;   // files that a cut has left beside the slots
};

// What each slot may hold.
class Promises {
 public:
  // Each slot holds what it does now, or nothing. The disk outlives this.
  explicit Promises(const Disk& disk);

  void Done(const std::string& slot, const std::string& bytes) { may_hold_[slot] = {bytes}; }
  // One that was refused at its last step may have come all the same.
  void Refused(const std::string& slot, const std::string& bytes);
  void CutOff(const std::string& slot, const std::string& bytes) { may_hold_[slot].insert(bytes); }

  // Each slot holds what it may: a failure of the test where it does not.
  void Look(const char* after) const;

 private:
  const Disk& disk_;
  std::map<std::string, std::set<std::optional<std::string>>> may_hold_;
};

}  // namespace orvane::power
