#include "tests/windows/journey.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <cstdlib>
#include <stdexcept>

namespace orvane::test {
namespace {

// A hurried battle takes seconds.
constexpr int kBattlePatience = 30000;

// So often the toolkit's events are looked at for the next tick.
constexpr int kTicksAreNear = 20;

struct Spot {
  int X = 0;
  int Y = 0;
  bool operator==(const Spot&) const = default;
};

Spot SpotOf(Session& session) {
  return {session.Facts().HeroX, session.Facts().HeroY};
}

}  // namespace

void EnterNames(Session& session) {
  session.Click("Main.Command1");
  session.Opens("InputName");
  EXPECT_EQ(session.KeysAt("InputName"), "Text1(0)") << "ready for the first name";
  session.Type("Gou");
  session.Click("InputName.Text1(1)");
  session.Type("Rin");
  session.Click("InputName.OKButton");
  session.Closes("InputName");
  session.Opens("Main");
}

void HearScene(Session& session) {
  Session::Until("a scene", [&] { return !session.MenuIsOn("Main.m3"); });
  for (int line = 0; line < 60 && !session.MenuIsOn("Main.m3"); ++line) {
    session.ClickAt("Main.Picture1", {40, 150});
  }
  ASSERT_TRUE(session.MenuIsOn("Main.m3")) << "the scene does not end";
}

void LoadSave(Session& session, int row) {
  session.ChooseItem("Main.m11");
  session.Opens("Load");
  session.ChooseRow("Load.File1", row);
  session.Click("Load.OKButton");
  session.Closes("Load");
  session.Opens("Main");
  ASSERT_TRUE(session.MenuIsOn("Main.m2")) << "the field";
  Session::Until("the party at rest", [&] { return Rests(session); });
}

bool Rests(Session& session) {
  const State& state = session.Facts();
  if (state.KeyUp != 0 || state.KeyDown != 0 || state.KeyLeft != 0 || state.KeyRight != 0)
    return false;
  const Spot before = SpotOf(session);
  const Int32 frame = state.FieldFrame;
  for (int i = 0; i < kTicksAreNear && state.FieldFrame == frame; ++i) Session::Settle();
  return state.FieldFrame != frame && SpotOf(session) == before;
}

void Walk(Session& session, Qt::Key key) {
  const Spot before = SpotOf(session);
  Walk(session, key, [&] {
    const Spot now = SpotOf(session);
    return std::abs(now.X - before.X) + std::abs(now.Y - before.Y) >= 16;
  });
}

void Walk(Session& session, Qt::Key key, const std::function<bool()>& until) {
  Session::KeyDown(key);
  Session::Until("a walk", until);
  Session::KeyUp(key);
  Session::Until("the party's halt", [&] { return Rests(session); });
}

void FindBattle(Session& session) {
  QElapsedTimer clock;
  clock.start();
  while (!session.Shows("Battle")) {
    if (clock.elapsed() > kBattlePatience) throw std::runtime_error("no battle came");
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) {
      if (!session.HasKeys("Main")) break;
      Session::KeyDown(key);
      for (int i = 0; i < 20; ++i) Session::Settle();
      Session::KeyUp(key);
    }
  }
  session.Opens("Battle");
  EXPECT_FALSE(session.Shows("Main")) << "the field's window goes";
  AwaitCommand(session);
}

void MeetDragon(Session& session) {
  Session::KeyDown(Qt::Key_Up);
  Session::Until("the dragon", [&] { return session.Shows("Battle"); });
  session.Opens("Battle");
  Session::KeyUp(Qt::Key_Up);
  AwaitCommand(session);
}

void AwaitCommand(Session& session) {
  Session::Until(
      "a command", [&] { return session.CanBeUsed("Battle.Command1") || IsWon(session); },
      kBattlePatience);
}

void Strike(Session& session, int row) {
  session.Click("Battle.Command1");
  session.ChooseRow("Battle.List2", row);
}

void WinByLastTechnique(Session& session) {
  for (int turn = 0; turn < 60 && !IsWon(session); ++turn) {
    if (session.CanBeUsed("Battle.Command3")) {
      session.Click("Battle.Command3");
      Session::PressAll({Qt::Key_End, Qt::Key_Return});
      if (session.CanBeUsed("Battle.List2")) session.ChooseRow("Battle.List2", 1);
    } else {
      Strike(session);
    }
    AwaitCommand(session);
  }
  ASSERT_TRUE(IsWon(session)) << "the dragon does not fall";
  LeaveVictory(session);
}

bool IsWon(Session& session) {
  return session.Widget("Battle.Picture10").isVisible();
}

void LeaveVictory(Session& session) {
  session.ClickAt("Battle.Picture1", {12, 242});
  session.Closes("Battle");
  session.Opens("Main");
}

void AskToQuit(Session& session, Qt::Key answer) {
  session.CloseWindow("Main");
  Session::Answer("ゲームの終了", answer);
}

void Quit(Session& session) {
  AskToQuit(session, Qt::Key_Return);
  EXPECT_TRUE(session.Running().HasEnded());
  EXPECT_EQ(session.Running().ExitStatus(), 0);
}

}  // namespace orvane::test
