// The size of the windows: what it starts with, the keys that change it, and what the windows look
// like in each size, held against what they look like in the size that they are drawn for.
#include <gtest/gtest.h>
#include <qpa/qplatformwindow.h>

#include <QMap>
#include <QMessageBox>
#include <cmath>
#include <optional>

#include "tests/windows/game_folder.h"
#include "tests/windows/journey.h"
#include "tests/windows/kept_pictures.h"
#include "tests/windows/likeness.h"

namespace orvane::test {
namespace {

// Per cent of the size that everything is drawn for.
constexpr int kDrawn = 100;
constexpr int kBest = 250;      // on the usual screen
constexpr int kMayBeLost = 10;  // pixels: a text that is cut off loses dozens
constexpr auto kControl = Qt::ControlModifier;

class Zooming : public testing::Test {
 protected:
  Opening InFolder() const {
    Opening opening;
    opening.Folder = folder_.Path();
    opening.Scale = std::nullopt;
    return opening;
  }

  static void Larger() { Session::Press(Qt::Key_Plus, kControl); }
  static void Smaller() { Session::Press(Qt::Key_Minus, kControl); }
  static void Best() { Session::Press(Qt::Key_0, kControl); }

  // A window's inside in pixels of the screen.
  QRect Inside(const std::string& screen) {
    return session_.Window(screen).windowHandle()->handle()->geometry();
  }
  // To a pixel, since the toolkit counts in whole pixels of its own.
  bool HasSize(const std::string& screen, int percent) {
    const QSize drawn = session_.Window(screen).size();
    const QSize size = Inside(screen).size();
    const Screen& model = session_.Model(screen);
    const int menu = screen == "Main" ? kMenu : 0;
    return std::abs(size.width() - model.Width * percent / 100) <= 2 &&
           std::abs(size.height() - (model.Height + menu) * percent / 100) <= 2 &&
           std::abs(drawn.width() - model.Width) <= 1;
  }
  // The windows come to that size, and the one with the keyboard has it still.
  void GrowsTo(int percent, const std::string& screen = "Main") {
    Session::Until("the scale of " + std::to_string(percent) + " per cent",
                   [&] { return HasSize(screen, percent); });
    session_.Opens(screen);
    percent_ = percent;
  }
  bool CoversDisplay(const std::string& screen) {
    const ScreenFacts& display = TheScreen();
    return Inside(screen) == QRect(0, 0, int(display.Whole.Width), int(display.Whole.Height));
  }

  // Keeps the picture of a window at this size. At another size than the one that it is drawn for
  // it must show the same, text and all.
  void Look(const std::string& name, QWidget& window) {
    const QImage found = Session::Shown(window);
    if (percent_ == kDrawn) {
      drawn_[name] = found;
      return;
    }
    ASSERT_FALSE(drawn_[name].isNull()) << name << " has not been seen as it is drawn";
    EXPECT_LE(PixelsWithoutTheirLike(drawn_[name], found), kMayBeLost)
        << name << " at " << percent_ << " per cent";
  }
  void Look(const std::string& name, const std::string& screen) {
    Look(name, session_.Window(screen));
  }
  // A picture in that place, in even pixels of what its window shows, is enlarged without
  // smoothing.
  void IsCrisp(const std::string& name, const std::string& screen, const QRect& place) {
    const QImage found = session_.Shown(screen);
    EXPECT_EQ(PixelsNotCrisp(drawn_[name], found, place, percent_ / 50), 0)
        << name << " at " << percent_ << " per cent";
  }

  // From the best scale, with which the game opens, to one that everything fits into at twice.
  void BeginAtTwice() {
    GrowsTo(kBest);
    Smaller();
    GrowsTo(200);
  }
  void SeeTitle(int percent) {
    GrowsTo(percent);
    Look("title", "Main");
    IsCrisp("title", "Main", {10, 2 + kMenu, 470, 80});
  }
  void SeeField(int percent) {
    GrowsTo(percent);
    Session::Until("the party at rest", [&] { return Rests(session_); });
    Look("field", "Main");
    IsCrisp("field", "Main", {10, 2 + kMenu, 470, 240});
  }
  void LookAround();
  void SeeBattle(int percent);

  static constexpr int kMenu = 18;  // pixels of the game that the menu bar takes
  GameFolder folder_;
  int percent_ = 0;
  QMap<std::string, QImage> drawn_;
  Session session_{InFolder()};
};

// His things go to him and off again, the coin is nearly thrown away, her page is opened: each by a
// click in this size, and what it shows tells whether the click came to the right place.
void Zooming::LookAround() {
  SeeField(percent_);
  session_.ChooseItem("Main.m21");
  session_.Opens("Wepon");
  EXPECT_TRUE(HasSize("Wepon", percent_));
  session_.ChooseRow("Wepon.List1", 1);
  session_.Click("Wepon.Command1");
  session_.ChooseRow("Wepon.List1", 3);
  session_.Click("Wepon.Command1");
  Look("worn", "Wepon");
  session_.Click("Wepon.Command2");
  session_.Click("Wepon.Command5");
  session_.Closes("Wepon");
  session_.ChooseItem("Main.m22");
  session_.Opens("Item");
  session_.ChooseRow("Item.List1", 0);
  session_.Click("Item.Command2");
  Session::Answer("アイテム削除", [&](QMessageBox& box) {
    Look("question", box);
    Session::Press(Qt::Key_Escape);
  });
  Look("things", "Item");
  session_.CloseWindow("Item");
  session_.Closes("Item");
  session_.ChooseItem("Main.m32");
  session_.Opens("Chardata");
  session_.OpenTab("Chardata.SSTab1", 1);
  Look("her", "Chardata");
  IsCrisp("her", "Chardata", {20, 46, 70, 70});
  session_.Click("Chardata.Command2");
  session_.Closes("Chardata");
  session_.Opens("Main");
}

// The battle with a list and without.
void Zooming::SeeBattle(int percent) {
  GrowsTo(percent, "Battle");
  Look("battle", "Battle");
  IsCrisp("battle", "Battle", {10, 10, 430, 262});
  session_.Click("Battle.Command3");
  Look("techniques", "Battle");
  session_.ChooseRow("Battle.List1", 0);
  AwaitCommand(session_);
}

// What is beside the scene on the full screen, under the menu bar: black from the left edge to the
// right one but for the scene in the middle.
void ExpectBlackBeside(const QImage& shown) {
  for (int y = shown.height() / 8; y < shown.height(); ++y) {
    for (int x = 0; x < 20; ++x) {
      ASSERT_EQ(shown.pixel(x, y) & 0xFFFFFF, 0U) << "in the west";
      ASSERT_EQ(shown.pixel(shown.width() - 1 - x, y) & 0xFFFFFF, 0U) << "in the east";
    }
  }
}

TEST_F(Zooming, GoesThroughEveryScaleThatFitsAndBackToTheBest) {
  BeginAtTwice();
  Smaller();
  GrowsTo(150);
  Smaller();
  SeeTitle(100);
  Smaller();  // there is nothing smaller
  SeeTitle(100);
  Session::Press(Qt::Key_Equal, kControl);
  SeeTitle(150);
  for (const int percent : {200, 250, 300, 350}) {
    Larger();
    SeeTitle(percent);
  }
  Larger();  // 400 per cent is too wide
  SeeTitle(350);
  Smaller();
  GrowsTo(300);
  Best();
  GrowsTo(kBest);
}

TEST_F(Zooming, LooksAndWorksTheSameInEachScale) {
  const std::string before = folder_.Bytes("Save01.sav");
  BeginAtTwice();
  LoadSave(session_, kTravellersRow);
  Smaller();
  Smaller();
  for (const int percent : {100, 150, 200}) {
    GrowsTo(percent);
    LookAround();
    Larger();
  }
  EXPECT_EQ(folder_.Bytes("Save01.sav"), before);
}

TEST_F(Zooming, PaintsTheLastPixelsOfAWindowWhoseSizeIsNoWholeNumber) {
  BeginAtTwice();
  LoadSave(session_, kTravellersRow);
  Larger();
  GrowsTo(250);
  session_.ChooseItem("Main.m33");
  session_.Opens("Custom");
  const QImage shown = session_.Shown("Custom");
  constexpr int light = 204;
  for (int x = 0; x < shown.width(); ++x) {
    ASSERT_GT(qGreen(shown.pixel(x, shown.height() - 1)), light) << "in the south";
  }
  for (int y = 0; y < shown.height(); ++y) {
    ASSERT_GT(qGreen(shown.pixel(shown.width() - 1, y)), light) << "in the east";
  }
  session_.CloseWindow("Custom");
  session_.Closes("Custom");
}

TEST_F(Zooming, FillsTheScreenAndComesBackToItsPlace) {
  BeginAtTwice();
  session_.Window("Main").move(50, 150);
  Session::Settle();
  const QRect place = Inside("Main");
  Session::Press(Qt::Key_F11);
  Session::Until("the full screen", [&] { return CoversDisplay("Main"); });
  session_.Opens("Main");
  ExpectBlackBeside(session_.Shown("Main"));
  Session::Press(Qt::Key_F11);
  GrowsTo(200);
  EXPECT_EQ(Inside("Main"), place);
}

// The keys walk and a menu opens by a click, in whatever scale the screen allows.
TEST_F(Zooming, IsPlayedOnTheFullScreen) {
  BeginAtTwice();
  LoadSave(session_, kTravellersRow);
  Session::Press(Qt::Key_F11);
  Session::Until("the full screen", [&] { return CoversDisplay("Main"); });
  session_.Opens("Main");
  const QImage before = session_.Shown("Main");
  Walk(session_, Qt::Key_Right);
  EXPECT_NE(session_.Shown("Main"), before);
  session_.ChooseItem("Main.m32");
  session_.Opens("Chardata");
  // It is higher than the field, and has a title.
  const double scale = double(Inside("Chardata").width()) / session_.Model("Chardata").Width;
  EXPECT_NEAR(scale, (TheScreen().Whole.Height - kTitleHeight) / session_.Model("Chardata").Height,
              0.005);
  EXPECT_TRUE(CoversDisplay("Main")) << "under the window";
  session_.Click("Chardata.Command1");
  session_.Closes("Chardata");
  session_.Opens("Main");
  Session::Press(Qt::Key_F11);
  GrowsTo(200);
}

TEST_F(Zooming, ShowsTheBattleInEachScaleAndOnTheFullScreen) {
  BeginAtTwice();
  LoadSave(session_, kBeforeDragonRow);
  MeetDragon(session_);
  Smaller();
  Smaller();
  for (const int percent : {100, 150, 200}) {
    SeeBattle(percent);
    if (percent < 200) Larger();
  }
  Session::Press(Qt::Key_F11);
  Session::Until("the battle on the full screen", [&] { return CoversDisplay("Battle"); });
  session_.Opens("Battle");
  Session::Press(Qt::Key_F11);
  GrowsTo(200, "Battle");
}

// On a desktop whose settings make everything larger the windows' scale stays what it is anywhere.
// Played on such screens by processes of their own.
class OnLargerLetters : public Zooming {};

TEST_F(OnLargerLetters, WindowsAreWhatTheyAreOnAnyOtherDesktop) {
  if (TheScreen().Factor == 1) GTEST_SKIP() << "this screen's letters are as usual";
  const int best = TheScreen().Whole.Height < 1440 ? kBest : 300;
  GrowsTo(best);
  LoadSave(session_, kTravellersRow);
  for (int percent = best; percent > 100; percent -= 50) Smaller();
  GrowsTo(100);
  LookAround();
  if (CanCompare()) {
    EXPECT_LE(PixelsWithoutTheirLike(KeptPicture("1x/field"), drawn_["field"]), kMayBeLost);
    EXPECT_LE(PixelsWithoutTheirLike(KeptPicture("1x/her"), drawn_["her"]), kMayBeLost);
  }
  for (int percent = 150; percent <= best; percent += 50) {
    Larger();
    GrowsTo(percent);
    LookAround();
  }
}

}  // namespace
}  // namespace orvane::test
