#include "src/frontend/desktop/paint/surface_image.h"

#include <cmath>
#include <cstdint>

namespace orvane {
namespace {

// The copy's pixels as the toolkit sees them, as long as they stay in place.
QImage ImageOf(const SurfaceCopy& copy) {
  return {reinterpret_cast<const uchar*>(copy.Pixels()), copy.Width(), copy.Height(),
          copy.Width() * static_cast<int>(sizeof(uint32_t)), QImage::Format_RGB32};
}

}  // namespace

QRect SurfaceImage::Follow(const Surface& surface, bool all) {
  const Rect changed = copy_.Follow(surface, all);
  return {changed.X, changed.Y, changed.Width, changed.Height};
}

void SurfaceImage::Paint(QPainter& painter, const QPoint& corner, const QRect& part) const {
  const QRect source = part & QRect(QPoint(), Size());
  if (source.isEmpty()) return;
  const QImage image = ImageOf(copy_);
  const double scale = painter.device()->devicePixelRatio();
  const bool is_whole = scale == std::floor(scale);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, !is_whole);
  if (is_whole) return painter.drawImage(source.translated(corner), image, source);
  // Between two whole scales pixels stay sharp and even: first enlarged beyond, then reduced. The
  // ring around what is asked for keeps the seams of parts invisible.
  const QRect ring = source.adjusted(-1, -1, 1, 1) & image.rect();
  const QImage beyond = image.copy(ring).scaled(ring.size() * static_cast<int>(std::ceil(scale)));
  painter.drawImage(ring.translated(corner), beyond);
}

}  // namespace orvane
