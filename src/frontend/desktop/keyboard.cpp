#include "src/frontend/desktop/keyboard.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>

namespace orvane {

std::optional<bool> IsKeyDown(uint32_t native_code) {
  constexpr uint32_t codes = 256;
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || native_code >= codes) return std::nullopt;
  xcb_connection_t* connection = x11->connection();
  struct Free {
    void operator()(xcb_query_keymap_reply_t* reply) const { std::free(reply); }
  };
  const std::unique_ptr<xcb_query_keymap_reply_t, Free> reply(
      xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
  if (reply == nullptr) return std::nullopt;
  return (reply->keys[native_code / 8] >> (native_code % 8) & 1) != 0;
}

}  // namespace orvane
