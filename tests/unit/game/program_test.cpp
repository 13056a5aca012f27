#include "tests/unit/game/program_test.h"

#include <cstdlib>

#include "src/core/save_file.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

using test::ProgramTest;

TEST_F(ProgramTest, TheTitleIsItsSheetThreeHalvesAsWideAndTwiceAsHigh) {
  Start();
  const Surface& field = static_cast<PictureBox&>(On("Main", "Picture1")).Picture;
  const Surface& sheet = Sheet("title");
  int strange = 0;
  for (int y = 0; y < field.Height(); ++y) {
    for (int x = 0; x < 480; ++x) strange += field.At(x, y) == sheet.At(x * 2 / 3, y / 2) ? 0 : 1;
  }
  EXPECT_EQ(strange, 0);
}

TEST_F(ProgramTest, ASaveThatIsAnsweredLaterHoldsEverythingUp) {
  quiet_.Files.AnswersLater = true;
  AskToSave();
  EXPECT_EQ(program_->Answer(BoxAnswer::Yes), "");
  EXPECT_FALSE(TheStage().TimeRuns());
  EXPECT_NE(program_->Click(On("Save", "OKButton")), "") << "no input is taken";
  EXPECT_TRUE(ScreenOf("Save").IsVisible());
  EXPECT_EQ(quiet_.Files.Files["Save01.sav"], "");
  quiet_.Files.Settle();
  EXPECT_EQ(quiet_.Files.Files["Save01.sav"], PackRecord(program_->TheState()));
  EXPECT_TRUE(TheStage().TimeRuns());
  EXPECT_FALSE(ScreenOf("Save").IsVisible());
  EXPECT_TRUE(Walk().IsEnabled());
}

TEST_F(ProgramTest, ASaveKeepsWhatALongerFileHoldsBehindTheRecord) {
  quiet_.Files.Files["Save01.sav"] = std::string(kSaveFileSize, 'x') + "and more";
  AskToSave();
  program_->Answer(BoxAnswer::Yes);
  EXPECT_EQ(quiet_.Files.Files["Save01.sav"], PackRecord(program_->TheState()) + "and more");
}

TEST_F(ProgramTest, ASaveThatFailsTellsWhatTheSystemSaysAndEndsTheProgram) {
  quiet_.Files.Failure = "Permission denied";
  AskToSave();
  program_->Answer(BoxAnswer::Yes);
  ASSERT_EQ(TheStage().BoxCount(), 1);
  EXPECT_NE(TheStage().Boxes()[0].Shown.Text.find("Save01.sav: Permission denied"),
            std::string::npos);
  EXPECT_FALSE(program_->HasEnded());
  EXPECT_EQ(program_->Error()->Kind, ErrorKind::File);
  EXPECT_NE(program_->Click(On("Save", "OKButton")), "");
  EXPECT_EQ(program_->Answer(BoxAnswer::Ok), "");
  EXPECT_TRUE(program_->HasEnded());
  EXPECT_EQ(program_->ExitStatus(), 1);
}

TEST_F(ProgramTest, AStartWithoutItsFilesLeavesNothingButTheErrorsBox) {
  quiet_.Files.Files.erase("Item.dat");
  Start();
  EXPECT_EQ(TheStage().BoxCount(), 1);
  EXPECT_FALSE(program_->HasEnded());
  program_->Answer(BoxAnswer::Ok);
  EXPECT_TRUE(program_->HasEnded());
}

TEST_F(ProgramTest, TheItemFileStaysOpenWhenItIsDeleted) {
  Begin();
  quiet_.Files.Files.erase("Item.dat");
  EXPECT_EQ(program_->Click(On("Main", "m22")), "");
  const auto& bag = static_cast<const ListBox&>(On("Item", "List1"));
  EXPECT_NE(Trim(bag.List(0)), "");
  EXPECT_NE(bag.List(0), "なし");
}

TEST_F(ProgramTest, AHoldTakesNoInputAndNoTickUntilItIsOver) {
  Begin();
  program_->Enter([&] { TheStage().Hold(100); });
  const int frame = program_->TheState().FieldFrame;
  program_->Tick(Walk());
  EXPECT_EQ(program_->TheState().FieldFrame, frame);
  EXPECT_NE(program_->Click(On("Main", "m14")), "");
  program_->EndHold();
  program_->Tick(Walk());
  EXPECT_EQ(program_->TheState().FieldFrame, frame + 1);
}

TEST_F(ProgramTest, OnlyABoxInFrontIsAnsweredAndOnlyWithItsButtons) {
  Begin();
  EXPECT_NE(program_->Answer(BoxAnswer::Ok), "");
  program_->Click(On("Main", "m14"));
  EXPECT_NE(program_->Answer(BoxAnswer::Yes), "");
  EXPECT_EQ(program_->Answer(BoxAnswer::Cancel), "");
  EXPECT_FALSE(TheStage().BoxStands());
  EXPECT_FALSE(program_->HasEnded());
}

TEST_F(ProgramTest, EscapeIsTheCancelOfADialogAndTheWayBackOfAList) {
  Start();
  EXPECT_NE(program_->GoBack(ScreenOf("Main")), "") << "the title has no way back";
  program_->Click(On("Main", "Command1"));
  EXPECT_EQ(program_->GoBack(ScreenOf("InputName")), "");
  EXPECT_FALSE(ScreenOf("InputName").IsVisible());
  Begin();
  TheStage().Show(ScreenOf("Battle"));
  program_->Click(On("Battle", "Command1"));
  EXPECT_TRUE(On("Battle", "List2").Visible);
  EXPECT_EQ(program_->GoBack(ScreenOf("Battle")), "");
  EXPECT_FALSE(On("Battle", "List2").Visible);
  EXPECT_NE(program_->GoBack(ScreenOf("Battle")), "");
}

TEST_F(ProgramTest, EscapeClosesTheScreensThatHaveAButtonForIt) {
  Begin();
  for (const auto& [item, screen] : {std::pair{"m21", "Wepon"}, std::pair{"m32", "Chardata"}}) {
    program_->Click(On("Main", item));
    EXPECT_TRUE(ScreenOf(screen).IsVisible());
    EXPECT_EQ(program_->GoBack(ScreenOf(screen)), "");
    EXPECT_FALSE(ScreenOf(screen).IsVisible());
  }
}

TEST_F(ProgramTest, AnEmptyRowOfTheBagCannotBeUsedWhateverItsRecordSays) {
  // A longer item file, of which record 99 is one that heals.
  std::string& items = quiet_.Files.Files["Item.dat"];
  const std::string healing = items.substr(46 * 32, 32);
  items.resize(98 * 32);
  items += healing;
  Begin();
  program_->Click(On("Main", "m22"));
  program_->Choose(On("Item", "List1"), 19);
  EXPECT_EQ(program_->TheState().ItemRec.Kind, 6) << "the record is read all the same";
  EXPECT_FALSE(On("Item", "Command1").Enabled);
}

// The pixels of the field that are not as its tiles paint them, at most this far from the party.
int StrangePixels(const Surface& field, const State& state, int reach) {
  const Surface& sheet = Sheet("tiles");
  int strange = 0;
  for (int y = 0; y < kMapRows * kTileSize; ++y) {
    for (int x = 0; x < kMapColumns * kTileSize; ++x) {
      if (std::abs(x - state.HeroX) <= reach && std::abs(y - state.HeroY) <= reach) continue;
      const int code = state.MapTile[x / kTileSize][y / kTileSize] - 1;
      const int column = code % 30 * kTileSize + x % kTileSize;
      const int row = code / 30 * kTileSize + y % kTileSize;
      strange += field.ShownAt(x, y) == sheet.At(column, row) ? 0 : 1;
    }
  }
  return strange;
}

TEST_F(ProgramTest, TheMapStandsWhereThePartyHasWalked) {
  Begin();
  const State& state = program_->TheState();
  const Surface& field = static_cast<PictureBox&>(On("Main", "Picture1")).Picture;
  for (const Direction way : {Direction::Left, Direction::Down, Direction::Up, Direction::Right}) {
    const std::pair before{state.HeroX, state.HeroY};
    program_->KeyDown(way);
    for (int tick = 0; tick < 12; ++tick) program_->Tick(Walk());
    program_->KeyUp(way);
    EXPECT_NE(before, (std::pair{state.HeroX, state.HeroY})) << "the party has walked";
    EXPECT_EQ(StrangePixels(field, state, 40), 0);
    EXPECT_GT(StrangePixels(field, state, -1), 0) << "the party is drawn";
  }
}

TEST_F(ProgramTest, ATileThatChangesIsDrawn) {
  Begin();
  program_->Tick(Walk());
  State& state = program_->TheState();
  const Surface& field = static_cast<PictureBox&>(On("Main", "Picture1")).Picture;
  state.MapTile[2][2] = state.MapTile[2][2] == 1 ? 2 : 1;
  EXPECT_GT(StrangePixels(field, state, 40), 0);
  program_->Tick(Walk());
  EXPECT_EQ(StrangePixels(field, state, 40), 0);
}

}  // namespace
}  // namespace orvane
