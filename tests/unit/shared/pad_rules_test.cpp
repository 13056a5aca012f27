// What a pad's stick and buttons come to.
#include "src/frontend/shared/pad_rules.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace orvane {
namespace {

PadState With(std::initializer_list<PadButton> buttons) {
  PadState state{};
  for (const PadButton button : buttons) state[static_cast<size_t>(button)] = true;
  return state;
}

PadState Pushed(PadStick& stick, double x, double y) {
  PadState state{};
  stick.Add(x, y, state);
  return state;
}

TEST(PadStick, GivesTheDirectionOfTheLongerWay) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.9, 0.2), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, -0.9, 0.2), With({PadButton::Left}));
  EXPECT_EQ(Pushed(stick, 0.2, -0.9), With({PadButton::Up}));
  EXPECT_EQ(Pushed(stick, 0.2, 0.9), With({PadButton::Down}));
}

TEST(PadStick, IsAtRestNearTheMiddle) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.49, 0.49), PadState{});
}

TEST(PadStick, LetsGoLaterThanItTakes) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.45, 0), PadState{});
  EXPECT_EQ(Pushed(stick, 0.55, 0), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.4, 0), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.3, 0), PadState{});
}

TEST(PadStick, DoesNotWaverOnTheDiagonal) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.7, 0.6), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.7, 0.8), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.6, 0.8), With({PadButton::Down}));
  EXPECT_EQ(Pushed(stick, 0.8, 0.7), With({PadButton::Down}));
}

// Writes down what it is told to do.
class Hands : public PadHands {
 public:
  bool ReachesWindow() const override { return Reaches; }
  bool ReachesGame() const override { return Reaches && !MenuBar; }
  void Walk(Direction direction, bool down) override {
    Done.push_back((down ? "walk " : "halt ") + Name(direction));
  }
  void Move(Direction direction) override { Done.push_back("move " + Name(direction)); }
  void Accept() override { Done.emplace_back("accept"); }
  void Back() override { Done.emplace_back("back"); }
  void OpenMenus() override { Done.emplace_back("menus"); }
  void Turn(int step) override { Done.push_back("turn " + std::to_string(step)); }

  bool Reaches = false;
  bool MenuBar = false;
  std::vector<std::string> Done;

 private:
  static std::string Name(Direction direction) {
    constexpr const char* names[] = {"left", "up", "right", "down"};
    return names[static_cast<size_t>(direction)];
  }
};

using Deeds = std::vector<std::string>;

class PadRulesTest : public testing::Test {
 protected:
  void Show(const PadState& state, double later = 10) { rules_.Follow(state, now_ += later); }

  Hands hands_;
  double now_ = 1000;
  PadRules rules_{hands_};
};

TEST_F(PadRulesTest, EachButtonDoesItsOwnOnceForEachPress) {
  for (const PadButton button : {PadButton::Accept, PadButton::Back, PadButton::Menu,
                                 PadButton::Previous, PadButton::Next}) {
    Show(With({button}));
    Show(With({button}), 5000);
    Show({});
  }
  EXPECT_EQ(hands_.Done, (Deeds{"accept", "back", "menus", "turn -1", "turn 1"}));
}

TEST_F(PadRulesTest, WalksWhileKeysReachTheField) {
  hands_.Reaches = true;
  Show(With({PadButton::Left}));
  Show(With({PadButton::Left}), 5000);
  EXPECT_EQ(hands_.Done, (Deeds{"walk left"})) << "once, however long it is held";
  Show({});
  EXPECT_EQ(hands_.Done, (Deeds{"walk left", "halt left"}));
}

TEST_F(PadRulesTest, MovesWhereTheMenuBarHasTheKeys) {
  hands_.Reaches = true;
  hands_.MenuBar = true;
  Show(With({PadButton::Left}));
  Show({});
  EXPECT_EQ(hands_.Done, (Deeds{"move left"}));
}

TEST_F(PadRulesTest, HandsInAReleaseThatWentElsewhere) {
  hands_.Reaches = true;
  Show(With({PadButton::Left}));
  hands_.Reaches = false;
  Show({});
  EXPECT_EQ(hands_.Done, (Deeds{"walk left"}));
  hands_.Reaches = true;
  Show({});
  EXPECT_EQ(hands_.Done, (Deeds{"walk left", "halt left"}));
}

TEST_F(PadRulesTest, ElsewhereADirectionRepeatsAfterAWhileAndThenSooner) {
  Show(With({PadButton::Down}));
  Show(With({PadButton::Down}), 400);
  EXPECT_EQ(hands_.Done.size(), 1);
  Show(With({PadButton::Down}), 1);
  EXPECT_EQ(hands_.Done.size(), 2);
  Show(With({PadButton::Down}), 120);
  EXPECT_EQ(hands_.Done.size(), 2);
  Show(With({PadButton::Down}), 1);
  EXPECT_EQ(hands_.Done, (Deeds{"move down", "move down", "move down"}));
}

TEST_F(PadRulesTest, WhatWasPressedInTheFieldDoesNotRepeatInANewWindow) {
  hands_.Reaches = true;
  Show(With({PadButton::Down}));
  hands_.Reaches = false;
  Show(With({PadButton::Down}), 5000);
  EXPECT_EQ(hands_.Done, (Deeds{"walk down"}));
}

TEST_F(PadRulesTest, WhatIsLetGoElsewhereAndPressedAgainWalksOn) {
  hands_.Reaches = true;
  Show(With({PadButton::Left}));
  hands_.Reaches = false;
  Show({});
  hands_.Reaches = true;
  Show(With({PadButton::Left}));
  EXPECT_EQ(hands_.Done, (Deeds{"walk left"}));
  Show({});
  EXPECT_EQ(hands_.Done, (Deeds{"walk left", "halt left"}));
}

TEST_F(PadRulesTest, ReadsAPadOftenWhileItIsThereAndTheProgramInFront) {
  class Pad : public PadSource {
   public:
    std::optional<PadState> Read() override { return Held; }
    std::optional<PadState> Held;
  };
  Pad pad;
  hands_.Reaches = true;
  EXPECT_EQ(rules_.Read(pad, true, now_), kPadSeldomMs) << "none is plugged in";
  pad.Held = With({PadButton::Up});
  EXPECT_EQ(rules_.Read(pad, false, now_ + 1), kPadSeldomMs);
  EXPECT_EQ(hands_.Done, Deeds{}) << "it is for another program";
  const int often = rules_.Read(pad, true, now_ + 2);
  EXPECT_GT(often, 0);
  EXPECT_LT(often, kPadSeldomMs);
  EXPECT_EQ(hands_.Done, Deeds{"walk up"});
  rules_.Read(pad, false, now_ + 3);
  EXPECT_EQ(hands_.Done, (Deeds{"walk up", "halt up"}));
}

}  // namespace
}  // namespace orvane
