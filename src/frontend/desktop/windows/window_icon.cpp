#include "src/frontend/desktop/windows/window_icon.h"

#include <QImage>
#include <QPixmap>
#include <cstddef>
#include <cstring>

#include "src/core/sheets.h"

namespace orvane {
namespace {

QImage Copy(const Surface& surface) {
  QImage image(surface.Width(), surface.Height(), QImage::Format_RGB32);
  const size_t row = static_cast<size_t>(surface.Width()) * sizeof(Colour);
  for (int y = 0; y < surface.Height(); ++y) {
    std::memcpy(image.scanLine(y), surface.Row(y), row);
  }
  return image;
}

}  // namespace

QIcon WindowIcon() {
  QIcon icon;
  for (const char* name : {"icon_16", "icon_24", "icon_32", "icon_48", "icon_64", "icon_128"}) {
    icon.addPixmap(QPixmap::fromImage(Copy(Sheet(name))));
  }
  return icon;
}

}  // namespace orvane
