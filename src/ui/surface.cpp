#include "src/ui/surface.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

#include "src/base/array.h"

namespace orvane {

void Bounds::Include(const Bounds& other) {
  if (IsEmpty()) {
    *this = other;
    return;
  }
  Left = std::min(Left, other.Left);
  Top = std::min(Top, other.Top);
  Right = std::max(Right, other.Right);
  Bottom = std::max(Bottom, other.Bottom);
}

// Write access to a surface's backing store, which notes the part that is about to change.
class SurfaceWriter {
 public:
  // `part` lies within the surface and is not empty.
  SurfaceWriter(Surface& surface, const Bounds& part) : surface_(surface) {
    if (surface.pixels_.use_count() > 1) {
      surface.pixels_ = std::make_shared<SharedPixels>(surface.pixels_->Get());
    }
    surface.unshown_.Include(part);
    surface.touched_.Include(part);
  }
  Colour* Row(int y) { return surface_.pixels_->Get().data() + surface_.Offset(y); }

 private:
  Surface& surface_;
};

namespace {

size_t Area(int width, int height) {
  return static_cast<size_t>(std::max(0, width)) * static_cast<size_t>(std::max(0, height));
}

Surface::Pixels Sized(Surface::Pixels pixels, size_t size) {
  pixels.resize(size);
  return pixels;
}

}  // namespace

Surface::Surface(int width, int height, Colour colour)
    : Surface(width, height,
              [size = Area(width, height), colour] { return Pixels(size, colour); }) {}

Surface::Surface(int width, int height, Pixels pixels)
    : Surface(width, height,
              std::make_shared<SharedPixels>(Sized(std::move(pixels), Area(width, height)))) {}

Surface::Surface(int width, int height, SharedPixels::Maker maker)
    : Surface(width, height, std::make_shared<SharedPixels>(std::move(maker))) {}

Surface::Surface(int width, int height, std::shared_ptr<SharedPixels> pixels)
    : width_(std::max(0, width)),
      height_(std::max(0, height)),
      pixels_(std::move(pixels)),
      unshown_{0, 0, width_, height_},
      touched_(unshown_) {}

Colour Surface::At(int x, int y) const {
  CheckIndex(x, static_cast<size_t>(width_));
  CheckIndex(y, static_cast<size_t>(height_));
  return Row(y)[x];
}

Colour Surface::ShownAt(int x, int y) const {
  CheckIndex(x, static_cast<size_t>(width_));
  CheckIndex(y, static_cast<size_t>(height_));
  return shown_ ? shown_->Get()[Offset(y) + static_cast<size_t>(x)] : 0;
}

const Surface::Pixels& Surface::Shown() const {
  static const Pixels none;
  return shown_ ? shown_->Get() : none;
}

void Surface::Refresh() {
  if (!shown_) unshown_ = {0, 0, width_, height_};
  if (unshown_.IsEmpty()) return;
  // What is drawn on again and again has a second store, so that each change is copied alone. What
  // is a copy of another's, or shown for the first time, is shown as it is: a sheet is not read to
  // be shown out of sight, and what is drawn once has one store.
  if (shown_.use_count() == 1) {
    CopyPart(pixels_->Get(), shown_->Get(), width_, unshown_);
  } else {
    shown_ = pixels_;
  }
  published_ = std::exchange(unshown_, {});
  revision_.Advance();
}

Bounds Surface::ChangedSince(uint64_t revision) const {
  if (revision == revision_.Now) return {};
  if (revision == revision_.Before) return published_;
  return {0, 0, width_, height_};
}

void CopyPart(const Surface::Pixels& from, Surface::Pixels& to, int width, const Bounds& part) {
  for (int y = part.Top; y < part.Bottom; ++y) {
    const auto begin = static_cast<std::ptrdiff_t>(y) * width + part.Left;
    std::copy_n(from.begin() + begin, part.Right - part.Left, to.begin() + begin);
  }
}

namespace {

// The rows of a blit: where they begin in both surfaces, how far one row lies from the next, and
// how many pixels and rows there are.
struct Rows {
  Colour* To;
  const Colour* From;
  int ToPitch;
  int FromPitch;
  int Width;
  int Height;

  // Calls `join` with both beginnings of each row.
  template <typename Join>
  void ForEach(Join join) const {
    Colour* to = To;
    const Colour* from = From;
    for (int row = 0; row < Height; ++row, to += ToPitch, from += FromPitch) join(to, from);
  }
};

void CopyRows(const Rows& rows) {
  // Of a size that it knows, as a tile's is, the compiler makes a few moves.
  constexpr int tile = 16;
  if (rows.Width == tile) {
    return rows.ForEach(
        [](Colour* to, const Colour* from) { std::memcpy(to, from, tile * sizeof(Colour)); });
  }
  const size_t size = static_cast<size_t>(rows.Width) * sizeof(Colour);
  rows.ForEach([size](Colour* to, const Colour* from) { std::memcpy(to, from, size); });
}

void OrRows(const Rows& rows) {
  rows.ForEach([width = rows.Width](Colour* to, const Colour* from) {
    for (int i = 0; i < width; ++i) to[i] |= from[i];
  });
}

void AndRows(const Rows& rows) {
  rows.ForEach([width = rows.Width](Colour* to, const Colour* from) {
    for (int i = 0; i < width; ++i) to[i] &= from[i];
  });
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

Axis MapAxis(std::int64_t target, int target_size, int target_limit, std::int64_t source,
             int source_size, int source_limit) {
  Axis axis;
  const std::int64_t begin = std::max<std::int64_t>(0, -target);
  const std::int64_t end = std::min<std::int64_t>(target_size, target_limit - target);
  if (begin < end) axis.Sources.reserve(static_cast<size_t>(end - begin));
  // One division for all: from pixel to pixel the quotient grows by the same, and the remainder.
  const std::int64_t step = source_size / target_size;
  const std::int64_t step_rest = source_size % target_size;
  std::int64_t from = source + begin * source_size / target_size;
  std::int64_t rest = begin * source_size % target_size;
  const auto advance = [&] {
    from += step;
    rest += step_rest;
    if (rest >= target_size) {
      rest -= target_size;
      ++from;
    }
  };
  for (std::int64_t i = begin; i < end; ++i, advance()) {
    if (from < 0 || from >= source_limit) {
      if (!axis.Sources.empty()) break;
      continue;
    }
    if (axis.Sources.empty()) axis.First = static_cast<int>(target + i);
    axis.Sources.push_back(static_cast<int>(from));
  }
  return axis;
}

// A copy of the source where it is the destination too; the pixels are shared until the first
// write.
std::optional<Surface> CopyIfSame(const Surface& destination, const Surface& source) {
  if (&destination != &source) return std::nullopt;
  return source;
}

// What is left of one axis of a blit inside both surfaces.
struct Cut {
  int Target = 0;
  int Source = 0;
  int Size = 0;  // 0 or less when nothing is left
};

// Inline, as handing the three numbers back would take as long as copying a tile.
inline Cut CutAxis(std::int64_t target, int target_limit, std::int64_t source, int source_limit,
                   std::int64_t size) {
  const std::int64_t before = std::max<std::int64_t>(0, std::max(-target, -source));
  const std::int64_t room = std::min(target_limit - target, source_limit - source);
  const std::int64_t left = std::min(size, room) - before;
  if (left <= 0) return {};
  return {static_cast<int>(target + before), static_cast<int>(source + before),
          static_cast<int>(left)};
}

}  // namespace

void BitBlt(Surface& destination, int x, int y, int width, int height, const Surface& source,
            int source_x, int source_y, Blit operation) {
  const Cut across = CutAxis(x, destination.Width(), source_x, source.Width(), width);
  const Cut down = CutAxis(y, destination.Height(), source_y, source.Height(), height);
  if (across.Size <= 0 || down.Size <= 0) return;
  const std::optional<Surface> copy = CopyIfSame(destination, source);
  const Surface& origin = copy ? *copy : source;
  SurfaceWriter writer(destination, {across.Target, down.Target, across.Target + across.Size,
                                     down.Target + down.Size});
  const Rows rows{writer.Row(down.Target) + across.Target,
                  origin.Row(down.Source) + across.Source,
                  destination.Width(),
                  origin.Width(),
                  across.Size,
                  down.Size};
  switch (operation) {
    case Blit::Copy:
      return CopyRows(rows);
    case Blit::Or:
      return OrRows(rows);
    case Blit::And:
      return AndRows(rows);
  }
}

void StretchBlt(Surface& destination, const Rect& target, const Surface& source, const Rect& area,
                Blit operation) {
  if (target.Width <= 0 || target.Height <= 0 || area.Width <= 0 || area.Height <= 0) return;
  if (target.Width == area.Width && target.Height == area.Height) {
    return BitBlt(destination, target.X, target.Y, target.Width, target.Height, source, area.X,
                  area.Y, operation);
  }
  const Axis across =
      MapAxis(target.X, target.Width, destination.Width(), area.X, area.Width, source.Width());
  const Axis down =
      MapAxis(target.Y, target.Height, destination.Height(), area.Y, area.Height, source.Height());
  if (across.Sources.empty() || down.Sources.empty()) return;
  const std::optional<Surface> copy = CopyIfSame(destination, source);
  const Surface& from = copy ? *copy : source;
  const int rows = static_cast<int>(down.Sources.size());
  SurfaceWriter writer(destination,
                       {across.First, down.First,
                        across.First + static_cast<int>(across.Sources.size()), down.First + rows});
  const Colour* last = nullptr;
  for (int row = 0; row < rows; ++row) {
    Colour* to = writer.Row(down.First + row) + across.First;
    const Colour* source_row = from.Row(down.Sources[static_cast<size_t>(row)]);
    if (operation == Blit::Copy && source_row == last) {
      std::copy_n(to - destination.Width(), across.Sources.size(), to);
    } else {
      StretchRow(to, source_row, across.Sources, operation);
    }
    last = source_row;
  }
}

void FillBox(Surface& surface, int x1, int y1, int x2, int y2, Colour colour) {
  const int left = std::max(0, std::min(x1, x2));
  const int right = std::min(surface.Width() - 1, std::max(x1, x2));
  const int top = std::max(0, std::min(y1, y2));
  const int bottom = std::min(surface.Height() - 1, std::max(y1, y2));
  if (left > right || top > bottom) return;
  SurfaceWriter writer(surface, {left, top, right + 1, bottom + 1});
  for (int y = top; y <= bottom; ++y)
    std::fill(writer.Row(y) + left, writer.Row(y) + right + 1, colour);
}

void DrawCircle(Surface& surface, int centre_x, int centre_y, int radius, Colour colour) {
  if (radius < 0 || radius > kLargestRadius) return;
  const auto within = [](std::int64_t edge, int limit) {
    return static_cast<int>(std::clamp<std::int64_t>(edge, 0, limit));
  };
  const std::int64_t half = radius;
  const Bounds part{
      within(centre_x - half, surface.Width()), within(centre_y - half, surface.Height()),
      within(centre_x + half + 1, surface.Width()), within(centre_y + half + 1, surface.Height())};
  if (part.IsEmpty()) return;
  // From here on the circle's square touches the surface: no sum leaves its range.
  SurfaceWriter writer(surface, part);
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
