#include "src/frontend/desktop/input/pad.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QSlider>
#include <utility>

#include "src/frontend/desktop/input/keyboard.h"
#include "src/frontend/desktop/windows/screen_window.h"
#include "src/frontend/shared/events.h"
#include "src/game/program.h"

namespace orvane {
namespace {

Qt::Key ArrowOf(Direction direction) {
  constexpr Qt::Key arrows[] = {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
  return arrows[static_cast<size_t>(direction)];
}

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

// The screen's window that keys go to; null for a box or a menu.
const ScreenWindow* Front() {
  if (QApplication::activePopupWidget() != nullptr) return nullptr;
  return dynamic_cast<const ScreenWindow*>(QApplication::activeWindow());
}

}  // namespace

Pad::Pad(Events& events, std::function<bool()> reaches)
    : events_(events), reaches_(std::move(reaches)) {
  clock_.start();
  QObject::connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
}

void Pad::Start(std::unique_ptr<PadSource> source) {
  source_ = std::move(source);
  timer_.start(kPadSeldomMs);
}

void Pad::Look() {
  const bool in_front = QApplication::applicationState() == Qt::ApplicationActive;
  const int pace = rules_.Read(*source_, in_front, static_cast<double>(clock_.elapsed()));
  if (timer_.interval() != pace) timer_.start(pace);
}

bool Pad::ReachesGame() const {
  return reaches_() && !MenuBarHasKeys();
}

void Pad::Walk(Direction direction, bool down) {
  SendArrow(events_, direction, down);
}

void Pad::Move(Direction direction) {
  // A slider takes all four arrows for itself; by the cross there must be a way off it.
  const bool sideways = direction == Direction::Left || direction == Direction::Right;
  const bool on_slider = qobject_cast<QSlider*>(QApplication::focusWidget()) != nullptr;
  const ScreenWindow* window = Front();
  if (sideways || !on_slider || window == nullptr) return Type(ArrowOf(direction));
  window->KeysTo().Move(direction);
}

void Pad::Accept() {
  const bool chooses = QApplication::activePopupWidget() != nullptr ||
                       qobject_cast<QListWidget*>(QApplication::focusWidget()) != nullptr;
  Type(chooses ? Qt::Key_Return : Qt::Key_Space);
}

void Pad::Back() {
  Type(Qt::Key_Escape);
}

void Pad::OpenMenus() {
  const ScreenWindow* window = Front();
  if (window != nullptr && window->Menu() != nullptr) window->Menu()->Open();
}

void Pad::Turn(int step) {
  const ScreenWindow* window = Front();
  if (window != nullptr && window->KeysTo().TurnTab(step)) return;
  Type(step > 0 ? Qt::Key_Tab : Qt::Key_Backtab);
}

}  // namespace orvane
