// What is in view, and where a press is the screen's own.
#include "src/ui/reach.h"

#include <gtest/gtest.h>

#include "src/ui/controls.h"
#include "src/ui/stage.h"

namespace orvane {
namespace {

class Card : public Screen {
 public:
  explicit Card(Stage& stage) : Screen(stage, "Card", "Card", 200, 100) {}

  Label Text{*this, "Text", {0, 0, 50, 50}, {"text"}};
  CommandButton Button{*this, "Button", {40, 0, 50, 50}, {"OK"}};
  PictureBox Picture{*this, "Picture", {100, 0, 50, 50}};
  Label OnPicture{Picture, "OnPicture", {10, 10, 20, 20}, {"text"}};
};

TEST(Bare, IsWhatOnlyTextsOfTheScreensOwnStandOn) {
  Stage stage;
  Card card(stage);
  EXPECT_TRUE(IsBare(card, {180, 80}));
  EXPECT_TRUE(IsBare(card, {20, 20}));
  EXPECT_FALSE(IsBare(card, {45, 20})) << "a text lies behind what stands beside it";
  EXPECT_FALSE(IsBare(card, {140, 40}));
  EXPECT_FALSE(IsBare(card, {120, 20})) << "a text on a picture is the picture's";
  card.Button.Visible = false;
  EXPECT_TRUE(IsBare(card, {80, 20}));
}

TEST(InView, IsNotWhatIsHiddenOrLiesBelowTheWindow) {
  Stage stage;
  Card card(stage);
  EXPECT_TRUE(IsInView(card.Picture));
  EXPECT_TRUE(IsInView(card.OnPicture));
  card.Picture.Visible = false;
  EXPECT_FALSE(IsInView(card.OnPicture));
  card.Picture.Visible = true;
  card.Picture.At.Top = 95;
  EXPECT_TRUE(IsInView(card.Picture));
  EXPECT_FALSE(IsInView(card.OnPicture)) << "it begins at 105 of 100";
  card.Picture.At.Top = 100;
  EXPECT_FALSE(IsInView(card.Picture));
}

}  // namespace
}  // namespace orvane
