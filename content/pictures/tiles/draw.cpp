#include "content/pictures/tiles/draw.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace orvane::paint::tiles {
namespace {

constexpr int kTilesInRow = 30;

int Wrapped(int value, int size) {
  const int rest = value % size;
  return rest < 0 ? rest + size : rest;
}

}  // namespace

void Set(Image& image, int x, int y, Colour colour) {
  if (x >= 0 && y >= 0 && x < image.Width && y < image.Height) image.At(x, y) = colour;
}

Colour Repeated(const Image& image, int x, int y) {
  return image.At(Wrapped(x, image.Width), Wrapped(y, image.Height));
}

void Box(Image& image, int x, int y, int width, int height, Colour colour) {
  for (int j = 0; j < height; ++j) {
    for (int i = 0; i < width; ++i) Set(image, x + i, y + j, colour);
  }
}

void Copy(Image& image, const Image& from, int x, int y) {
  for (int j = 0; j < from.Height; ++j) {
    for (int i = 0; i < from.Width; ++i) Set(image, x + i, y + j, from.At(i, j));
  }
}

Image Tiled(const Image& from, int width, int height) {
  return Cut(from, 0, 0, width, height);
}

Image Cut(const Image& from, int x, int y, int width, int height) {
  return Fill(width, height, [&](int i, int j) { return Repeated(from, x + i, y + j); });
}

Colour Shaded(Colour colour, double strength) {
  // Blue falls least, so that shadows lean to purple; green falls most.
  const auto fall = [&](int shift, double share) {
    const double level = static_cast<double>(colour >> shift & 0xFFU);
    return static_cast<Colour>(level * (1 - share * strength)) << shift;
  };
  return fall(16, 0.56) | fall(8, 0.58) | fall(0, 0.40);
}

void CastShadow(Image& image, double x, double y, double radius_x, double radius_y,
                double strength) {
  for (int j = 0; j < image.Height; ++j) {
    for (int i = 0; i < image.Width; ++i) {
      const double distance = std::hypot((i - x) / radius_x, (j - y) / radius_y);
      if (distance < 1) {
        image.At(i, j) = Shaded(image.At(i, j), distance < 0.8 ? strength : strength * 0.6);
      }
    }
  }
}

void Stamp(Image& image, int x, int y, std::initializer_list<std::string_view> rows, Key key) {
  int j = y;
  for (const std::string_view row : rows) {
    int i = x;
    for (const char letter : row) {
      const auto* const found = std::find_if(
          key.begin(), key.end(), [&](const auto& pair) { return pair.first == letter; });
      if (found != key.end()) Set(image, i, j, found->second);
      ++i;
    }
    ++j;
  }
}

void Sheet::Put(int code, const Image& from, int x, int y) {
  if (code < 1 || code > 240) throw std::out_of_range("no such tile");
  const int left = (code - 1) % kTilesInRow * kTileSize;
  const int top = (code - 1) / kTilesInRow * kTileSize;
  for (int j = 0; j < kTileSize; ++j) {
    for (int i = 0; i < kTileSize; ++i) Picture.At(left + i, top + j) = from.At(x + i, y + j);
  }
}

void Sheet::PutBlock(int code, const Image& from) {
  for (int y = 0; y + kTileSize <= from.Height; y += kTileSize) {
    for (int x = 0; x + kTileSize <= from.Width; x += kTileSize) {
      Put(code + y / kTileSize * kTilesInRow + x / kTileSize, from, x, y);
    }
  }
}

}  // namespace orvane::paint::tiles
