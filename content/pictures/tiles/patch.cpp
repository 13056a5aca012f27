#include "content/pictures/tiles/patch.h"

#include <algorithm>
#include <cmath>

#include "content/pictures/tiles/noise.h"

namespace orvane::paint::tiles {
namespace {

constexpr double kPatchSize = 3.0 * kTileSize;

// Depth inside a rounded square of three by three tiles.
double OuterDepth(const PatchPlan& plan, double x, double y) {
  const double half = kPatchSize / 2 - plan.Inset - plan.Radius;
  const double dx = std::abs(x + 0.5 - kPatchSize / 2) - half;
  const double dy = std::abs(y + 0.5 - kPatchSize / 2) - half;
  const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
  return plan.Radius - outside - std::min(std::max(dx, dy), 0.0);
}

// Depth in a tile that is all inside but for a rounded square in one corner.
double InnerDepth(const PatchPlan& plan, int corner, double x, double y) {
  const double across = (corner % 2 == 0 ? x + 0.5 : kTileSize - 0.5 - x) - plan.Inset;
  const double down = (corner < 2 ? y + 0.5 : kTileSize - 0.5 - y) - plan.Inset;
  const double soft = 3.0;
  const double dx = across + soft;
  const double dy = down + soft;
  if (dx > 0 && dy > 0) return std::hypot(dx, dy) - soft;
  return std::max(across, down);
}

template <typename Depth>
Image Paint(const PatchPlan& plan, int size, Depth depth, Colour (*colour_at)(const PatchSpot&)) {
  return Fill(size, size, [&](int x, int y) {
    PatchSpot spot;
    spot.X = x;
    spot.Y = y;
    const double slope_x = depth(x + 1.0, y) - depth(x - 1.0, y);
    const double slope_y = depth(x, y + 1.0) - depth(x, y - 1.0);
    const double slope = std::max(std::hypot(slope_x, slope_y), 1e-6);
    spot.FacingX = -slope_x / slope;
    spot.FacingY = -slope_y / slope;
    const double waver = 0.6 * Noise(x / 4.0, y / 4.0, 4, plan.Seed) +
                         0.4 * Noise(x / 2.0, y / 2.0, 8, plan.Seed + 1) - 0.5;
    spot.Depth = depth(x, y) + 2 * plan.Waver * waver;
    return colour_at(spot);
  });
}

}  // namespace

void PaintPatch(Sheet& sheet, const PatchPlan& plan, Colour (*colour_at)(const PatchSpot&)) {
  sheet.PutBlock(plan.First,
                 Paint(
                     plan, 3 * kTileSize,
                     [&](double x, double y) { return OuterDepth(plan, x, y); }, colour_at));
  for (int corner = 0; corner < 4; ++corner) {
    const int code = plan.Inner[static_cast<size_t>(corner)];
    if (code == 0) continue;
    sheet.Put(code,
              Paint(
                  plan, kTileSize,
                  [&](double x, double y) { return InnerDepth(plan, corner, x, y); }, colour_at));
  }
}

}  // namespace orvane::paint::tiles
