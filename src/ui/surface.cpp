#include "src/ui/surface.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

#include "src/base/array.h"

namespace orvane {

// Write access to a surface's backing store, which notes the rows that are about to change.
class SurfaceWriter {
 public:
  SurfaceWriter(Surface& surface, int top, int bottom) : surface_(surface) {
    if (surface.pixels_.use_count() > 1) {
      surface.pixels_ = std::make_shared<Surface::Pixels>(*surface.pixels_);
    }
    const bool clean = surface.dirty_top_ >= surface.dirty_bottom_;
    surface.dirty_top_ = clean ? top : std::min(surface.dirty_top_, top);
    surface.dirty_bottom_ = clean ? bottom : std::max(surface.dirty_bottom_, bottom);
  }
  Colour* Row(int y) { return surface_.pixels_->data() + surface_.Offset(y); }

 private:
  Surface& surface_;
};

Surface::Surface(int width, int height, Colour colour)
    : Surface(
          width, height,
          Pixels(static_cast<size_t>(std::max(0, width)) * static_cast<size_t>(std::max(0, height)),
                 colour)) {}

Surface::Surface(int width, int height, Pixels pixels)
    : width_(std::max(0, width)),
      height_(std::max(0, height)),
      pixels_(std::make_shared<Pixels>(std::move(pixels))),
      dirty_bottom_(height_) {
  pixels_->resize(static_cast<size_t>(width_) * static_cast<size_t>(height_));
}

Colour Surface::At(int x, int y) const {
  CheckIndex(x, static_cast<size_t>(width_));
  CheckIndex(y, static_cast<size_t>(height_));
  return Row(y)[x];
}

Colour Surface::ShownAt(int x, int y) const {
  CheckIndex(x, static_cast<size_t>(width_));
  CheckIndex(y, static_cast<size_t>(height_));
  const size_t at = Offset(y) + static_cast<size_t>(x);
  return at < shown_.size() ? shown_[at] : 0;
}

void Surface::Refresh() {
  if (shown_.size() != pixels_->size()) {
    shown_.resize(pixels_->size());
    dirty_top_ = 0;
    dirty_bottom_ = height_;
  }
  if (dirty_top_ >= dirty_bottom_) return;
  std::copy(pixels_->begin() + static_cast<std::ptrdiff_t>(Offset(dirty_top_)),
            pixels_->begin() + static_cast<std::ptrdiff_t>(Offset(dirty_bottom_)),
            shown_.begin() + static_cast<std::ptrdiff_t>(Offset(dirty_top_)));
  dirty_top_ = dirty_bottom_ = 0;
  ++revision_;
}

namespace {

// One row of a blit at scale 1.
void BlitRow(Colour* to, const Colour* from, int count, Blit operation) {
  switch (operation) {
    case Blit::Copy:
      std::memmove(to, from, static_cast<size_t>(count) * sizeof(Colour));
      return;
    case Blit::Or:
      for (int i = 0; i < count; ++i) to[i] |= from[i];
      return;
    case Blit::And:
      for (int i = 0; i < count; ++i) to[i] &= from[i];
      return;
  }
}

// One row of a stretch; `columns` names the source column of each pixel.
void StretchRow(Colour* to, const Colour* from, const std::vector<int>& columns, Blit operation) {
  switch (operation) {
    case Blit::Copy:
      for (const int column : columns) *to++ = from[column];
      return;
    case Blit::Or:
      for (const int column : columns) *to++ |= from[column];
      return;
    case Blit::And:
      for (const int column : columns) *to++ &= from[column];
      return;
  }
}

// The part of one axis of a stretch that lies inside both surfaces: the first destination pixel,
// and the source pixel of each destination pixel from there on.
struct Axis {
  int First = 0;
  std::vector<int> Sources;
};

Axis MapAxis(int target, int target_size, int target_limit, int source, int source_size,
             int source_limit) {
  Axis axis;
  for (int i = std::max(0, -target); i < target_size && target + i < target_limit; ++i) {
    const int from = source + static_cast<int>(int64_t{i} * source_size / target_size);
    if (from < 0 || from >= source_limit) {
      if (!axis.Sources.empty()) break;
      continue;
    }
    if (axis.Sources.empty()) axis.First = target + i;
    axis.Sources.push_back(from);
  }
  return axis;
}

// A copy of the source where it is the destination too; the pixels are shared until the first
// write.
std::optional<Surface> CopyIfSame(const Surface& destination, const Surface& source) {
  if (&destination != &source) return std::nullopt;
  return source;
}

}  // namespace

void BitBlt(Surface& destination, int x, int y, int width, int height, const Surface& source,
            int source_x, int source_y, Blit operation) {
  const int cut_left = std::max({0, -x, -source_x});
  const int cut_top = std::max({0, -y, -source_y});
  x += cut_left;
  source_x += cut_left;
  y += cut_top;
  source_y += cut_top;
  width = std::min({width - cut_left, destination.Width() - x, source.Width() - source_x});
  height = std::min({height - cut_top, destination.Height() - y, source.Height() - source_y});
  if (width <= 0 || height <= 0) return;
  const std::optional<Surface> copy = CopyIfSame(destination, source);
  const Surface& from = copy ? *copy : source;
  SurfaceWriter writer(destination, y, y + height);
  for (int row = 0; row < height; ++row) {
    BlitRow(writer.Row(y + row) + x, from.Row(source_y + row) + source_x, width, operation);
  }
}

void StretchBlt(Surface& destination, const Rect& target, const Surface& source, const Rect& area,
                Blit operation) {
  if (target.Width <= 0 || target.Height <= 0 || area.Width <= 0 || area.Height <= 0) return;
  const Axis across =
      MapAxis(target.X, target.Width, destination.Width(), area.X, area.Width, source.Width());
  const Axis down =
      MapAxis(target.Y, target.Height, destination.Height(), area.Y, area.Height, source.Height());
  if (across.Sources.empty() || down.Sources.empty()) return;
  const std::optional<Surface> copy = CopyIfSame(destination, source);
  const Surface& from = copy ? *copy : source;
  const int rows = static_cast<int>(down.Sources.size());
  SurfaceWriter writer(destination, down.First, down.First + rows);
  for (int row = 0; row < rows; ++row) {
    StretchRow(writer.Row(down.First + row) + across.First,
               from.Row(down.Sources[static_cast<size_t>(row)]), across.Sources, operation);
  }
}

void FillBox(Surface& surface, int x1, int y1, int x2, int y2, Colour colour) {
  const int left = std::max(0, std::min(x1, x2));
  const int right = std::min(surface.Width() - 1, std::max(x1, x2));
  const int top = std::max(0, std::min(y1, y2));
  const int bottom = std::min(surface.Height() - 1, std::max(y1, y2));
  if (left > right || top > bottom) return;
  SurfaceWriter writer(surface, top, bottom + 1);
  for (int y = top; y <= bottom; ++y)
    std::fill(writer.Row(y) + left, writer.Row(y) + right + 1, colour);
}

void DrawCircle(Surface& surface, int centre_x, int centre_y, int radius, Colour colour) {
  if (radius < 0) return;
  const int top = std::max(0, centre_y - radius);
  const int bottom = std::min(surface.Height(), centre_y + radius + 1);
  if (top >= bottom) return;
  SurfaceWriter writer(surface, top, bottom);
  const auto plot = [&](int x, int y) {
    if (surface.Contains(x, y)) writer.Row(y)[x] = colour;
  };
  // The midpoint circle: one octant, mirrored eight times.
  int x = radius;
  int y = 0;
  int error = 1 - radius;
  while (x >= y) {
    for (const auto& [dx, dy] : {std::pair{x, y}, std::pair{y, x}}) {
      plot(centre_x + dx, centre_y + dy);
      plot(centre_x - dx, centre_y + dy);
      plot(centre_x + dx, centre_y - dy);
      plot(centre_x - dx, centre_y - dy);
    }
    ++y;
    if (error < 0) {
      error += 2 * y + 1;
    } else {
      --x;
      error += 2 * (y - x) + 1;
    }
  }
}

}  // namespace orvane
