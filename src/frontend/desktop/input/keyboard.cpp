#include "src/frontend/desktop/input/keyboard.h"

#include <QApplication>
#include <QMenuBar>

namespace orvane {

std::optional<Direction> ArrowKey(int key) {
  switch (key) {
    case Qt::Key_Left:
      return Direction::Left;
    case Qt::Key_Up:
      return Direction::Up;
    case Qt::Key_Right:
      return Direction::Right;
    case Qt::Key_Down:
      return Direction::Down;
    default:
      return std::nullopt;
  }
}

bool MenuBarHasKeys() {
  return qobject_cast<const QMenuBar*>(QApplication::focusWidget()) != nullptr;
}

}  // namespace orvane
