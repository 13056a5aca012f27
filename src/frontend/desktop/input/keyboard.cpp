#include "src/frontend/desktop/input/keyboard.h"

#include <QApplication>
#include <QMenuBar>

namespace orvane {

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

bool MenuBarHasKeys() {
  return qobject_cast<const QMenuBar*>(QApplication::focusWidget()) != nullptr;
}

}  // namespace orvane
