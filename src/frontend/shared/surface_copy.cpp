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
  const int width = surface.Width();
  const int height = surface.Height();
  const Bounds part = all ? Bounds{0, 0, width, height} : surface.ChangedSince(revision_);
  if (part.IsEmpty()) return {};
  revision_ = surface.Revision();
  // Until it is refreshed for the first time a surface has nothing to show.
  if (surface.Shown().empty()) return {};
  if (width != width_ || height != height_) return TakeAll(surface);
  return TakePart(surface, part);
}

Rect SurfaceCopy::TakePart(const Surface& surface, const Bounds& part) {
  Bounds changed;
  const int width = part.Right - part.Left;
  const size_t begin =
      static_cast<size_t>(part.Top) * static_cast<size_t>(width_) + static_cast<size_t>(part.Left);
  const Colour* shown = surface.Shown().data() + begin;
  uint32_t* kept = pixels_.data() + begin;
  for (int y = part.Top; y < part.Bottom; ++y, shown += width_, kept += width_) {
    const int first = FirstDifference(kept, shown, width);
    if (first == width) continue;
    const int last = LastDifference(kept, shown, width);
    Copy(shown + first, kept + first, last + 1 - first);
    changed.Include({part.Left + first, y, part.Left + last + 1, y + 1});
  }
  return {changed.Left, changed.Top, changed.Right - changed.Left, changed.Bottom - changed.Top};
}

}  // namespace orvane
