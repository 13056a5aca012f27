#include <QGuiApplication>

#include "src/frontend/desktop/windows/toolkit_scale.h"

namespace orvane {

// By the toolkit's public ways alone: it reads the variable when the application is made. One that
// only asks for the screen comes before the real one.
void SetFirstScale(const std::function<double(const ScreenFacts&)>& choose, int count,
                   char** arguments) {
  if (ScaleIsFixed()) return;
  ScreenFacts screen;
  {
    const QGuiApplication asking(count, arguments);
    screen = AskScreen().value_or(ScreenFacts{});
  }
  qputenv(kScaleVariable, QByteArray::number(choose(screen) / screen.Factor));
}

void SetScale(double /*scale*/, const ScreenFacts& /*screen*/) {}

}  // namespace orvane
