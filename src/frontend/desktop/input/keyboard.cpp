#include "src/frontend/desktop/input/keyboard.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QMenuBar>
#include <cstdlib>
#include <memory>

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

std::optional<KeyCodes> AskKeyboard() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr) return std::nullopt;
  xcb_connection_t* connection = x11->connection();
  struct Free {
    void operator()(xcb_query_keymap_reply_t* reply) const { std::free(reply); }
  };
  const std::unique_ptr<xcb_query_keymap_reply_t, Free> reply(
      xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
  if (reply == nullptr) return std::nullopt;
  KeyCodes down;
  for (size_t code = 0; code < down.size(); ++code) {
    down[code] = (reply->keys[code / 8] >> (code % 8) & 1) != 0;
  }
  return down;
}

}  // namespace orvane
