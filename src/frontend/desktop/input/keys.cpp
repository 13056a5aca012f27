#include "src/frontend/desktop/input/keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaObject>
#include <utility>

#include "src/frontend/desktop/input/keyboard.h"
#include "src/frontend/desktop/x11/x11.h"
#include "src/frontend/shared/events.h"

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
    : walking_({std::move(reaches), &MenuBarHasKeys, &AskKeyboard,
                [&events](Direction key, bool down) { SendArrow(events, key, down); }}) {
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
      walking_.Forget();
      break;
    case QEvent::WindowActivate:
      // What another program got was not seen here, so the keyboard itself is asked.
      walking_.Look();
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
  return walking_.Take({event.nativeScanCode(), event.type() == QEvent::KeyPress,
                        event.isAutoRepeat(), event.timestamp(), &window},
                       {ArrowKey(event.key()), ActsAtOnce(event.key()), IsTyping()});
}

void Keys::SettleLater() {
  if (!walking_.IsOutstanding() || std::exchange(settling_later_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        settling_later_ = false;
        walking_.Settle();
      },
      Qt::QueuedConnection);
}

}  // namespace orvane
