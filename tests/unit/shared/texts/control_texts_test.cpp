// Which texts of its own a control shows.
#include "src/frontend/shared/texts/control_texts.h"

#include <gtest/gtest.h>

#include "src/ui/controls.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"

namespace orvane {
namespace {

using Texts = std::vector<std::string>;

class PageOfAll : public Screen {
 public:
  explicit PageOfAll(Stage& stage) : Screen(stage, "Page", "Page", 400, 300) {
    Tabs.Captions = {"カイ", "リナ"};
    Things.Rows = {"薬", "剣"};
    Files.Rows = {"Save01.sav"};
  }

  Label Words{*this, "Words", {}, {"薬"}};
  CommandButton Button{*this, "Button", {}, {"戦う"}};
  Frame Around{*this, "Around", {}, {"使う相手"}};
  MenuItem Menu{*this, "Menu", "ゲーム"};
  ListBox Things{*this, "Things", {}};
  TabStrip Tabs{*this, "Tabs", {}};
  FileListBox Files{*this, "Files", {}};
  TextBox Field{*this, "Field", {}, {"カイ"}};
  PictureBox Scene{*this, "Scene", {}};
  Slider Speed{*this, "Speed", {}};
  Timer Ticks{*this, "Ticks", 10};
};

TEST(ControlTexts, AreCaptionsAndRows) {
  Stage stage;
  const PageOfAll page(stage);
  EXPECT_EQ(TextsOf(page.Words), Texts{"薬"});
  EXPECT_EQ(TextsOf(page.Button), Texts{"戦う"});
  EXPECT_EQ(TextsOf(page.Around), Texts{"使う相手"});
  EXPECT_EQ(TextsOf(page.Menu), Texts{"ゲーム"});
  EXPECT_EQ(TextsOf(page.Things), (Texts{"薬", "剣"}));
  EXPECT_EQ(TextsOf(page.Tabs), (Texts{"カイ", "リナ"}));
}

TEST(ControlTexts, AreNeitherWhatThePlayerFillsInNorFiles) {
  Stage stage;
  const PageOfAll page(stage);
  for (const Control* control : std::initializer_list<const Control*>{
           &page.Files, &page.Field, &page.Scene, &page.Speed, &page.Ticks}) {
    EXPECT_EQ(TextsOf(*control), Texts{}) << control->Name();
  }
}

}  // namespace
}  // namespace orvane
