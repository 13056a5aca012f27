#include "content/pictures/effects/cell.h"

#include "content/pictures/tiles/noise.h"

namespace orvane::paint::effects {
namespace {

constexpr int kMaskLeft = 192;
constexpr Colour kWhite = 0xFFFFFF;

}  // namespace

void PaintCell(Image& sheet, int column, int row, const Shape& shape) {
  for (int y = 1; y < kCellSize - 1; ++y) {
    for (int x = 1; x < kCellSize - 1; ++x) {
      const std::optional<Colour> colour = shape(x - 11.5, y - 11.5);
      if (!colour) continue;
      sheet.At(column * kCellSize + x, row * kCellSize + y) = *colour;
      sheet.At(kMaskLeft + column * kCellSize + x, row * kCellSize + y) = kWhite;
    }
  }
}

double Wander(double x, double y, int seed) {
  return tiles::Noise(x, y, 0, seed);
}

}  // namespace orvane::paint::effects
