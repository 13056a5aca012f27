// What a surface has published, as a window paints it: whole factors by repeating pixels, other
// ones evenly, and repainted only where it has changed.
#pragma once

#include "src/frontend/shared/surface_copy.h"
#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

class SurfacePaint {
 public:
  // Takes over what the surface shows now and returns what differs from before, in pixels of the
  // enlarged picture; empty when nothing does. `all` as SurfaceCopy has it.
  RECT Follow(const Surface& surface, bool all, double scale);

  // Paints what lies within `part`, with the picture's corner at `corner`.
  void Paint(HDC context, POINT corner, const RECT& part, double scale) const;

  // The size of the enlarged picture.
  SIZE Size(double scale) const;

 private:
  SurfaceCopy copy_;
};

}  // namespace orvane
