#include "src/frontend/desktop/input/pad.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QSlider>
#include <utility>

#include "src/frontend/desktop/input/keyboard.h"
#include "src/frontend/desktop/windows/events.h"
#include "src/frontend/desktop/windows/screen_window.h"
#include "src/game/program.h"

namespace orvane {
namespace {

constexpr int OftenMs = 10;
constexpr int SeldomMs = 1000;
constexpr int FirstRepeatMs = 400;
constexpr int NextRepeatMs = 120;

constexpr Key Directions[] = {Key::Left, Key::Up, Key::Right, Key::Down};
constexpr Qt::Key Arrows[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};

QWidget* Target() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  return QApplication::activeWindow();
}

void Type(Qt::Key key) {
  // The first of the two may take the widget away.
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QWidget* target = Target();
    if (target == nullptr) return;
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
  }
}

void Accept() {
  const bool chooses = QApplication::activePopupWidget() != nullptr ||
                       qobject_cast<QListWidget*>(QApplication::focusWidget()) != nullptr;
  Type(chooses ? Qt::Key_Return : Qt::Key_Space);
}

// The screen's window that keys go to; null for a box or a menu.
const ScreenWindow* Front() {
  if (QApplication::activePopupWidget() != nullptr) return nullptr;
  return dynamic_cast<const ScreenWindow*>(QApplication::activeWindow());
}

void OpenMenus() {
  const ScreenWindow* window = Front();
  if (window != nullptr && window->Menu() != nullptr) window->Menu()->Open();
}

void Turn(int step) {
  const ScreenWindow* window = Front();
  if (window != nullptr && window->KeysTo().TurnTab(step)) return;
  Type(step > 0 ? Qt::Key_Tab : Qt::Key_Backtab);
}

void Move(size_t direction) {
  // A slider takes all four arrows for itself; by the cross there must be a way off it.
  const bool sideways = Arrows[direction] == Qt::Key_Left || Arrows[direction] == Qt::Key_Right;
  const bool on_slider = qobject_cast<QSlider*>(QApplication::focusWidget()) != nullptr;
  const ScreenWindow* window = Front();
  if (sideways || !on_slider || window == nullptr) return Type(Arrows[direction]);
  window->KeysTo().Move(Directions[direction]);
}

}  // namespace

Pad::Pad(Events& events, std::function<bool()> reaches)
    : events_(events), reaches_(std::move(reaches)) {
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
}

void Pad::Start(std::unique_ptr<PadSource> source) {
  source_ = std::move(source);
  timer_.start(SeldomMs);
}

void Pad::Look() {
  const auto state = source_->Read();
  // What is pressed for another program is not for this one.
  const bool ours = QApplication::applicationState() == Qt::ApplicationActive;
  const int pace = state && ours ? OftenMs : SeldomMs;
  if (timer_.interval() != pace) timer_.start(pace);
  Follow(state && ours ? *state : PadState{});
}

void Pad::Follow(const PadState& state) {
  const PadState before = std::exchange(seen_, state);
  Walk(state);
  for (size_t i = 0; i < PadButtons; ++i) {
    if (!state[i]) continue;
    const bool fresh = !before[i];
    const bool is_direction = i < walking_.size();
    const bool again = is_direction && !fresh && !walking_[i] &&
                       held_.hasExpired(repeats_ ? NextRepeatMs : FirstRepeatMs);
    if (!fresh && !again) continue;
    if (is_direction) {
      held_.start();
      repeats_ = again;
    }
    Press(static_cast<PadButton>(i));
  }
}

void Pad::Walk(const PadState& state) {
  // A release outside the game's window is handed in when keys reach it again.
  if (!reaches_()) return;
  for (size_t i = 0; i < walking_.size(); ++i) {
    if (state[i] || !walking_[i]) continue;
    walking_[i] = false;
    events_.Send([i](Program& program) { program.KeyUp(Directions[i]); });
  }
}

void Pad::Press(PadButton button) {
  const auto index = static_cast<size_t>(button);
  if (index < walking_.size()) {
    if (!reaches_() || MenuBarHasKeys()) return Move(index);
    // What was pressed in another window does not start a walk; what walks goes on walking.
    if (std::exchange(walking_[index], true)) return;
    return events_.Send([index](Program& program) { program.KeyDown(Directions[index]); });
  }
  switch (button) {
    case PadButton::Accept:
      return Accept();
    case PadButton::Back:
      return Type(Qt::Key_Escape);
    case PadButton::Menu:
      return OpenMenus();
    case PadButton::Previous:
      return Turn(-1);
    default:
      return Turn(1);
  }
}

}  // namespace orvane
