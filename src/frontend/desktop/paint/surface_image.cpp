#include "src/frontend/desktop/paint/surface_image.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace orvane {
namespace {

const Colour* ShownRow(const Surface& surface, int y) {
  return surface.Shown().data() + static_cast<size_t>(y) * static_cast<size_t>(surface.Width());
}

// Widens `left` and `right` to hold the pixels in which the two rows differ.
void Widen(const Colour* one, const Colour* other, int width, int& left, int& right) {
  int first = 0;
  while (first < width && first < left && one[first] == other[first]) ++first;
  left = std::min(left, first);
  int last = width - 1;
  while (last > right && one[last] == other[last]) --last;
  right = std::max(right, last);
}

}  // namespace

QRect SurfaceImage::Follow(const Surface& surface, bool all) {
  if (!all && revision_ == surface.Revision()) return {};
  revision_ = surface.Revision();
  const QSize size(surface.Width(), surface.Height());
  const size_t pixels = static_cast<size_t>(size.width()) * static_cast<size_t>(size.height());
  // Until it is refreshed for the first time a surface has nothing to show.
  if (surface.Shown().size() != pixels || pixels == 0) return {};
  const bool fresh = image_.size() != size;
  if (fresh) image_ = QImage(size, QImage::Format_RGB32);
  const size_t row_bytes = static_cast<size_t>(size.width()) * sizeof(Colour);
  int top = size.height();
  int bottom = -1;
  int left = size.width();
  int right = -1;
  for (int y = 0; y < size.height(); ++y) {
    auto* kept = reinterpret_cast<Colour*>(image_.scanLine(y));
    const Colour* shown = ShownRow(surface, y);
    if (!fresh) {
      if (std::memcmp(kept, shown, row_bytes) == 0) continue;
      Widen(kept, shown, size.width(), left, right);
    }
    std::memcpy(kept, shown, row_bytes);
    top = std::min(top, y);
    bottom = y;
  }
  if (fresh) return image_.rect();
  return bottom < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

void SurfaceImage::Paint(QPainter& painter, const QPoint& corner, const QRect& part) const {
  const QRect source = part & image_.rect();
  if (source.isEmpty()) return;
  const double scale = painter.device()->devicePixelRatio();
  const bool is_whole = scale == std::floor(scale);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, !is_whole);
  if (is_whole) return painter.drawImage(source.translated(corner), image_, source);
  // Between two whole scales pixels stay sharp and even: first enlarged beyond, then reduced. The
  // ring around what is asked for keeps the seams of parts invisible.
  const QRect ring = source.adjusted(-1, -1, 1, 1) & image_.rect();
  const QImage beyond = image_.copy(ring).scaled(ring.size() * static_cast<int>(std::ceil(scale)));
  painter.drawImage(ring.translated(corner), beyond);
}

}  // namespace orvane
