// What a surface has published, as a widget paints it: enlarged without smoothing, and repainted
// only where it has changed.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>

#include "src/frontend/shared/surface_copy.h"

namespace orvane {

class SurfaceImage {
 public:
  // Takes over what the surface shows now and returns the part that differs from before, as
  // SurfaceCopy does; empty when nothing does.
  QRect Follow(const Surface& surface, bool all);

  // Paints `part`, in the pixels of the image, with the image's corner at `corner`.
  void Paint(QPainter& painter, const QPoint& corner, const QRect& part) const;

  QSize Size() const { return {copy_.Width(), copy_.Height()}; }

 private:
  SurfaceCopy copy_;
};

}  // namespace orvane
