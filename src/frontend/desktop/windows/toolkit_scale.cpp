#include "src/frontend/desktop/windows/toolkit_scale.h"

#include <QGuiApplication>
#include <QScreen>

namespace orvane {
namespace {

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

bool ScaleIsFixed() {
  return qEnvironmentVariableIsSet(kScaleVariable);
}

}  // namespace orvane
