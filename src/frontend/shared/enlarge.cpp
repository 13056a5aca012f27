#include "src/frontend/shared/enlarge.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace orvane {
namespace {

constexpr uint32_t kWhole = 256;  // weights are parts of it

// What one pixel of the result covers along an axis: a pixel, and where it reaches beyond that, a
// part of the next one.
struct Cover {
  size_t First = 0;
  size_t Second = 0;
  uint32_t SecondWeight = 0;
};

std::vector<Cover> Covers(int from, int count, int size, double scale) {
  std::vector<Cover> covers;
  const auto pixel = [size](double at) {
    return static_cast<size_t>(std::clamp(static_cast<int>(at), 0, size - 1));
  };
  for (int i = from; i < from + count; ++i) {
    const double begin = i / scale;
    const double end = (i + 1) / scale;
    const double edge = std::floor(begin) + 1;
    const double beyond = std::max(0.0, end - edge) * scale;
    covers.push_back(
        {pixel(begin), pixel(edge), static_cast<uint32_t>(std::lround(beyond * kWhole))});
  }
  return covers;
}

// Red and blue in one, green in the other, so that a product leaves room between them.
constexpr uint32_t kRedAndBlue = 0x00FF00FF;
constexpr uint32_t kGreen = 0x0000FF00;

uint32_t Mix(uint32_t first, uint32_t second, uint32_t weight) {
  if (weight == 0 || first == second) return first;
  const auto mixed = [=](uint32_t mask, uint32_t shift) {
    const uint32_t one = (first & mask) >> shift;
    const uint32_t other = (second & mask) >> shift;
    return ((one * (kWhole - weight) + other * weight) / kWhole << shift) & mask;
  };
  return 0xFF000000 | mixed(kRedAndBlue, 0) | mixed(kGreen, 8);
}

}  // namespace

std::vector<uint32_t> Enlarge(const uint32_t* pixels, int width, int height, double scale,
                              const Rect& part) {
  std::vector<uint32_t> result;
  if (width <= 0 || height <= 0) return result;
  const std::vector<Cover> columns = Covers(part.X, part.Width, width, scale);
  result.reserve(columns.size() * static_cast<size_t>(std::max(0, part.Height)));
  for (const Cover& row : Covers(part.Y, part.Height, height, scale)) {
    const uint32_t* upper = pixels + row.First * static_cast<size_t>(width);
    const uint32_t* lower = pixels + row.Second * static_cast<size_t>(width);
    for (const Cover& column : columns) {
      const uint32_t above = Mix(upper[column.First], upper[column.Second], column.SecondWeight);
      const uint32_t below = Mix(lower[column.First], lower[column.Second], column.SecondWeight);
      result.push_back(Mix(above, below, row.SecondWeight));
    }
  }
  return result;
}

}  // namespace orvane
