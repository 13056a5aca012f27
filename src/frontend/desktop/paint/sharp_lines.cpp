#include "src/frontend/desktop/paint/sharp_lines.h"

#include <QPaintDevice>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

// A painter's place on the screen, in whole pixels.
class Pixels {
 public:
  explicit Pixels(QPainter& painter)
      : painter_(painter),
        to_screen_(painter.deviceTransform()),
        thickness_(std::max(1, static_cast<int>(painter.device()->devicePixelRatioF()))) {}

  int Thickness() const { return thickness_; }

  QRect Of(const QRect& box) const {
    const QRectF area = to_screen_.mapRect(QRectF(box));
    const QPoint corner(Round(area.left()), Round(area.top()));
    return {corner, QSize(Round(area.right()) - corner.x(), Round(area.bottom()) - corner.y())};
  }

  void Fill(const QRect& pixels, const QColor& colour) {
    painter_.fillRect(to_screen_.inverted().mapRect(QRectF(pixels)), colour);
  }

 private:
  static int Round(double edge) { return static_cast<int>(std::lround(edge)); }

  QPainter& painter_;
  QTransform to_screen_;
  int thickness_;
};

}  // namespace

void DrawFrame(QPainter& painter, const QRect& box, const QColor& colour) {
  Pixels pixels(painter);
  const QRect outer = pixels.Of(box);
  const int thickness = pixels.Thickness();
  const QSize lying(outer.width(), thickness);
  const QSize standing(thickness, outer.height());
  pixels.Fill({outer.topLeft(), lying}, colour);
  pixels.Fill({outer.topLeft(), standing}, colour);
  pixels.Fill({outer.bottomLeft() - QPoint(0, thickness - 1), lying}, colour);
  pixels.Fill({outer.topRight() - QPoint(thickness - 1, 0), standing}, colour);
}

void DrawUnderline(QPainter& painter, const QRect& box, const QColor& colour) {
  Pixels pixels(painter);
  QRect line = pixels.Of(box);
  line.setTop(line.bottom() - pixels.Thickness() + 1);
  pixels.Fill(line, colour);
}

void DrawMark(QPainter& painter, const QPoint& top, int height, const QColor& colour) {
  Pixels pixels(painter);
  QRect line = pixels.Of({top, QSize(1, height)});
  line.setWidth(pixels.Thickness());
  pixels.Fill(line, colour);
}

}  // namespace orvane
