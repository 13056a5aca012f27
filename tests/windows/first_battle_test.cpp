// The first minutes of a new game: names, opening, walk, a battle, the way out.
#include <gtest/gtest.h>

#include <QMessageBox>

#include "tests/windows/journey.h"

namespace orvane::test {
namespace {

// With this seed the first battle comes after some 170 steps, and one enemy alone.
constexpr uint32_t kSeed = 26;

Opening NewGame() {
  Opening opening;
  opening.Seed = kSeed;
  return opening;
}

class FirstBattle : public testing::Test {
 protected:
  FirstBattle() { EnterNames(session_); }

  Session session_{NewGame()};
};

TEST_F(FirstBattle, NamesAreThoseThatWereTyped) {
  EXPECT_EQ(session_.Facts().HeroName[0].Trimmed(), "Gou");
  EXPECT_EQ(session_.Facts().HeroName[1].Trimmed(), "Rin");
}

TEST_F(FirstBattle, EachClickShowsTheNextLineOfTheOpening) {
  for (int line = 1; line <= 19; ++line) {
    const QImage before = session_.Shown("Main");
    session_.ClickAt("Main.Picture1", {40, 150});
    Session::Until("line " + std::to_string(line),
                   [&] { return session_.Shown("Main") != before; });
  }
  HearScene(session_);
}

TEST_F(FirstBattle, HeldKeysWalkAndTheFieldIsSeenToMove) {
  HearScene(session_);
  const QImage before = session_.Shown("Main");
  Walk(session_, Qt::Key_Left);
  EXPECT_NE(session_.Shown("Main"), before);
  const int left = session_.Facts().HeroX;
  Walk(session_, Qt::Key_Right);
  EXPECT_GT(session_.Facts().HeroX, left);
}

TEST_F(FirstBattle, AKeyReleasedUnderABoxLeavesNobodyWalking) {
  HearScene(session_);
  Session::KeyDown(Qt::Key_Right);
  Session::Until("a step", [&] { return session_.Facts().KeyRight != 0; });
  session_.CloseWindow("Main");
  Session::Answer("ゲームの終了", [](QMessageBox&) {
    Session::KeyUp(Qt::Key_Right);
    Session::Press(Qt::Key_Escape);
  });
  session_.Opens("Main");
  Session::Until("the party's halt", [&] { return Rests(session_); });
  EXPECT_EQ(session_.Facts().KeyRight, 0);
}

TEST_F(FirstBattle, IsWonByBlows) {
  HearScene(session_);
  FindBattle(session_);
  for (int turn = 0; turn < 60 && !IsWon(session_); ++turn) {
    Strike(session_);
    AwaitCommand(session_);
  }
  ASSERT_TRUE(IsWon(session_));
  LeaveVictory(session_);
  Session::Until("the party at rest", [&] { return Rests(session_); });
  Quit(session_);
}

}  // namespace
}  // namespace orvane::test
