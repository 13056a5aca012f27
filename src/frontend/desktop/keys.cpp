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
      return TakeKey(*static_cast<const QKeyEvent*>(event));
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

bool Keys::TakeKey(const QKeyEvent& event) {
  const auto key = ArrowKey(event.key());
  if (!key) return false;
  KeyState& state = keys_[static_cast<size_t>(*key)];
  const bool press = event.type() == QEvent::KeyPress;
  // A repeat comes as a release and a press, and the toolkit does not always see that they belong
  // together; but the key is still down then.
  const bool repeat = event.isAutoRepeat() ||
                      (press ? state.Down : IsKeyDown(event.nativeScanCode()).value_or(false));
  // What was pressed to walk goes on repeating when a battle comes, and must not move anything
  // there.
  if (repeat) return state.Held && !reaches_();
  if (press) {
    Press(*key, event.nativeScanCode());
  } else {
    Release(*key);
  }
  return false;
}

void Keys::Press(Key key, uint32_t native_code) {
  KeyState& state = keys_[static_cast<size_t>(key)];
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
