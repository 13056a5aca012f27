#include "src/game/program.h"

#include <stdexcept>

#include "src/field/direction_keys.h"
#include "src/game/parts.h"
#include "src/ui/reach.h"

namespace orvane {
namespace {

constexpr int kErrorStatus = 1;
constexpr const char* kErrorTitle = "Orvane";

// Within a click on an item its menu opens first.
MenuItem* MenuOf(MenuItem& item) {
  return static_cast<MenuItem*>(item.Parent());
}

// What a click on a control runs; nothing for those that only show something.
const Handler* ClickHandler(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::Button:
      return &static_cast<const CommandButton&>(control).OnClick;
    case ControlKind::Picture:
      return &static_cast<const PictureBox&>(control).OnClick;
    case ControlKind::Menu:
      return &static_cast<const MenuItem&>(control).OnClick;
    default:
      return nullptr;
  }
}

// While it lives a handler runs; no other may be entered then.
class Entry {
 public:
  explicit Entry(bool& entered) : entered_(entered) {
    if (entered_) throw std::logic_error("a handler is entered under another");
    entered_ = true;
  }
  ~Entry() { entered_ = false; }
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;

 private:
  bool& entered_;
};

void RunClick(const Control& control) {
  const Handler* handler = ClickHandler(control);
  if (handler != nullptr && *handler) (*handler)();
}

Refusal WhyNot(const Control& control) {
  return control.Name() + (IsShown(control) ? " is disabled" : " is not visible");
}

}  // namespace

// While it lives an event is carried out. The watcher hears of it unless it is part of another.
class Program::Told {
 public:
  Told(Program& program, const PlayEvent& event) : program_(program) {
    tells_ = program.watcher_ != nullptr && program.told_ == 0 && !program.HasEnded();
    ++program.told_;
    if (tells_) program.watcher_->Comes(event);
  }
  ~Told() {
    --program_.told_;
    if (tells_) program_.watcher_->Went();
  }
  Told(const Told&) = delete;
  Told& operator=(const Told&) = delete;

 private:
  Program& program_;
  bool tells_;
};

Program::Program(const Services& services) : parts_(std::make_unique<Parts>(services)) {
  TheStage().OnResume([this] {
    if (!entered_) Run({});
  });
  Run([this] { parts_->game.stage.Show(parts_->game.Main); });
}

Program::~Program() = default;

Stage& Program::TheStage() {
  return parts_->game.stage;
}
State& Program::TheState() {
  return parts_->game.state;
}
bool Program::HasEnded() const {
  return parts_->game.stage.HasEnded();
}
int Program::ExitStatus() const {
  return parts_->game.stage.ExitStatus();
}

std::string Program::TextOfError() const {
  return error_ ? ErrorText(*error_) : std::string();
}

void Program::Enter(const Handler& handler) {
  if (watcher_ != nullptr) watcher_->Meddled();
  Run(handler);
}

void Program::Run(const Handler& handler) {
  if (!TheStage().IsRunning()) return;
  const Entry entry(entered_);
  try {
    if (handler) handler();
    TheStage().RunDue();
  } catch (const RunError& error) {
    Fail(error);
  }
}

void Program::Fail(const RunError& error) {
  if (!TheStage().IsRunning()) return;
  error_ = error;
  TheStage().EndWithBox({TextOfError(), kErrorTitle, BoxButtons::Ok}, kErrorStatus);
}

Refusal Program::Reach(Screen& screen) {
  if (!TheStage().IsRunning()) return "the program has ended";
  if (!screen.IsVisible()) return screen.Name() + " is hidden";
  if (!TheStage().TakesInput(screen))
    return "a box or a modal screen stands before " + screen.Name();
  Run([&] { TheStage().Activate(screen); });
  return TheStage().TakesInput(screen) ? Refusal() : screen.Name() + " has gone";
}

Refusal Program::Reach(Control& control) {
  if (Refusal refusal = Reach(control.Owner()); !refusal.empty()) return refusal;
  return CanUse(control) ? Refusal() : WhyNot(control);
}

Refusal Program::Click(Control& control) {
  const Told told(*this, {.What = PlayEvent::Kind::Click, .On = &control});
  if (control.Kind() == ControlKind::Menu) {
    auto& item = static_cast<MenuItem&>(control);
    if (Refusal refusal = Reach(control); !refusal.empty()) return refusal;
    if (item.IsSeparator()) return item.Name() + " is a separator";
    if (MenuItem* menu = MenuOf(item)) Run([&] { RunClick(*menu); });
    return ClickItem(item);
  }
  if (Refusal refusal = Reach(control); !refusal.empty()) return refusal;
  if (ClickHandler(control) == nullptr) return control.Name() + " is not there to be clicked";
  if (!CanClick(control)) return control.Name() + " is covered";
  Run([&] { RunClick(control); });
  return {};
}

Refusal Program::ClickItem(MenuItem& item) {
  const Told told(*this, {.What = PlayEvent::Kind::ClickItem, .On = &item});
  if (Refusal refusal = Reach(item); !refusal.empty()) return refusal;
  if (item.IsSeparator()) return item.Name() + " is a separator";
  Run([&] { RunClick(item); });
  return {};
}

Refusal Program::ClickAt(Control& control, double x, double y) {
  const Told told(*this, {.What = PlayEvent::Kind::ClickAt, .On = &control, .X = x, .Y = y});
  if (Refusal refusal = Reach(control); !refusal.empty()) return refusal;
  const double border = control.Border();
  if (x < 0 || y < 0 || x >= control.At.Width - 2 * border || y >= control.At.Height - 2 * border) {
    return "the point lies outside " + control.Name();
  }
  const Place place = PlaceOnScreen(control);
  const Control* front =
      ControlAt(control.Owner(), {place.Left + border + x, place.Top + border + y});
  if (front != nullptr && CanUse(*front)) Run([&] { RunClick(*front); });
  return {};
}

Refusal Program::Choose(Control& list, int row) {
  const Told told(*this, {.What = PlayEvent::Kind::Choose, .On = &list, .Number = row});
  if (Refusal refusal = Reach(list); !refusal.empty()) return refusal;
  if (!CanClick(list)) return list.Name() + " is covered";
  const auto choose = [&](ListValues& values, const Handler& handler) -> Refusal {
    if (row < 0 || row >= static_cast<int>(values.Rows.size())) {
      return list.Name() + " has no row " + std::to_string(row);
    }
    values.ListIndex = row;
    Run([&] {
      if (handler) handler();
    });
    return {};
  };
  if (list.Kind() == ControlKind::List) {
    auto& box = static_cast<ListBox&>(list);
    return choose(box, box.OnClick);
  }
  if (list.Kind() == ControlKind::FileList) {
    auto& box = static_cast<FileListBox&>(list);
    return choose(box, box.OnClick);
  }
  return list.Name() + " is no list";
}

Refusal Program::SelectTab(TabStrip& tabs, int tab) {
  const Told told(*this, {.What = PlayEvent::Kind::SelectTab, .On = &tabs, .Number = tab});
  if (Refusal refusal = Reach(tabs); !refusal.empty()) return refusal;
  if (tab < 0 || tab >= tabs.TabCount()) return tabs.Name() + " has no tab " + std::to_string(tab);
  if (tab == tabs.Tab()) return {};  // the open one is there already, enabled or not
  if (!tabs.TabEnabled(tab))
    return "tab " + std::to_string(tab) + " of " + tabs.Name() + " is disabled";
  Run([&] { tabs.SetTab(tab); });
  return {};
}

Refusal Program::EnterText(TextBox& field, const std::string& text) {
  const Told told(*this, {.What = PlayEvent::Kind::EnterText, .On = &field, .Text = text});
  if (Refusal refusal = Reach(field); !refusal.empty()) return refusal;
  field.Text = text;
  return {};
}

Refusal Program::Slide(Slider& slider, int value) {
  const Told told(*this, {.What = PlayEvent::Kind::Slide, .On = &slider, .Number = value});
  if (Refusal refusal = Reach(slider); !refusal.empty()) return refusal;
  if (value < slider.Min || value > slider.Max) return slider.Name() + " does not go that far";
  slider.Value = value;
  return {};
}

Refusal Program::Press(Screen& screen) {
  const Told told(*this, {.What = PlayEvent::Kind::Press, .Where = &screen});
  if (Refusal refusal = Reach(screen); !refusal.empty()) return refusal;
  Run([&] { TheStage().Press(screen); });
  return {};
}

Refusal Program::Close(Screen& screen) {
  const Told told(*this, {.What = PlayEvent::Kind::Close, .Where = &screen});
  if (Refusal refusal = Reach(screen); !refusal.empty()) return refusal;
  Run([&] { TheStage().Close(screen); });
  return {};
}

Refusal Program::Confirm(Screen& screen) {
  const Told told(*this, {.What = PlayEvent::Kind::Confirm, .Where = &screen});
  if (screen.EnterButton == nullptr) return screen.Name() + " has no button for Enter";
  return Click(*screen.EnterButton);
}

Refusal Program::GoBack(Screen& screen) {
  const Told told(*this, {.What = PlayEvent::Kind::GoBack, .Where = &screen});
  if (Refusal refusal = Reach(screen); !refusal.empty()) return refusal;
  Control* back = WayBack(screen);
  if (back == nullptr) return screen.Name() + " has no way back";
  if (back->Kind() == ControlKind::List) {
    return Choose(*back, static_cast<const ListBox*>(back)->BackRow);
  }
  return Click(*back);
}

Refusal Program::Activate(Screen& screen) {
  const Told told(*this, {.What = PlayEvent::Kind::Activate, .Where = &screen});
  return Reach(screen);
}

void Program::KeyDown(Direction key) {
  const Told told(*this, {.What = PlayEvent::Kind::KeyDown, .Number = static_cast<int>(key)});
  if (KeysReachMain()) Run([&] { DirectionDown(TheState(), key); });
}

void Program::KeyUp(Direction key) {
  const Told told(*this, {.What = PlayEvent::Kind::KeyUp, .Number = static_cast<int>(key)});
  if (KeysReachMain()) Run([&] { DirectionUp(TheState(), key); });
}

bool Program::KeysReachMain() {
  const MainScreen& main = parts_->game.Main;
  return TheStage().Active() == &main && TheStage().TakesInput(main);
}

void Program::Tick(Timer& timer) {
  if (!timer.Ticks() || timer.InTick || !TheStage().TimeRuns()) return;
  const Told told(*this, {.What = PlayEvent::Kind::Tick, .On = &timer});
  Run([&] { TheStage().Tick(timer); });
}

Refusal Program::Answer(BoxAnswer answer) {
  const Told told(*this, {.What = PlayEvent::Kind::Answer, .Number = static_cast<int>(answer)});
  Stage& stage = TheStage();
  if (!stage.BoxStands()) return "no box stands";
  if (!Offers(stage.Boxes().back().Shown.Buttons, answer)) return "the box has no such button";
  if (!stage.IsRunning()) {
    stage.Answer(answer);
    return {};
  }
  if (!stage.TimeRuns()) return "the program stands still";
  Run([&] { stage.Answer(answer); });
  return {};
}

void Program::EndHold() {
  if (TheStage().HeldFor() == 0) return;
  const Told told(*this, {.What = PlayEvent::Kind::EndHold});
  TheStage().EndHold();
}

void Program::Break(const std::string& what) {
  TheStage().EndWithBox({what, kErrorTitle, BoxButtons::Ok}, kErrorStatus);
  if (watcher_ != nullptr) watcher_->Went();
}

void Program::End(int status) {
  const Told told(*this, {.What = PlayEvent::Kind::End, .Number = status});
  TheStage().EndProgram(status);
}

}  // namespace orvane
