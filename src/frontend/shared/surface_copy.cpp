#include "src/frontend/shared/surface_copy.h"

#include <algorithm>
#include <cstddef>

namespace orvane {
namespace {

constexpr uint32_t kOpaque = 0xFF000000;

// The first pixel, of `width`, in which what is kept and what is shown differ, or `width`. Blocks
// of one length are compared many pixels at a time.
int FirstDifference(const uint32_t* kept, const Colour* shown, int width) {
  constexpr int block = 16;
  int x = 0;
  for (; x + block <= width; x += block) {
    uint32_t difference = 0;
    for (int i = 0; i < block; ++i) difference |= kept[x + i] ^ (shown[x + i] | kOpaque);
    if (difference != 0) break;
  }
  while (x < width && kept[x] == (shown[x] | kOpaque)) ++x;
  return x;
}

// The last such pixel; there is one.
int LastDifference(const uint32_t* kept, const Colour* shown, int width) {
  int x = width - 1;
  while (kept[x] == (shown[x] | kOpaque)) --x;
  return x;
}

void Copy(const Colour* shown, uint32_t* kept, int width) {
  std::transform(shown, shown + width, kept, [](Colour colour) { return colour | kOpaque; });
}

}  // namespace

Rect SurfaceCopy::TakeAll(const Surface& surface) {
  width_ = surface.Width();
  height_ = surface.Height();
  pixels_.resize(surface.Shown().size());
  Copy(surface.Shown().data(), pixels_.data(), static_cast<int>(pixels_.size()));
  return {0, 0, width_, height_};
}

Rect SurfaceCopy::Follow(const Surface& surface, bool all) {
  if (!all && revision_ == surface.Revision()) return {};
  revision_ = surface.Revision();
  const int width = surface.Width();
  const int height = surface.Height();
  // Until it is refreshed for the first time a surface has nothing to show.
  const size_t size = static_cast<size_t>(width) * static_cast<size_t>(height);
  if (surface.Shown().size() != size || size == 0) return {};
  if (width != width_ || height != height_) return TakeAll(surface);
  int top = height;
  int bottom = -1;
  int left = width;
  int right = -1;
  const Colour* shown = surface.Shown().data();
  uint32_t* kept = pixels_.data();
  for (int y = 0; y < height; ++y, shown += width, kept += width) {
    const int first = FirstDifference(kept, shown, width);
    if (first == width) continue;
    const int last = LastDifference(kept, shown, width);
    Copy(shown + first, kept + first, last + 1 - first);
    left = std::min(left, first);
    right = std::max(right, last);
    top = std::min(top, y);
    bottom = y;
  }
  if (bottom < 0) return {};
  return {left, top, right + 1 - left, bottom + 1 - top};
}

}  // namespace orvane
