#include "src/frontend/desktop/x11/x11.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QPalette>
#include <QWidget>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace orvane {
namespace {

// The toolkit's connection to the server, or null.
xcb_connection_t* Server() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 == nullptr ? nullptr : x11->connection();
}

}  // namespace

std::optional<KeyCodes> AskKeyboard() {
  xcb_connection_t* server = Server();
  if (server == nullptr) return std::nullopt;
  struct Free {
    void operator()(xcb_query_keymap_reply_t* reply) const { std::free(reply); }
  };
  const std::unique_ptr<xcb_query_keymap_reply_t, Free> reply(
      xcb_query_keymap_reply(server, xcb_query_keymap(server), nullptr));
  if (reply == nullptr) return std::nullopt;
  KeyCodes down;
  for (size_t code = 0; code < down.size(); ++code) {
    down[code] = (reply->keys[code / 8] >> (code % 8) & 1) != 0;
  }
  return down;
}

void LayGround(const QWidget& window) {
  xcb_connection_t* server = Server();
  if (server == nullptr) return;
  const uint32_t ground = window.palette().color(QPalette::Window).rgb();
  xcb_change_window_attributes(server, static_cast<xcb_window_t>(window.winId()), XCB_CW_BACK_PIXEL,
                               &ground);
}

}  // namespace orvane
