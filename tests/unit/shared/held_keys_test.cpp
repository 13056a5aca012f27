#include "src/frontend/shared/held_keys.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr uint32_t kEnterCode = 36;

class HeldKeysTest : public testing::Test {
 protected:
  HeldKeys::Stroke Press(uint64_t time, const int& window, bool says_repeat = false) {
    return Take(true, time, window, says_repeat);
  }
  HeldKeys::Stroke Release(uint64_t time, const int& window) {
    return Take(false, time, window, false);
  }

  std::optional<KeyCodes> keyboard_ = KeyCodes();
  HeldKeys held_{[this] { return keyboard_; }};
  int field_ = 0, battle_ = 0;  // two windows

 private:
  HeldKeys::Stroke Take(bool is_press, uint64_t time, const int& window, bool says_repeat) {
    return held_.Take({kEnterCode, is_press, says_repeat, time, &window});
  }
};

TEST_F(HeldKeysTest, OnePressAfterAnotherIsNoRepeat) {
  EXPECT_FALSE(Press(100, field_).Repeats);
  EXPECT_TRUE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Release(150, field_).Repeats);
  EXPECT_FALSE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Press(200, field_).Repeats);
}

TEST_F(HeldKeysTest, AReleaseAndAPressOfOneTimeAreARepeat) {
  Press(100, field_);
  keyboard_->set(kEnterCode);
  EXPECT_TRUE(Release(400, field_).Repeats);
  EXPECT_TRUE(held_.IsDown(kEnterCode));
  const auto again = Press(400, field_);
  EXPECT_TRUE(again.Repeats);
  EXPECT_FALSE(again.IsStray);
}

TEST_F(HeldKeysTest, APressWithoutAReleaseIsARepeat) {
  Press(100, field_);
  EXPECT_TRUE(Press(400, field_).Repeats);
}

TEST_F(HeldKeysTest, AQuickSecondPressCountsEvenIfTheFirstReleaseIsSeenLate) {
  Press(100, field_);
  keyboard_->set(kEnterCode);  // the second press is on its way already
  Release(130, field_);
  EXPECT_FALSE(Press(150, field_).Repeats);
}

TEST_F(HeldKeysTest, WhatWasPressedInAnotherWindowIsStray) {
  Press(100, field_);
  keyboard_->set(kEnterCode);
  Release(400, battle_);
  const auto again = Press(400, battle_);
  EXPECT_TRUE(again.Repeats);
  EXPECT_TRUE(again.IsStray);
  keyboard_->reset(kEnterCode);
  Release(500, battle_);
  const auto meant = Press(600, battle_);
  EXPECT_FALSE(meant.Repeats);
  EXPECT_FALSE(meant.IsStray);
}

TEST_F(HeldKeysTest, WhatWasPressedInAnotherProgramIsStrayAsLongAsItRepeats) {
  keyboard_->set(kEnterCode);
  held_.Look();
  const auto again = Press(100, field_, true);
  EXPECT_TRUE(again.Repeats);
  EXPECT_TRUE(again.IsStray);
}

TEST_F(HeldKeysTest, ARepeatWithoutAPressIsStray) {
  Press(100, field_);
  Release(150, field_);
  const auto again = Press(600, field_, true);
  EXPECT_TRUE(again.Repeats);
  EXPECT_TRUE(again.IsStray) << "nobody saw where it was pressed";
  EXPECT_TRUE(held_.IsDown(kEnterCode));
}

TEST_F(HeldKeysTest, APressThatTheKeyboardKnewBeforeItsEventCameCounts) {
  keyboard_->set(kEnterCode);
  held_.Look();
  const auto meant = Press(100, field_);
  EXPECT_FALSE(meant.Repeats);
  EXPECT_FALSE(meant.IsStray);
}

TEST_F(HeldKeysTest, AReleaseThatAnotherProgramGotLeavesNothingBehind) {
  Press(100, field_);
  held_.Forget();
  EXPECT_FALSE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Press(900, field_).Repeats);
}

TEST_F(HeldKeysTest, GoesByTheEventsAloneWhereTheKeyboardDoesNotTell) {
  keyboard_.reset();
  Press(100, field_);
  held_.Look();
  EXPECT_TRUE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Release(150, field_).Repeats);
  EXPECT_FALSE(held_.IsDown(kEnterCode));
}

TEST_F(HeldKeysTest, WhatAnInputMethodTypesIsNoKey) {
  for (const uint32_t code : {0U, 256U}) {
    const auto typed = held_.Take({code, true, false, 100, &field_});
    EXPECT_FALSE(typed.Repeats);
    EXPECT_FALSE(typed.IsStray);
    EXPECT_FALSE(held_.IsDown(code));
  }
}

}  // namespace
}  // namespace orvane
