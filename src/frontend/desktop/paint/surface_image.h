// What a surface has published, as a widget paints it: enlarged without smoothing, and repainted
// only where it has changed.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>

#include "src/ui/surface.h"

namespace orvane {

class SurfaceImage {
 public:
  // Takes over what the surface shows now and returns the part that differs from before, in its
  // pixels; empty when nothing does. Looks only if the surface has published since, or at `all`.
  QRect Follow(const Surface& surface, bool all);

  // Paints `part`, in the pixels of the image, with the image's corner at `corner`.
  void Paint(QPainter& painter, const QPoint& corner, const QRect& part) const;

  QSize Size() const { return image_.size(); }

 private:
  // A copy, so that what changed can be found: a walking figure touches a hundredth of the field,
  // and comparing costs far less than painting.
  QImage image_;
  uint64_t revision_ = 0;
};

}  // namespace orvane
