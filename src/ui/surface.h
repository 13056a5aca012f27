// Rectangles of pixels and the few operations that everything on the screen is drawn with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "src/ui/shared_pixels.h"

namespace orvane {

constexpr Colour Rgb(int red, int green, int blue) {
  return static_cast<Colour>(red) << 16 | static_cast<Colour>(green) << 8 |
         static_cast<Colour>(blue);
}

// How a blit joins source and destination, bit by bit.
enum class Blit {
  Copy,  // destination = source
  Or,    // destination = destination OR source
  And,   // destination = destination AND source
};

// A rectangle: left and top edge, width and height, in pixels.
struct Rect {
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;
};

// A part of a surface: from Left and Top to before Right and Bottom, in pixels.
struct Bounds {
  int Left = 0;
  int Top = 0;
  int Right = 0;
  int Bottom = 0;

  bool IsEmpty() const { return Left >= Right || Top >= Bottom; }
  // Grows to hold the other one too, which is not empty.
  void Include(const Bounds& other);
};

// Counts what a surface shows: where it was counted otherwise elsewhere, it goes on here.
struct RevisionCount {
  uint64_t Now = 0;
  uint64_t Before = 0;  // from which Refresh led to Now; Now where something else did

  RevisionCount() = default;
  RevisionCount(const RevisionCount&) = default;
  ~RevisionCount() = default;
  RevisionCount& operator=(const RevisionCount& /*other*/) {
    Before = ++Now;
    return *this;
  }
  void Advance() { Before = Now++; }
};

// A width x height picture with a backing store that is drawn on and a published copy that is
// shown. Copies of a Surface share their pixels until one of them is drawn on.
class Surface {
 public:
  using Pixels = SharedPixels::Pixels;

  Surface() : Surface(0, 0) {}
  // Negative sizes count as 0. Takes memory for its pixels when they are first looked at.
  Surface(int width, int height, Colour colour = 0);
  // `pixels` holds width * height colours, row by row.
  Surface(int width, int height, Pixels pixels);
  // The same with pixels that are made when they are first looked at.
  Surface(int width, int height, SharedPixels::Maker maker);

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

  // Colour of a pixel of the backing store, or of what is shown; throws RunError(Subscript)
  // outside.
  Colour At(int x, int y) const;
  Colour ShownAt(int x, int y) const;

  // The rows of the backing store, Width() colours each.
  const Colour* Row(int y) const { return pixels_->Get().data() + Offset(y); }

  // Publishes what has been drawn since the last time: from now on it is what the player sees.
  void Refresh();

  // Where the backing store may have changed since this was last asked: at first, all of it.
  Bounds TakeTouched() { return std::exchange(touched_, {}); }
  // Whether neither this nor the other has been drawn on since one was made a copy of the other.
  bool SharesPixelsWith(const Surface& other) const { return pixels_ == other.pixels_; }

  // The published pixels, none before the first Refresh; they stay in place until the next.
  const Pixels& Shown() const;
  // Grows with every Refresh that changed something, and when another surface is put in this one's
  // place.
  uint64_t Revision() const { return revision_.Now; }
  // Outside, what is shown is as it was at that revision: a part, if that was the one before, or
  // else all.
  Bounds ChangedSince(uint64_t revision) const;

 private:
  friend class SurfaceWriter;

  Surface(int width, int height, std::shared_ptr<SharedPixels> pixels);

  size_t Offset(int y) const { return static_cast<size_t>(y) * static_cast<size_t>(width_); }

  int width_ = 0;
  int height_ = 0;
  std::shared_ptr<SharedPixels> pixels_;
  std::shared_ptr<SharedPixels> shown_;  // the same as pixels_ where nothing was drawn since
  Bounds unshown_;                       // outside, nothing differs from what is shown
  Bounds touched_;
  RevisionCount revision_;
  Bounds published_;  // what the last Refresh has changed
};

// Copies a part of one store into another. Both have rows of so many pixels, and the part lies
// within them.
void CopyPart(const Surface::Pixels& from, Surface::Pixels& to, int width, const Bounds& part);

// Copies `area` of the source, its top left corner at (x, y) of the destination, at scale 1. What
// lies outside either surface is left out. Source and destination may be the same surface.
void BitBlt(Surface& destination, int x, int y, int width, int height, const Surface& source,
            int source_x, int source_y, Blit operation);

// The same with scaling: destination pixel i reads source pixel floor(i * source size / destination
// size). A size of 0 or less draws nothing. Within one surface, a copy of the source is read.
void StretchBlt(Surface& destination, const Rect& target, const Surface& source, const Rect& area,
                Blit operation);

// Fills the rectangle that has these two pixels as opposite corners, both included; clipped.
void FillBox(Surface& surface, int x1, int y1, int x2, int y2, Colour colour);

// The largest circle that is drawn.
constexpr int kLargestRadius = 32767;

// Draws a circle's outline, one pixel wide; clipped. A negative radius draws nothing, and so does
// one beyond the largest.
void DrawCircle(Surface& surface, int centre_x, int centre_y, int radius, Colour colour);

}  // namespace orvane
