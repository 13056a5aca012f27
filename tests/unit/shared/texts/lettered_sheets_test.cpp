#include "src/frontend/shared/texts/lettered_sheets.h"

#include <gtest/gtest.h>

#include "src/core/sheets.h"
#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/ui/controls.h"

namespace orvane {
namespace {

TEST(LetteredSheets, AreThoseOfTheLanguageWhileTheirScreenIsShown) {
  NoSound sound;
  NoChance luck;
  FolderStorage files(ORVANE_GAME_FOLDER);
  Program program({sound, luck, files});
  Stage& stage = program.TheStage();
  Screen& ending = *stage.Find("Ending");
  const Surface& shown = static_cast<PictureBox&>(*ending.Find("Picture1")).Picture;
  Translator texts;
  texts.Choose("en");
  LetterSheets(stage, texts);
  EXPECT_TRUE(shown.SharesPixelsWith(Sheet("credits"))) << "not while it is not shown";
  program.Enter([&] { stage.Show(ending); });
  LetterSheets(stage, texts);
  EXPECT_TRUE(shown.SharesPixelsWith(Sheet("credits_en")));
  const uint64_t before = shown.Revision();
  LetterSheets(stage, texts);
  EXPECT_EQ(shown.Revision(), before) << "it has the right one";
  texts.Choose("ja");
  LetterSheets(stage, texts);
  EXPECT_TRUE(shown.SharesPixelsWith(Sheet("credits")));
  EXPECT_FALSE(HasSheet("credits_xx"));
}

TEST(LetteredSheets, AreOfNoUseToAStageWithoutTheirScreens) {
  Stage stage;
  LetterSheets(stage, Translator());
  EXPECT_TRUE(stage.Screens().empty());
}

}  // namespace
}  // namespace orvane
