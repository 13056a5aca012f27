// What a surface has published, as a front end last showed it: a copy, so that what changed can be
// found. A walking figure touches a hundredth of the field, and comparing costs far less than
// painting.
#pragma once

#include <cstdint>
#include <vector>

#include "src/ui/surface.h"

namespace orvane {

class SurfaceCopy {
 public:
  // Takes over what the surface shows now and returns the part that differs from before, in its
  // pixels; of no width when nothing does. Looks only if the surface has published since, or at
  // `all`.
  Rect Follow(const Surface& surface, bool all);

  int Width() const { return width_; }
  int Height() const { return height_; }
  // Row by row, each pixel 0xFFRRGGBB: opaque, for window systems that look for it. They stay in
  // place until the size changes.
  const uint32_t* Pixels() const { return pixels_.data(); }

 private:
  Rect TakeAll(const Surface& surface);
  Rect TakePart(const Surface& surface, const Bounds& part);

  std::vector<uint32_t> pixels_;
  int width_ = 0;
  int height_ = 0;
  uint64_t revision_ = 0;
};

}  // namespace orvane
