#include "src/frontend/desktop/keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMetaObject>
#include <algorithm>
#include <optional>
#include <utility>

#include "src/frontend/desktop/events.h"
#include "src/frontend/desktop/keyboard.h"

namespace orvane {
namespace {

std::optional<Key> ArrowKey(int key) {
  switch (key) {
    case Qt::Key_Left:
      return Key::Left;
    case Qt::Key_Up:
      return Key::Up;
    case Qt::Key_Right:
      return Key::Right;
    case Qt::Key_Down:
      return Key::Down;
    default:
      return std::nullopt;
  }
}

}  // namespace

Keys::Keys(Events& events, std::function<bool()> reaches)
    : events_(events), reaches_(std::move(reaches)) {
  // Where the arrows usually are on X11, until one has been pressed.
  constexpr std::array<uint32_t, 4> usual_codes = {113, 111, 114, 116};
  for (size_t i = 0; i < keys_.size(); ++i) keys_[i].NativeCode = usual_codes[i];
  QCoreApplication::instance()->installEventFilter(this);
}

bool Keys::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
      // Each key comes to its window first and then goes on to the control that has the focus.
      if (!watched->isWindowType()) break;
      const auto* key_event = static_cast<QKeyEvent*>(event);
      const auto key = ArrowKey(key_event->key());
      if (!key || key_event->isAutoRepeat()) break;
      if (event->type() == QEvent::KeyPress) {
        Press(*key, key_event->nativeScanCode());
      } else if (!IsKeyDown(key_event->nativeScanCode()).value_or(false)) {
        // A repeat comes as a release and a press, and the toolkit does not always see that they
        // belong together; but the key is still down then.
        Release(*key);
      }
      break;
    }
    case QEvent::ApplicationDeactivate:
      ForgetKeys();
      break;
    case QEvent::WindowActivate:
      LookAtKeys();
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

void Keys::Press(Key key, uint32_t native_code) {
  KeyState& state = keys_[static_cast<size_t>(key)];
  if (state.Down) return;  // a repeat
  state.Down = true;
  state.NativeCode = native_code;
  if (!reaches_()) return;
  state.Held = true;
  events_.Send([key](Program& program) { program.KeyDown(key); });
}

void Keys::Release(Key key) {
  KeyState& state = keys_[static_cast<size_t>(key)];
  state.Down = false;
  if (!reaches_()) return;
  state.Held = false;
  events_.Send([key](Program& program) { program.KeyUp(key); });
}

void Keys::ForgetKeys() {
  for (KeyState& state : keys_) state.Down = false;
}

void Keys::LookAtKeys() {
  // What another program got was not seen here, so the keyboard itself is asked.
  for (KeyState& state : keys_) state.Down = IsKeyDown(state.NativeCode).value_or(state.Down);
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
  LookAtKeys();
  for (size_t i = 0; i < keys_.size(); ++i) {
    if (!keys_[i].Held || keys_[i].Down) continue;
    if (!reaches_()) return;
    Release(static_cast<Key>(i));
  }
}

void Keys::Follow() {
  const bool reached = std::exchange(reached_, reaches_());
  if (reached_ && !reached) Settle();
}

}  // namespace orvane
