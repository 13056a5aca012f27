#include "content/pictures/tiles/noise.h"

#include <cmath>
#include <cstdint>

namespace orvane::paint::tiles {
namespace {

int Wrapped(int value, int period) {
  if (period < 1) return value;
  const int rest = value % period;
  return rest < 0 ? rest + period : rest;
}

double Smooth(double t) {
  return t * t * (3 - 2 * t);
}

}  // namespace

double Hash(int x, int y, int seed) {
  uint32_t n = static_cast<uint32_t>(x) * 374761393U + static_cast<uint32_t>(y) * 668265263U +
               static_cast<uint32_t>(seed) * 1442695041U;
  n = (n ^ (n >> 13U)) * 1274126177U;
  n = (n ^ (n >> 15U)) * 2246822519U;
  return static_cast<double>((n ^ (n >> 16U)) & 0xFFFFU) / 65536.0;
}

double Noise(double x, double y, int period, int seed) {
  const int column = static_cast<int>(std::floor(x));
  const int row = static_cast<int>(std::floor(y));
  const double u = Smooth(x - column);
  const double v = Smooth(y - row);
  const auto at = [&](int i, int j) {
    return Hash(Wrapped(column + i, period), Wrapped(row + j, period), seed);
  };
  return (at(0, 0) * (1 - u) + at(1, 0) * u) * (1 - v) + (at(0, 1) * (1 - u) + at(1, 1) * u) * v;
}

Facet FacetAt(double x, double y, int period_x, int period_y, int seed) {
  const int column = static_cast<int>(std::floor(x));
  const int row = static_cast<int>(std::floor(y));
  Facet facet;
  double first = 1e9;
  double second = 1e9;
  for (int j = -2; j <= 2; ++j) {
    for (int i = -2; i <= 2; ++i) {
      const int wrapped_column = Wrapped(column + i, period_x);
      const int wrapped_row = Wrapped(row + j, period_y);
      const double dx =
          x - (column + i + 0.5 + 0.7 * (Hash(wrapped_column, wrapped_row, seed) - 0.5));
      const double dy =
          y - (row + j + 0.5 + 0.7 * (Hash(wrapped_column, wrapped_row, seed + 1) - 0.5));
      const double distance = std::sqrt(dx * dx + dy * dy);
      if (distance < first) {
        second = first;
        first = distance;
        facet.Dx = dx;
        facet.Dy = dy;
        facet.Chance = Hash(wrapped_column, wrapped_row, seed + 2);
      } else if (distance < second) {
        second = distance;
      }
    }
  }
  facet.Edge = second - first;
  return facet;
}

}  // namespace orvane::paint::tiles
