// Small drawing tools on Images, and the sheet that the tiles are put on.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "content/pictures/shared/ramp.h"
#include "tools/paint/recipe.h"

namespace orvane::paint::tiles {

using Colour = uint32_t;  // 0xRRGGBB

constexpr int kTileSize = 16;

// Paints every pixel of a new picture from `colour_at(x, y)`.
template <typename ColourAt>
Image Fill(int width, int height, ColourAt colour_at) {
  Image image(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) image.At(x, y) = colour_at(x, y);
  }
  return image;
}

// Sets a pixel; places outside the picture are left out.
void Set(Image& image, int x, int y, Colour colour);

// The pixel at (x, y) of a picture that repeats in all directions.
Colour Repeated(const Image& image, int x, int y);

// A filled rectangle, clipped.
void Box(Image& image, int x, int y, int width, int height, Colour colour);

// Copies all of `from` to (x, y), clipped.
void Copy(Image& image, const Image& from, int x, int y);

// `from` laid side by side to fill width by height.
Image Tiled(const Image& from, int width, int height);

// The part of `from` at (x, y); what lies outside repeats the picture.
Image Cut(const Image& from, int x, int y, int width = kTileSize, int height = kTileSize);

// A colour in shade: darker and a little to purple. Strength 0 leaves it, 1 is the deepest shade.
Colour Shaded(Colour colour, double strength);

// Puts an ellipse of shade on the picture, softest at its rim.
void CastShadow(Image& image, double x, double y, double radius_x, double radius_y,
                double strength);

// Hand-drawn pixels: each letter takes the colour named for it, letters without one stay clear.
using Key = std::initializer_list<std::pair<char, Colour>>;
void Stamp(Image& image, int x, int y, std::initializer_list<std::string_view> rows, Key key);

// The tile sheet, 30 tiles in a row, numbered from 1.
class Sheet {
 public:
  Sheet() : Picture(480, 128, 0x3C3038) {}

  // Puts the 16 by 16 pixels at (x, y) of `from` on tile `code`, which must be 1 to 240.
  void Put(int code, const Image& from, int x = 0, int y = 0);

  // Cuts `from` into tiles: the first goes to `code`, those below stand 30 codes on.
  void PutBlock(int code, const Image& from);

  Image Picture;
};

}  // namespace orvane::paint::tiles
