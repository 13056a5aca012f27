// What a player cannot do does nothing, and is refused with a reason.
#include <stdexcept>

#include "src/ui/reach.h"
#include "tests/unit/game/program_test.h"

namespace orvane {
namespace {

// Counts what it hears of.
class Listener : public PlayWatcher {
 public:
  void Comes(const PlayEvent& event) override { Last = event, ++Begun; }
  void Went() override { ++Over; }
  void Meddled() override { ++Touched; }

  PlayEvent Last{};
  int Begun = 0;
  int Over = 0;
  int Touched = 0;
};

class Refusals : public test::ProgramTest {
 protected:
  MenuItem& Item(const char* name) { return static_cast<MenuItem&>(On("Main", name)); }
  PictureBox& Field() { return static_cast<PictureBox&>(On("Main", "Picture1")); }
  TabStrip& Panes() { return static_cast<TabStrip&>(On("Wepon", "SSTab1")); }
  Slider& Speed() { return static_cast<Slider&>(On("Custom", "Slider1")); }
};

TEST_F(Refusals, AHandlerIsNeverEnteredUnderAnother) {
  Start();
  EXPECT_THROW(program_->Enter([&] { program_->Enter({}); }), std::logic_error);
  int ran = 0;
  program_->Enter([&] { ++ran; });
  EXPECT_EQ(ran, 1) << "the next one runs again";
}

TEST_F(Refusals, NothingRunsInAProgramThatHasEnded) {
  Begin();
  program_->End(3);
  int ran = 0;
  program_->Enter([&] { ++ran; });
  EXPECT_EQ(ran, 0);
  EXPECT_EQ(program_->Click(On("Main", "m14")), "the program has ended");
  EXPECT_EQ(program_->ExitStatus(), 3);
}

TEST_F(Refusals, AnErrorAfterTheEndBringsNoBox) {
  Begin();
  program_->Enter([&] {
    TheStage().EndProgram(0);
    throw RunError(ErrorKind::File, "late");
  });
  EXPECT_TRUE(program_->HasEnded());
  EXPECT_FALSE(TheStage().BoxStands());
  EXPECT_EQ(program_->ExitStatus(), 0);
}

TEST_F(Refusals, TheWatcherHearsOfEveryEventButNoneAfterTheEnd) {
  Begin();
  Listener listener;
  program_->SetWatcher(&listener);
  program_->Click(On("Main", "m14"));
  EXPECT_EQ(listener.Begun, 1) << "the item that the click runs is no event of its own";
  EXPECT_EQ(listener.Last.What, PlayEvent::Kind::Click);
  program_->Enter({});
  EXPECT_EQ(listener.Touched, 1);
  program_->End(0);
  EXPECT_EQ(listener.Begun, 2);
  EXPECT_EQ(listener.Over, 2);
  program_->KeyDown(Direction::Up);
  program_->Click(On("Main", "m14"));
  EXPECT_EQ(listener.Begun, 2);
  EXPECT_EQ(listener.Over, 2);
}

TEST_F(Refusals, AScreenThatFailsWhenItBecomesActiveTakesNoClick) {
  Begin();
  program_->Click(On("Main", "m32"));
  ASSERT_EQ(TheStage().Active(), &ScreenOf("Chardata"));
  quiet_.Files.Files.erase("Mapdata/map3-3.dat");
  EXPECT_EQ(program_->Click(On("Main", "m14")), "Main has gone");
  EXPECT_EQ(program_->Error()->Kind, ErrorKind::File);
}

TEST_F(Refusals, AnItemOfAMenuIsClickedOnlyWhereItIsEnabledAndNoLine) {
  Start();
  EXPECT_EQ(program_->ClickItem(Item("m12")), "m12 is disabled");
  EXPECT_EQ(program_->ClickItem(Item("m13")), "m13 is a separator");
  EXPECT_EQ(program_->Click(On("Main", "m13")), "m13 is a separator");
  EXPECT_EQ(program_->ClickItem(Item("m14")), "");
  EXPECT_TRUE(TheStage().BoxStands());
}

TEST_F(Refusals, APointIsClickedOnlyWithinTheInsideOfItsControl) {
  Start();
  int clicks = 0;
  Field().OnClick = [&clicks] { ++clicks; };
  const double width = Field().At.Width - 2 * Field().Border();
  const double height = Field().At.Height - 2 * Field().Border();
  for (const Point& point : {Point{-1, 5}, Point{5, -1}, Point{width, 5}, Point{5, height}}) {
    EXPECT_EQ(program_->ClickAt(Field(), point.X, point.Y), "the point lies outside Picture1");
  }
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(program_->ClickAt(Field(), width - 1, height - 1), "");
  EXPECT_EQ(clicks, 1);
}

TEST_F(Refusals, APointUnderAnotherControlIsThatControls) {
  Begin();
  EXPECT_EQ(program_->ClickAt(On("Wepon", "List1"), 1, 1), "Wepon is hidden");
  int clicks = 0;
  Field().OnClick = [&clicks] { ++clicks; };
  Control& panel = On("Main", "Picture5");
  panel.Visible = true;
  const Place place = PlaceOnScreen(panel);
  const Place field = PlaceOnScreen(Field());
  const double x = place.Left - field.Left + 1;
  const double y = place.Top - field.Top + 1;
  EXPECT_EQ(program_->ClickAt(Field(), x, y), "");
  EXPECT_EQ(clicks, 0) << "the message window lies before it";
  panel.Enabled = false;
  EXPECT_EQ(program_->ClickAt(Field(), x, y), "");
  EXPECT_EQ(clicks, 0) << "what is disabled still lies before it";
  panel.Visible = false;
  EXPECT_EQ(program_->ClickAt(Field(), x, y), "");
  EXPECT_EQ(clicks, 1);
}

TEST_F(Refusals, ARowIsChosenOnlyInAListThatHasItAndCanBeSeen) {
  Begin();
  program_->Click(On("Main", "m22"));
  Control& bag = On("Item", "List1");
  EXPECT_EQ(program_->Choose(bag, -1), "List1 has no row -1");
  EXPECT_EQ(program_->Choose(bag, 20), "List1 has no row 20");
  EXPECT_EQ(program_->Choose(On("Item", "Command1"), 0), "Command1 is disabled");
  On("Item", "Command1").Enabled = true;
  EXPECT_EQ(program_->Choose(On("Item", "Command1"), 0), "Command1 is no list");
  static_cast<ListBox&>(bag).OnClick = {};
  EXPECT_EQ(program_->Choose(bag, 19), "");
  EXPECT_EQ(static_cast<ListBox&>(bag).ListIndex, 19) << "it is chosen though nothing follows";
  bag.At.Left = -bag.At.Width;
  EXPECT_EQ(program_->Choose(bag, 0), "List1 is covered");
}

TEST_F(Refusals, ATabIsOpenedOnlyWhereThereIsOne) {
  Begin();
  EXPECT_EQ(program_->SelectTab(Panes(), 1), "Wepon is hidden");
  program_->Click(On("Main", "m21"));
  EXPECT_EQ(program_->SelectTab(Panes(), -1), "SSTab1 has no tab -1");
  EXPECT_EQ(program_->SelectTab(Panes(), 2), "SSTab1 has no tab 2");
  Panes().SetTabEnabled(1, false);
  EXPECT_EQ(program_->SelectTab(Panes(), 1), "tab 1 of SSTab1 is disabled");
  Panes().SetTabEnabled(1, true);
  EXPECT_EQ(program_->SelectTab(Panes(), 1), "");
  EXPECT_EQ(Panes().Tab(), 1);
}

TEST_F(Refusals, ASliderGoesFromItsLeastToItsMost) {
  Begin();
  EXPECT_EQ(program_->Slide(Speed(), 5), "Custom is hidden");
  program_->Click(On("Main", "m33"));
  EXPECT_EQ(program_->Slide(Speed(), 0), "Slider1 does not go that far");
  EXPECT_EQ(program_->Slide(Speed(), 31), "Slider1 does not go that far");
  EXPECT_EQ(Speed().Value, 15);
  EXPECT_EQ(program_->Slide(Speed(), 1), "");
  EXPECT_EQ(program_->Slide(Speed(), 30), "");
  EXPECT_EQ(Speed().Value, 30);
}

TEST_F(Refusals, NobodyGoesBackFromAHiddenScreen) {
  Begin();
  EXPECT_EQ(program_->GoBack(ScreenOf("Item")), "Item is hidden");
}

TEST_F(Refusals, EnterNeedsAButtonForIt) {
  Begin();
  EXPECT_EQ(program_->Confirm(ScreenOf("Main")), "Main has no button for Enter");
}

TEST_F(Refusals, ATimerThatIsOffOrWithinItsTickDoesNotTick) {
  Begin();
  const State& state = program_->TheState();
  const int frame = state.FieldFrame;
  Walk().InTick = true;
  program_->Tick(Walk());
  EXPECT_EQ(state.FieldFrame, frame);
  Walk().InTick = false;
  Walk().SetEnabled(false);
  program_->Tick(Walk());
  EXPECT_EQ(state.FieldFrame, frame);
  Walk().SetEnabled(true);
  program_->Tick(Walk());
  EXPECT_EQ(state.FieldFrame, frame + 1);
}

TEST_F(Refusals, ABoxIsNotAnsweredWhileTheProgramIsHeld) {
  Begin();
  program_->Click(On("Main", "m14"));
  program_->Enter([&] { TheStage().Hold(100); });
  EXPECT_EQ(program_->Answer(BoxAnswer::Ok), "the program stands still");
  EXPECT_TRUE(TheStage().BoxStands());
  program_->EndHold();
  EXPECT_EQ(program_->Answer(BoxAnswer::Ok), "");
  EXPECT_TRUE(program_->HasEnded());
}

}  // namespace
}  // namespace orvane
