#include "src/frontend/desktop/windows/toolkit_scale.h"

#include <QtGui/private/qhighdpiscaling_p.h>

#include <QGuiApplication>
#include <QPixmapCache>
#include <QScreen>

namespace orvane {
namespace {

constexpr const char* kScaleVariable = "QT_SCALE_FACTOR";

Extent InScreenPixels(const QSize& size, double ratio) {
  return {size.width() * ratio, size.height() * ratio};
}

// The toolkit's own factor as the player has set it.
double FixedFactor() {
  bool is_number = false;
  const double factor = qEnvironmentVariable(kScaleVariable).toDouble(&is_number);
  return is_number && factor > 0 ? factor : 1;
}

}  // namespace

std::optional<ScreenFacts> AskScreen() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return std::nullopt;
  const double ratio = screen->devicePixelRatio();
  return ScreenFacts{InScreenPixels(screen->size(), ratio),
                     InScreenPixels(screen->availableSize(), ratio), ratio, ratio / FixedFactor()};
}

void SetScale(double scale, const ScreenFacts& screen) {
  // The toolkit's public ways take this factor only before the application is made.
  QHighDpiScaling::setGlobalFactor(scale / screen.Factor);
  QPixmapCache::clear();  // the style keeps pictures of its buttons
}

bool ScaleIsFixed() {
  return qEnvironmentVariableIsSet(kScaleVariable);
}

}  // namespace orvane
