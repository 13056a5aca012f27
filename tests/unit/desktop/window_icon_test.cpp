#include "src/frontend/desktop/windows/window_icon.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>
#include <string>

#include "src/core/sheets.h"

namespace orvane {
namespace {

TEST(WindowIcon, IsItsSheetInEverySizeThatDesktopsAskFor) {
  const QIcon icon = WindowIcon();
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    const QImage image = icon.pixmap(QSize(size, size), 1.0).toImage();
    ASSERT_EQ(image.size(), QSize(size, size));
    const Surface& sheet = Sheet("icon_" + std::to_string(size));
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        ASSERT_EQ(image.pixel(x, y), 0xFF000000 | sheet.At(x, y)) << size << ": " << x << ", " << y;
      }
    }
  }
}

}  // namespace
}  // namespace orvane
