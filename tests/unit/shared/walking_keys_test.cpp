#include "src/frontend/shared/walking_keys.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

constexpr uint32_t kLeftCode = 113;
constexpr uint32_t kEnterCode = 36;
constexpr KeyMeaning kLeft = {Direction::Left, false, false};
constexpr KeyMeaning kEnter = {std::nullopt, true, false};

class WalkingKeysTest : public testing::Test {
 protected:
  // What the window system itself says of repeats comes true here too.
  bool Press(const KeyMeaning& meaning, const int& window, bool says_repeat = false) {
    return keys_.Take({Code(meaning), true, says_repeat, ++time_, &window}, meaning);
  }
  bool Release(const KeyMeaning& meaning, const int& window) {
    return keys_.Take({Code(meaning), false, false, ++time_, &window}, meaning);
  }
  static uint32_t Code(const KeyMeaning& meaning) { return meaning.Arrow ? kLeftCode : kEnterCode; }

  bool reaches_ = true;
  bool menu_bar_ = false;
  std::optional<KeyCodes> keyboard_ = KeyCodes();
  std::string sent_;            // "v" for a press, "^" for a release
  int field_ = 0, battle_ = 0;  // two windows
  uint64_t time_ = 100;
  WalkingKeys keys_{{[this] { return reaches_; }, [this] { return menu_bar_; },
                     [this] { return keyboard_; },
                     [this](Direction, bool down) { sent_ += down ? "v" : "^"; }}};
};

TEST_F(WalkingKeysTest, AnArrowWalksUntilItIsLetGo) {
  EXPECT_FALSE(Press(kLeft, field_));
  EXPECT_TRUE(keys_.IsOutstanding());
  EXPECT_FALSE(Press(kLeft, field_, true)) << "a repeat changes nothing";
  EXPECT_FALSE(Release(kLeft, field_));
  EXPECT_EQ(sent_, "v^");
  EXPECT_FALSE(keys_.IsOutstanding());
}

TEST_F(WalkingKeysTest, AnArrowWalksNeitherElsewhereNorInTheMenuBar) {
  reaches_ = false;
  Press(kLeft, battle_);
  Release(kLeft, battle_);
  reaches_ = true;
  menu_bar_ = true;
  Press(kLeft, field_);
  EXPECT_EQ(sent_, "");
}

TEST_F(WalkingKeysTest, AReleaseThatWentElsewhereIsHandedInWhenKeysAreBack) {
  keys_.Follow();
  Press(kLeft, field_);
  reaches_ = false;
  keys_.Follow();
  Release(kLeft, battle_);
  EXPECT_EQ(sent_, "v");
  reaches_ = true;
  keys_.Follow();
  EXPECT_EQ(sent_, "v^");
}

TEST_F(WalkingKeysTest, WhatIsStillDownWhenKeysAreBackWalksOn) {
  Press(kLeft, field_);
  reaches_ = false;
  keys_.Follow();
  keyboard_->set(kLeftCode);
  reaches_ = true;
  keys_.Follow();
  EXPECT_EQ(sent_, "v");
  EXPECT_TRUE(keys_.IsOutstanding());
}

TEST_F(WalkingKeysTest, AKeyLetGoInAnotherProgramIsSettledAfterwards) {
  Press(kLeft, field_);
  keys_.Forget();
  keys_.Settle();
  EXPECT_EQ(sent_, "v^");
}

TEST_F(WalkingKeysTest, AWalkThatGoesOnRepeatingMovesNothingInAMenu) {
  Press(kLeft, field_);
  reaches_ = false;
  EXPECT_TRUE(Press(kLeft, field_, true));
}

TEST_F(WalkingKeysTest, AnArrowThatWasPressedInAMenuGoesOnRepeatingThere) {
  reaches_ = false;
  EXPECT_FALSE(Press(kLeft, battle_));
  EXPECT_FALSE(Press(kLeft, battle_, true));
}

TEST_F(WalkingKeysTest, NothingIsSettledWhileKeysReachTheField) {
  keys_.Follow();
  Press(kLeft, field_);
  keyboard_->set(kLeftCode);
  keys_.Follow();
  keyboard_->reset(kLeftCode);
  keys_.Follow();
  EXPECT_EQ(sent_, "v") << "its release is on the way";
}

TEST_F(WalkingKeysTest, WhatRepeatsInAnotherWindowThanItsOwnDoesNothing) {
  Press(kEnter, field_);
  EXPECT_TRUE(Press(kEnter, battle_, true));
}

TEST_F(WalkingKeysTest, NoKeyPressesByRepeatingButWhereTextIsTyped) {
  EXPECT_FALSE(Press(kEnter, field_));
  EXPECT_TRUE(Press(kEnter, field_, true));
  EXPECT_FALSE(Press({std::nullopt, true, true}, field_, true));
  EXPECT_FALSE(Press({}, field_, true)) << "nor does it matter for the others";
}

}  // namespace
}  // namespace orvane
