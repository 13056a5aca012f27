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

TEST_F(HeldKeysTest, one_press_after_another_is_no_repeat) {
  EXPECT_FALSE(Press(100, field_).Repeats);
  EXPECT_TRUE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Release(150, field_).Repeats);
  EXPECT_FALSE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Press(200, field_).Repeats);
}

TEST_F(HeldKeysTest, a_release_and_a_press_of_one_time_are_a_repeat) {
  Press(100, field_);
  keyboard_->set(kEnterCode);
  EXPECT_TRUE(Release(400, field_).Repeats);
  EXPECT_TRUE(held_.IsDown(kEnterCode));
  const auto again = Press(400, field_);
  EXPECT_TRUE(again.Repeats);
  EXPECT_FALSE(again.IsStray);
}

TEST_F(HeldKeysTest, a_press_without_a_release_is_a_repeat) {
  Press(100, field_);
  EXPECT_TRUE(Press(400, field_).Repeats);
}

TEST_F(HeldKeysTest, a_quick_second_press_counts_even_if_the_first_release_is_seen_late) {
  Press(100, field_);
  keyboard_->set(kEnterCode);  // the second press is on its way already
  Release(130, field_);
  EXPECT_FALSE(Press(150, field_).Repeats);
}

TEST_F(HeldKeysTest, what_was_pressed_in_another_window_is_stray) {
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

TEST_F(HeldKeysTest, what_was_pressed_in_another_program_is_stray_as_long_as_it_repeats) {
  keyboard_->set(kEnterCode);
  held_.Look();
  const auto again = Press(100, field_, true);
  EXPECT_TRUE(again.Repeats);
  EXPECT_TRUE(again.IsStray);
}

TEST_F(HeldKeysTest, a_press_that_the_keyboard_knew_before_its_event_came_counts) {
  keyboard_->set(kEnterCode);
  held_.Look();
  const auto meant = Press(100, field_);
  EXPECT_FALSE(meant.Repeats);
  EXPECT_FALSE(meant.IsStray);
}

TEST_F(HeldKeysTest, a_release_that_another_program_got_leaves_nothing_behind) {
  Press(100, field_);
  held_.Forget();
  EXPECT_FALSE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Press(900, field_).Repeats);
}

TEST_F(HeldKeysTest, goes_by_the_events_alone_where_the_keyboard_does_not_tell) {
  keyboard_.reset();
  Press(100, field_);
  held_.Look();
  EXPECT_TRUE(held_.IsDown(kEnterCode));
  EXPECT_FALSE(Release(150, field_).Repeats);
  EXPECT_FALSE(held_.IsDown(kEnterCode));
}

TEST_F(HeldKeysTest, what_an_input_method_types_is_no_key) {
  for (const uint32_t code : {0U, 256U}) {
    const auto typed = held_.Take({code, true, false, 100, &field_});
    EXPECT_FALSE(typed.Repeats);
    EXPECT_FALSE(typed.IsStray);
    EXPECT_FALSE(held_.IsDown(code));
  }
}

}  // namespace
}  // namespace orvane
