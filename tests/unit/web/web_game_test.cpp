// The whole game as a page has it, without a page.
#include "src/frontend/web/web_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "src/platform/path_text.h"
#include "tests/game_files.h"
#include "tests/unit/web/paper_page.h"

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::Not;

class WebGameTest : public testing::Test {
 protected:
  WebGameTest() {
    game_.Files().Files = test::ReadGameFiles(PathOf(ORVANE_GAME_FOLDER));
    game_.Begin();
  }

  Screen& Of(const std::string& name) { return *game_.TheProgram().TheStage().Find(name); }
  template <class Kind>
  Kind& Find(const std::string& screen, const std::string& name) {
    return dynamic_cast<Kind&>(*Of(screen).Find(name));
  }
  int NumberOf(const std::string& screen, const std::string& name) {
    return game_.TheMirror().NumberOf(Of(screen).Find(name));
  }

  PaperPage page_;
  Translator texts_;
  WebGame game_{page_, 26, texts_};
};

TEST_F(WebGameTest, TellsAllAtFirstAndThenWhatHasChanged) {
  const std::string first = game_.Changes();
  EXPECT_THAT(first, HasSubstr("始めから"));
  EXPECT_THAT(first, HasSubstr(R"("wholeWidth":481,"wholeHeight":304)"));
  EXPECT_EQ(game_.Changes(), "");
  Find<Label>("Main", "Label2").Caption = "別の文";
  const std::string second = game_.Changes();
  EXPECT_THAT(second, HasSubstr("別の文"));
  EXPECT_THAT(second, Not(HasSubstr("始めから")));
  EXPECT_EQ(game_.Changes(), "");
}

TEST_F(WebGameTest, TellsOfPixelsOnlyWhereTheyHaveChanged) {
  game_.Changes();
  Surface& field = Find<PictureBox>("Main", "Picture1").Picture;
  FillBox(field, 10, 20, 12, 21, Rgb(1, 2, 3));
  EXPECT_EQ(game_.Changes(), "");  // not published
  field.Refresh();
  EXPECT_THAT(game_.Changes(), HasSubstr(R"("x":10,"y":20,"width":3,"height":2)"));
}

TEST_F(WebGameTest, NamesEveryControlOnce) {
  const std::string nature = game_.TheMirror().Nature();
  EXPECT_THAT(nature, HasSubstr("Text1(0)"));
  EXPECT_THAT(nature, HasSubstr("主人公（男）の名前"));
  EXPECT_THAT(nature, Not(HasSubstr("Timer1")));
}

TEST_F(WebGameTest, ABoxComesAndGoes) {
  game_.Changes();
  game_.Send([this](Program& program) { program.Click(Find<MenuItem>("Main", "m14")); });
  EXPECT_THAT(game_.Changes(), HasSubstr("終了しますか？"));
  game_.Send([](Program& program) { program.Answer(BoxAnswer::Cancel); });
  EXPECT_THAT(game_.Changes(), HasSubstr(R"("boxes":[])"));
  EXPECT_FALSE(game_.TheProgram().HasEnded());
}

TEST_F(WebGameTest, AHoldShowsNothingUntilItsEnd) {
  game_.Changes();
  game_.Send([this](Program& program) {
    program.Enter([this] {
      Find<Label>("Main", "Label2").Caption = "後で";
      game_.TheProgram().TheStage().Hold(300);
    });
  });
  EXPECT_EQ(game_.HeldFor(), 300);
  EXPECT_EQ(game_.Changes(), "");
  EXPECT_EQ(game_.Wait(), -1);
  game_.TheProgram().EndHold();
  EXPECT_THAT(game_.Changes(), HasSubstr("後で"));
}

TEST_F(WebGameTest, AChosenListIsToldAnewThoughItsRowIsAsBefore) {
  game_.Send([this](Program& program) { program.Click(Find<MenuItem>("Main", "m11")); });
  game_.Changes();
  game_.TheMirror().Forget(Find<FileListBox>("Load", "File1"));
  EXPECT_THAT(game_.Changes(), HasSubstr(R"("row":-1)"));
}

TEST_F(WebGameTest, AFileIsReplacedOnceThePageHasKeptIt) {
  const std::string before = game_.Files().Files["Save03.sav"];
  std::string outcome = "none";
  const auto tell = [&outcome](const std::string& failure) { outcome = failure; };
  game_.Files().Replace("Save03.sav", "new", tell);
  EXPECT_EQ(page_.Asked.back(), "keep 1 Save03.sav 3");
  EXPECT_EQ(outcome, "none");
  EXPECT_EQ(game_.Files().Files["Save03.sav"], before);
  game_.Kept(1, "full");
  EXPECT_EQ(outcome, "full");
  EXPECT_EQ(game_.Files().Files["Save03.sav"], before);
  game_.Files().Replace("Save03.sav", "new", tell);
  game_.Kept(2, "");
  EXPECT_EQ(outcome, "");
  EXPECT_EQ(game_.Files().Files["Save03.sav"], "new");
  game_.Kept(2, "");  // a second answer is none
}

TEST_F(WebGameTest, TheKeysReachTheFieldOnlyWhileThePageHasThem) {
  const auto press = [this](bool down) { return game_.TakeKey(37, down, false, false); };
  const State& state = game_.TheProgram().TheState();
  press(true);
  EXPECT_EQ(state.KeyLeft, -1);
  // Let go in another program.
  game_.SetKeyFacts({false, false, false});
  game_.SetKeyFacts({true, false, false});
  EXPECT_EQ(state.KeyLeft, 0);
  game_.SetKeyFacts({true, true, false});
  press(true);
  EXPECT_EQ(state.KeyLeft, 0);
}

TEST_F(WebGameTest, AThumbHoldsTheKeyOnItsSide) {
  const State& state = game_.TheProgram().TheState();
  EXPECT_EQ(game_.TakeThumb(0.05, 0.1, true), std::nullopt);
  EXPECT_EQ(game_.TakeThumb(-0.6, 0.5, true), Direction::Left);
  EXPECT_EQ(state.KeyLeft, -1);
  EXPECT_EQ(game_.TakeThumb(0.1, 0, true), Direction::Left);
  EXPECT_EQ(state.KeyLeft, -1);
  EXPECT_EQ(game_.TakeThumb(0.4, 0.5, true), Direction::Down);
  EXPECT_EQ(state.KeyLeft, 0);
  EXPECT_EQ(state.KeyDown, -1);
  EXPECT_EQ(game_.TakeThumb(0.4, 0.5, false), std::nullopt);
  EXPECT_EQ(state.KeyDown, 0);
}

TEST_F(WebGameTest, APadMovesWhereNothingWalks) {
  game_.Send([this](Program& program) { program.Click(Find<CommandButton>("Main", "Command1")); });
  PadState state{};
  state[static_cast<size_t>(PadButton::Down)] = true;
  game_.TakePad(state, 0, 0);
  EXPECT_EQ(page_.Asked.back(), "move 3");
  game_.TakePad({}, 0, 0);
  state = {};
  state[static_cast<size_t>(PadButton::Accept)] = true;
  game_.TakePad(state, 0, 0);
  EXPECT_EQ(page_.Asked.back(), "accept");
}

}  // namespace
}  // namespace orvane
