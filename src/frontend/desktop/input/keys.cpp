#include "src/frontend/desktop/input/keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaObject>
#include <algorithm>
#include <optional>
#include <utility>

#include "src/frontend/desktop/input/keyboard.h"
#include "src/frontend/desktop/windows/events.h"

namespace orvane {
namespace {

// Keys that press, choose, open or close something.
bool ActsAtOnce(int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_Escape:
    case Qt::Key_F10:
      return true;
    default:
      return false;
  }
}

bool IsTyping() {
  return qobject_cast<const QLineEdit*>(QApplication::focusWidget()) != nullptr;
}

}  // namespace

Keys::Keys(Events& events, std::function<bool()> reaches)
    : events_(events), reaches_(std::move(reaches)), held_(&AskKeyboard) {
  // Where the arrows usually are on X11, until one has been pressed.
  constexpr std::array<uint32_t, 4> usual_codes = {113, 111, 114, 116};
  for (size_t i = 0; i < keys_.size(); ++i) keys_[i].Code = usual_codes[i];
  QCoreApplication::instance()->installEventFilter(this);
}

bool Keys::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      // Each key comes to its window first and then goes on to the control that has the focus.
      if (!watched->isWindowType()) break;
      return TakeKey(*static_cast<const QKeyEvent*>(event), *watched);
    }
    case QEvent::ApplicationDeactivate:
      held_.Forget();
      break;
    case QEvent::WindowActivate:
      // What another program got was not seen here, so the keyboard itself is asked.
      held_.Look();
      [[fallthrough]];
    case QEvent::Hide:
      // A menu or another window has gone, or the keyboard is back.
      SettleLater();
      break;
    default:
      break;
  }
  return false;
}

bool Keys::TakeKey(const QKeyEvent& event, const QObject& window) {
  const HeldKeys::Stroke stroke = held_.Take(event, window);
  const auto arrow = ArrowKey(event.key());
  if (stroke.Repeats) {
    if (stroke.IsStray) return true;
    // What was pressed to walk must not move anything in a menu.
    if (arrow) return keys_[static_cast<size_t>(*arrow)].Held && !reaches_();
    return ActsAtOnce(event.key()) && !IsTyping();
  }
  if (!arrow) return false;
  KeyState& state = keys_[static_cast<size_t>(*arrow)];
  state.Code = event.nativeScanCode();
  if (event.type() == QEvent::KeyPress) {
    Walk(state, *arrow);
  } else {
    Halt(state, *arrow);
  }
  return false;
}

void Keys::Walk(KeyState& state, Key key) {
  if (!reaches_() || MenuBarHasKeys()) return;
  state.Held = true;
  events_.Send([key](Program& program) { program.KeyDown(key); });
}

void Keys::Halt(KeyState& state, Key key) {
  if (!reaches_()) return;
  state.Held = false;
  events_.Send([key](Program& program) { program.KeyUp(key); });
}

void Keys::SettleLater() {
  const bool outstanding =
      std::any_of(keys_.begin(), keys_.end(), [](const KeyState& state) { return state.Held; });
  if (!outstanding || settling_later_) return;
  settling_later_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        settling_later_ = false;
        Settle();
      },
      Qt::QueuedConnection);
}

void Keys::Settle() {
  held_.Look();
  for (size_t i = 0; i < keys_.size(); ++i) {
    if (keys_[i].Held && !held_.IsDown(keys_[i].Code)) Halt(keys_[i], static_cast<Key>(i));
  }
}

void Keys::Follow() {
  const bool reached = std::exchange(reached_, reaches_());
  if (reached_ && !reached) Settle();
}

}  // namespace orvane
