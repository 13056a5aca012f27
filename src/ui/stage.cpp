#include "src/ui/stage.h"

#include <algorithm>
#include <utility>

#include "src/ui/controls.h"

namespace orvane {
namespace {

template <class Action>
void ForEachSurface(Screen& screen, Action action) {
  if (screen.OwnSurface != nullptr) action(*screen.OwnSurface);
  for (Control* control : screen.Controls()) {
    if (control->Kind() == ControlKind::Picture) action(static_cast<PictureBox*>(control)->Picture);
  }
}

}  // namespace

Screen::Screen(Stage& stage, std::string name, std::string caption, int width, int height)
    : Caption(std::move(caption)),
      Width(width),
      Height(height),
      stage_(stage),
      name_(std::move(name)) {
  stage.screens_.push_back(this);
}

Control* Screen::Find(const std::string& name) const {
  for (Control* control : controls_) {
    if (control->Name() == name) return control;
  }
  return nullptr;
}

void Screen::OnClose() {
  stage_.Unload(*this);
}

Screen* Stage::Find(const std::string& name) const {
  for (Screen* screen : screens_) {
    if (screen->Name() == name) return screen;
  }
  return nullptr;
}

void Stage::KeepDesigns() {
  for (const Screen* screen : screens_) {
    for (Control* control : screen->Controls()) control->KeepDesign();
  }
}

void Stage::Load(Screen& screen) {
  if (screen.loaded_) return;
  for (Control* control : screen.controls_) control->RestoreDesign();
  screen.loaded_ = true;
  screen.OnLoad();
}

void Stage::Show(Screen& screen) {
  Load(screen);
  if (screen.visible_) return Activate(screen);
  screen.visible_ = true;
  // A window that appears shows all that its surfaces hold.
  ForEachSurface(screen, [](Surface& surface) { surface.Refresh(); });
  Enter(screen, true);
}

void Stage::ShowModal(Screen& screen) {
  screen.modal_ = true;
  Show(screen);
}

void Stage::Hide(Screen& screen) {
  if (screen.visible_) Leave(screen);
}

void Stage::Unload(Screen& screen) {
  if (!screen.loaded_) return;
  screen.OnUnload();
  for (Control* control : screen.controls_) {
    if (control->Kind() == ControlKind::Timer) static_cast<Timer*>(control)->SetEnabled(false);
  }
  screen.loaded_ = false;
  if (screen.visible_) Leave(screen);
}

void Stage::Activate(Screen& screen) {
  if (screen.visible_ && Active() != &screen) Enter(screen, false);
}

void Stage::Enter(Screen& screen, bool entered) {
  std::erase(active_order_, &screen);
  active_order_.push_back(&screen);
  screen.OnActivate(entered);
}

void Stage::Leave(Screen& screen) {
  const bool was_active = Active() == &screen;
  screen.visible_ = false;
  screen.modal_ = false;
  std::erase(active_order_, &screen);
  if (was_active && Active() != nullptr) Active()->OnActivate(false);
}

void Stage::Ask(Box box, AnswerHandler then) {
  if (IsRunning()) boxes_.push_back({std::move(box), ++boxes_asked_, std::move(then), ticking_});
}

void Stage::AddNote(const std::string& note) {
  if (BoxStands()) boxes_.back().Shown.Note = note;
}

void Stage::Answer(BoxAnswer answer) {
  if (boxes_.empty()) return;
  const StandingBox answered = std::move(boxes_.back());
  boxes_.pop_back();
  if (stopped_) return EndProgram(exit_status_);
  RunFor(answered.Asker, [&] {
    if (answered.Then) answered.Then(answer);
  });
}

void Stage::Resume(Handler follow) {
  --awaited_;
  due_.push_back(std::move(follow));
  if (wake_) wake_();
}

void Stage::RunDue() {
  while (!due_.empty() && IsRunning()) {
    const Handler follow = std::move(due_.front());
    due_.pop_front();
    follow();
  }
}

void Stage::Tick(Timer& timer) {
  RunFor(&timer, timer.OnTick);
}

void Stage::RunFor(Timer* timer, const Handler& handler) {
  if (timer != nullptr) timer->InTick = true;
  Timer* before = std::exchange(ticking_, timer);
  if (handler) handler();
  ticking_ = before;
  if (timer != nullptr) timer->InTick = IsAwaitedBy(*timer);
}

bool Stage::IsAwaitedBy(const Timer& timer) const {
  return std::any_of(boxes_.begin(), boxes_.end(),
                     [&timer](const StandingBox& box) { return box.Asker == &timer; });
}

void Stage::EndProgram(int status) {
  if (ended_) return;
  ended_ = true;
  exit_status_ = status;
  boxes_.clear();
}

void Stage::EndWithBox(Box box, int status) {
  if (!IsRunning()) return;
  boxes_.clear();
  Ask(std::move(box));
  stopped_ = true;
  exit_status_ = status;
}

bool Stage::TakesInput(const Screen& screen) const {
  if (!screen.visible_ || !TimeRuns() || BoxStands()) return false;
  return std::none_of(screens_.begin(), screens_.end(), [&screen](const Screen* other) {
    return other != &screen && other->visible_ && other->modal_;
  });
}

}  // namespace orvane
