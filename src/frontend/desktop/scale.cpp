#include "src/frontend/desktop/scale.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace orvane {
namespace {

constexpr const char* ScaleVariable = "QT_SCALE_FACTOR";
constexpr double LargestPart = 0.9;
constexpr double MenuHeight = 22;   // enlarged with the window
constexpr double TitleHeight = 30;  // the window manager's, as large as ever

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

}  // namespace

int ChooseScale(const Extent& available, const std::vector<Extent>& windows) {
  int scale = LargestScale;
  while (scale > 1 && !Fits(scale, available, windows)) --scale;
  return scale;
}

std::optional<ScreenFacts> AskScreen() {
  int argument_count = 1;
  char name[] = "orvane";
  char* arguments[] = {name, nullptr};
  const QGuiApplication probe(argument_count, arguments);
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return std::nullopt;
  const double factor = screen->devicePixelRatio();
  const QSize size = screen->availableSize();
  return ScreenFacts{{size.width() * factor, size.height() * factor}, factor};
}

void FixScale(double scale, const ScreenFacts& screen) {
  qputenv(ScaleVariable, QByteArray::number(scale / screen.Factor, 'g', 8));
}

bool ScaleIsFixed() {
  return qEnvironmentVariableIsSet(ScaleVariable);
}

}  // namespace orvane
