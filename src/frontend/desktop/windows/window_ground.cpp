#include "src/frontend/desktop/windows/window_ground.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QPalette>
#include <QWidget>
#include <cstdint>

namespace orvane {

void LayGround(const QWidget& window) {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) return;
  const uint32_t ground = window.palette().color(QPalette::Window).rgb();
  xcb_change_window_attributes(x11->connection(), static_cast<xcb_window_t>(window.winId()),
                               XCB_CW_BACK_PIXEL, &ground);
}

}  // namespace orvane
