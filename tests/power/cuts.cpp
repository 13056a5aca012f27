#include "tests/power/cuts.h"

#include <gtest/gtest.h>

namespace orvane::power {

std::string SlotName(int slot) {
  return (slot < 9 ? "Save0" : "Save") + std::to_string(slot + 1) + ".sav";
}

void Trouble::Step() {
  if (StepsLeft == 0) throw PowerCut();
  --StepsLeft;
}

Promises::Promises(const Disk& disk) : disk_(disk) {
  for (int slot = 0; slot < kSlots; ++slot) {
    const std::string name = SlotName(slot);
    may_hold_[name] = {disk.Held(name)};
  }
}

void Promises::Refused(const std::string& slot, const std::string& bytes) {
  if (disk_.Held(slot) == bytes) may_hold_[slot].insert(bytes);
}

void Promises::Look(const char* after) const {
  for (const auto& [slot, known] : may_hold_) {
    EXPECT_TRUE(known.contains(disk_.Held(slot))) << slot << " is spoilt after " << after;
  }
}

}  // namespace orvane::power
