#include "tests/monkey/life.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "src/replay/replayer.h"
#include "src/ui/controls.h"
#include "src/ui/reach.h"
#include "tests/monkey/home.h"
#include "tests/monkey/invariants.h"

namespace orvane::monkey {
namespace {

constexpr int kStepsHome = 30000;
constexpr double kMostSeconds = 5;  // for an action, on a busy machine under the sanitizers

BoxAnswer AnyAnswer(Dice& dice) {
  return static_cast<BoxAnswer>(dice.Between(0, 3));
}

Direction AnyKey(Dice& dice) {
  return static_cast<Direction>(dice.Between(0, 3));
}

}  // namespace

Life::Life(uint64_t seed, const Files& folder)
    : dice_(seed),
      sound_(dice_),
      luck_(dice_, static_cast<uint32_t>(seed)),
      recorder_({sound_, luck_, disk_}) {
  disk_.Files = folder;
  begins_ = Prepare(dice_, disk_.Files);
  disk_.AnswersLater = dice_.OnceIn(2);
  if (dice_.OnceIn(8)) disk_.Failure = "no room";
  program_ = std::make_unique<Program>(recorder_.TheServices());
  recorder_.Watch(*program_);
  program_->SetWatcher(&recorder_);
}

int Life::MenusBesideBattle() const {
  const Stage& stage = program_->TheStage();
  if (stage.Find("Main")->IsVisible() || !stage.Find("Battle")->IsVisible()) return 0;
  const auto& screens = stage.Screens();
  return static_cast<int>(std::count_if(screens.begin(), screens.end(), [](const Screen* screen) {
    return screen->IsVisible() && screen->Name() != "Battle";
  }));
}

template <class Action>
void Life::Do(Action action) {
  ++actions_;
  const int menus = MenusBesideBattle();
  const auto begin = std::chrono::steady_clock::now();
  try {
    action(*program_);
  } catch (const std::exception& failure) {
    throw Fault(std::string("an exception of the program's own: ") + failure.what());
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  if (took.count() > kMostSeconds) throw Fault("an action that took seconds");
  if (MenusBesideBattle() < menus) walk_goes_on_ = true;
  if (program_->TheStage().Find("Main")->IsVisible()) walk_goes_on_ = false;
  Check();
}

void Life::Check() {
  NoteReached();
  if (!disk_.Fault.empty()) throw Fault(disk_.Fault);
  const bool may_fail = !begins_.IsSound || !disk_.Failure.empty();
  if (program_->Error() && !may_fail) throw Fault("a run-time error: " + program_->TextOfError());
  std::string broken = Broken(*program_, {begins_.IsSound, walk_goes_on_});
  if (!broken.empty()) throw Fault(broken);
}

void Life::NoteReached() {
  const State& state = program_->TheState();
  const Stage& stage = program_->TheStage();
  if (stage.Find("Battle")->IsVisible()) {
    reached_.Battle = true;
    const bool acts = state.ActionState > 0;
    reached_.Technique |= acts && state.ActionKind == Action::Technique;
    reached_.Spell |=
        acts && (state.ActionKind == Action::Spell || state.ActionKind == Action::Heal);
    reached_.Thing |= acts && state.ActionKind == Action::Item;
    reached_.Dragon |= state.BossFight == kTrue;
    reached_.LastDragon |= state.LastBossFight == kTrue;
  }
  reached_.LastStage |= state.Round == 4 && state.LastBossFight == kTrue;
  reached_.Ending |= stage.Find("Ending")->IsVisible();
}

void Life::Begin() {
  Stage& stage = program_->TheStage();
  const auto on = [&](const char* screen, const char* control) -> Control& {
    return *stage.Find(screen)->Find(control);
  };
  if (begins_.What == Start::NewGame || begins_.What == Start::DamagedFile) {
    Do([&](Program& p) { p.Click(on("Main", "Command1")); });
    Do([&](Program& p) {
      p.EnterText(static_cast<TextBox&>(on("InputName", "Text1(0)")), "カイ");
    });
    Do([&](Program& p) {
      p.EnterText(static_cast<TextBox&>(on("InputName", "Text1(1)")), "リナ");
    });
    Do([&](Program& p) { p.Confirm(*stage.Find("InputName")); });
    const int lines = dice_.OnceIn(4) ? 3 : 20;
    for (int line = 0; line < lines; ++line) {
      Do([&](Program& p) { p.Click(on("Main", "Picture1")); });
    }
    return;
  }
  Do([&](Program& p) { p.Click(on("Main", "m11")); });
  Do([&](Program& p) { p.Choose(on("Load", "File1"), 0); });
  Do([&](Program& p) { p.Click(on("Load", "OKButton")); });
}

void Life::Play(int actions) {
  Check();
  if (!dice_.OnceIn(20)) Begin();
  constexpr int longer = 5;  // the end of the story is far
  if (begins_.What == Start::Ending) actions *= longer;
  while (actions_ < actions && !program_->HasEnded()) Act();
  GoHome();
}

Screen& Life::AnyScreen() {
  Stage& stage = program_->TheStage();
  if (stage.Active() != nullptr && !dice_.OnceIn(8)) return *stage.Active();
  return *dice_.OneOf(stage.Screens());
}

Timer* Life::TickingTimer() {
  std::vector<Timer*> ticking;
  std::vector<Timer*> all;
  for (const Screen* screen : program_->TheStage().Screens()) {
    for (Control* control : screen->Controls()) {
      if (control->Kind() != ControlKind::Timer) continue;
      all.push_back(static_cast<Timer*>(control));
      if (all.back()->Ticks()) ticking.push_back(all.back());
    }
  }
  return dice_.OneOf(ticking.empty() || dice_.OnceIn(20) ? all : ticking);
}

std::string Life::AnyText() {
  const std::vector<std::string> texts = {"",          " ",
                                          "カイ",      "あいうえおかきくけこさしすせそ",
                                          "\xFF\xFE",  "abc\ndef",
                                          "a\"b\\c,d", "＼～－",
                                          "😀😀",        std::string(3000, 'x'),
                                          "リナ",      std::string("a\0b", 3)};
  return dice_.OneOf(texts);
}

void Life::ActOnList(Control& list, int rows) {
  const int row = dice_.OnceIn(10) ? dice_.Between(-2, rows + 2) : dice_.Between(0, rows);
  Do([&](Program& p) { p.Choose(list, row); });
}

void Life::ActOn(Control& control) {
  switch (control.Kind()) {
    case ControlKind::List:
      return ActOnList(control, static_cast<ListBox&>(control).ListCount());
    case ControlKind::FileList:
      return ActOnList(control, static_cast<int>(static_cast<FileListBox&>(control).Rows.size()));
    case ControlKind::Tabs: {
      const int tab = dice_.Between(-1, 3);
      return Do([&](Program& p) { p.SelectTab(static_cast<TabStrip&>(control), tab); });
    }
    case ControlKind::Field: {
      const std::string text = AnyText();
      return Do([&](Program& p) { p.EnterText(static_cast<TextBox&>(control), text); });
    }
    case ControlKind::Slider: {
      const int value = dice_.Between(-3, 60);
      return Do([&](Program& p) { p.Slide(static_cast<Slider&>(control), value); });
    }
    case ControlKind::Menu:
      if (dice_.OnceIn(2)) {
        return Do([&](Program& p) { p.ClickItem(static_cast<MenuItem&>(control)); });
      }
      break;
    case ControlKind::Picture:
      if (dice_.OnceIn(2)) {
        const double x = dice_.Between(-2, 520);
        const double y = dice_.Between(-2, 400) + 0.5;
        return Do([&](Program& p) { p.ClickAt(control, x, y); });
      }
      break;
    default:
      break;
  }
  Do([&](Program& p) { p.Click(control); });
}

void Life::Act() {
  if (ticks_left_ > 0) {
    --ticks_left_;
    return Do([&](Program& p) { p.Tick(*burst_); });
  }
  constexpr int between_turns = 3;
  if (dice_.OnceIn(between_turns) && program_->TheStage().Find("Battle")->IsVisible()) {
    return TakeTurn();
  }
  if (begins_.IsStrong && !dice_.OnceIn(begins_.What == Start::Ending ? 5 : 2)) return HurryOn();
  constexpr int between_errands = 40;
  if (dice_.OnceIn(between_errands) && IsHome(*program_)) return RunErrand();
  const bool box = program_->TheStage().BoxStands();
  const int what = dice_.Between(0, 99);
  if (box && what < 40) {
    const BoxAnswer answer = AnyAnswer(dice_);
    return Do([&](Program& p) { p.Answer(answer); });
  }
  if (what < 35) {
    burst_ = TickingTimer();
    ticks_left_ = dice_.OnceIn(3) ? 0 : dice_.Between(1, 40);
    return Do([&](Program& p) { p.Tick(*burst_); });
  }
  if (what < 60) {
    // Up comes oftener: doors and dragons are there.
    const Direction key = dice_.OnceIn(3) ? Direction::Up : AnyKey(dice_);
    const bool down = !dice_.OnceIn(3);
    return Do([&](Program& p) { down ? p.KeyDown(key) : p.KeyUp(key); });
  }
  if (what < 88) {
    const Screen& screen = AnyScreen();
    return ActOn(*dice_.OneOf(screen.Controls()));
  }
  Meddle();
}

// On to the end of the story: fights are won, scenes seen, and dragons wait upward.
void Life::HurryOn() {
  if (!IsHome(*program_)) return Do([](Program& p) { StepHome(p); });
  Timer& walk = *static_cast<Timer*>(program_->TheStage().Active()->Find("Timer1"));
  const State& state = program_->TheState();
  const Direction key = WayUp(state).value_or(Direction::Up);
  const std::array<bool, 4> held = {state.KeyLeft == kTrue, state.KeyUp == kTrue,
                                    state.KeyRight == kTrue, state.KeyDown == kTrue};
  if (held.at(static_cast<size_t>(key))) return Do([&](Program& p) { p.Tick(walk); });
  Do([&](Program& p) { p.KeyDown(key); });
}

// What takes several steps that chance alone seldom finds: a save, things used, worn and thrown
// away.
void Life::RunErrand() {
  constexpr int choices = 6;
  const std::vector<const char*> menus = {"m11", "m12", "m12", "m21", "m22", "m22", "m33"};
  Stage& stage = program_->TheStage();
  Control& item = *stage.Find("Main")->Find(dice_.OneOf(menus));
  Do([&](Program& p) { p.Click(item); });
  for (int i = 0; i < choices && stage.IsRunning() && !dice_.OnceIn(10); ++i) {
    if (stage.BoxStands()) {
      const bool asks = stage.Boxes().back().Shown.Buttons == BoxButtons::YesNo;
      Do([&](Program& p) { p.Answer(asks ? BoxAnswer::Yes : BoxAnswer::Ok); });
      continue;
    }
    for (Control* control : std::vector<Control*>(stage.Active()->Controls())) {
      const ControlKind kind = control->Kind();
      const bool is_list = kind == ControlKind::List || kind == ControlKind::FileList;
      if (stage.IsRunning() && (is_list || (kind == ControlKind::Button && dice_.OnceIn(3)))) {
        ActOn(*control);
      }
    }
  }
}

// A hero's turn from its command to its end: chance alone comes to nothing but strokes there.
void Life::TakeTurn() {
  constexpr int steps = 60;
  Stage& stage = program_->TheStage();
  const Screen& battle = *stage.Find("Battle");
  Timer& action = *static_cast<Timer*>(battle.Find("Timer1"));
  if (dice_.OnceIn(2)) {
    auto& tabs = *static_cast<TabStrip*>(battle.Find("SSTab1"));
    Do([&](Program& p) { p.SelectTab(tabs, tabs.Tab() ^ 1); });
  }
  std::vector<Control*> commands;
  for (const char* name : {"Command1", "Command2", "Command3", "Command4", "Command5"}) {
    if (Control* command = battle.Find(name); CanClick(*command)) commands.push_back(command);
  }
  if (commands.empty()) return;
  Control& command = *dice_.OneOf(commands);
  Do([&](Program& p) { p.Click(command); });
  for (int i = 0; i < steps && battle.IsVisible() && stage.IsRunning(); ++i) {
    if (stage.BoxStands()) {
      Do([&](Program& p) { p.Answer(BoxAnswer::Ok); });
      continue;
    }
    if (action.Ticks()) {
      Do([&](Program& p) { p.Tick(action); });
      continue;
    }
    const auto lists = UsableOf(battle, ControlKind::List);
    if (lists.empty()) return;
    auto& list = static_cast<ListBox&>(*dice_.OneOf(lists));
    const int last = std::max(0, list.ListCount() - 1);
    const int row = dice_.OnceIn(8) ? 0 : dice_.Between(std::min(1, last), last);  // 0 leads back
    Do([&](Program& p) { p.Choose(list, row); });
  }
}

// What comes from the window's own controls, from outside, and at wrong times.
void Life::Meddle() {
  Screen& screen = AnyScreen();
  switch (dice_.Between(0, 9)) {
    case 0:
      if (screen.Name() == "Main" && !dice_.OnceIn(4)) return;
      return Do([&](Program& p) { p.Close(screen); });
    case 1:
      return Do([&](Program& p) { p.Press(screen); });
    case 2:
      return Do([&](Program& p) { p.Confirm(screen); });
    case 3:
      return Do([&](Program& p) { p.GoBack(screen); });
    case 4:
      return Do([&](Program& p) { p.Activate(screen); });
    case 5:
    case 6:
      return Do([&](Program& p) { p.EndHold(); });
    case 7:
    case 8:
      return Do([&](Program& /*p*/) { disk_.Settle(); });
    default:
      if (dice_.OnceIn(30)) Do([&](Program& p) { p.End(dice_.Between(0, 1)); });
      return;
  }
}

void Life::GoHome() {
  for (int steps = 0; !program_->HasEnded() && !IsHome(*program_); ++steps) {
    if (steps == kStepsHome) throw Fault("home is not reached");
    bool goes_on = true;
    Do([&](Program& p) {
      disk_.Settle();
      goes_on = StepHome(p);
    });
    if (!goes_on && !program_->HasEnded() && !IsHome(*program_)) {
      throw Fault("no way home from " + program_->TheStage().Active()->Name());
    }
  }
}

std::string Life::Replay() {
  recorder_.Close(true);
  return recorder_.Bytes();
}

void Life::PlayAgain() {
  const MemoryStorage nothing;
  try {
    Replayer replayer(Replay(), nothing);
    while (replayer.Next() != nullptr) {
    }
  } catch (const std::runtime_error& difference) {
    throw Fault(std::string("its record comes out otherwise: ") + difference.what());
  }
}

}  // namespace orvane::monkey
