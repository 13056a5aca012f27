// A picture in the making: floating-point colours, and the steps that make a sheet of it.
#pragma once

#include <vector>

#include "content/pictures/scenes/colour.h"
#include "tools/paint/recipe.h"

namespace orvane::paint::scene {

// A row of colours after the other from the top.
struct Canvas {
  Canvas(int wide, int high)
      : Width(wide), Height(high), Pixels(static_cast<size_t>(wide) * static_cast<size_t>(high)) {}

  // The colour at (x, y), which must lie inside.
  Colour& At(int x, int y) {
    return Pixels[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
  }
  const Colour& At(int x, int y) const {
    return Pixels[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
  }

  // Lays the colour over (x, y) with the given cover, 0 to 1; outside the canvas nothing happens.
  void Blend(int x, int y, Colour colour, float cover = 1) {
    if (x < 0 || y < 0 || x >= Width || y >= Height) return;
    At(x, y) = Mix(At(x, y), colour, cover);
  }

  int Width;
  int Height;
  std::vector<Colour> Pixels;
};

// The mean of each block of `across` by `down` colours; the size must be a multiple of the block.
Canvas Shrink(const Canvas& canvas, int across, int down);

// Every colour becomes the calmest of the four means around it, `share` of it mixed over the
// original: flat strokes with crisp borders, which look painted. Radius in pixels, from 1.
Canvas Painted(const Canvas& canvas, int radius, float share);

// The canvas as a sheet of at most `colours` colours, with an ordered dither of `dither` grey
// levels before. The palette is made from the canvas itself.
Image ToSheet(const Canvas& canvas, int colours, float dither);

// The canvas as a sheet of any number of colours.
Image ToSheet(const Canvas& canvas);

}  // namespace orvane::paint::scene
