#include <QtGui/private/qhighdpiscaling_p.h>

#include <QPixmapCache>

#include "src/frontend/desktop/windows/toolkit_scale.h"

namespace orvane {

void SetFirstScale(const std::function<double(const ScreenFacts&)>& /*choose*/, int /*count*/,
                   char** /*arguments*/) {}

void SetScale(double scale, const ScreenFacts& screen) {
  // The toolkit's public ways take this factor only before the application is made.
  QHighDpiScaling::setGlobalFactor(scale / screen.Factor);
  QPixmapCache::clear();  // the style keeps pictures of its buttons
}

}  // namespace orvane
