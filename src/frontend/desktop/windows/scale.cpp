#include "src/frontend/desktop/windows/scale.h"

#include <QtGui/private/qhighdpiscaling_p.h>

#include <QGuiApplication>
#include <QPixmapCache>
#include <QScreen>
#include <algorithm>

namespace orvane {
namespace {

constexpr const char* ScaleVariable = "QT_SCALE_FACTOR";
constexpr double LargestPart = 0.9;

bool Fits(int scale, const Extent& available, const std::vector<Extent>& windows) {
  const Extent& first = windows.front();
  if (first.Width * scale > available.Width * LargestPart) return false;
  if (first.Height * scale > available.Height * LargestPart) return false;
  return std::all_of(windows.begin(), windows.end(), [&](const Extent& window) {
    const double menu = &window == &first ? MenuHeight : 0;
    return window.Width * scale <= available.Width &&
           (window.Height + menu) * scale + TitleHeight <= available.Height;
  });
}

Extent InScreenPixels(const QSize& size, double ratio) {
  return {size.width() * ratio, size.height() * ratio};
}

// The toolkit's own factor as the player has set it.
double FixedFactor() {
  bool is_number = false;
  const double factor = qEnvironmentVariable(ScaleVariable).toDouble(&is_number);
  return is_number && factor > 0 ? factor : 1;
}

}  // namespace

int ChooseScale(const Extent& available, const std::vector<Extent>& windows) {
  int scale = windows.empty() ? 1 : LargestScale;
  while (scale > 1 && !Fits(scale, available, windows)) --scale;
  return scale;
}

double FittingScale(const Extent& display, const std::vector<Span>& windows) {
  double scale = 2.0 * LargestScale;
  for (const Span& window : windows) {
    scale = std::min({scale, display.Width / window.Inside.Width,
                      (display.Height - window.Title) / window.Inside.Height});
  }
  return std::max(1.0, scale);
}

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
  return qEnvironmentVariableIsSet(ScaleVariable);
}

}  // namespace orvane
