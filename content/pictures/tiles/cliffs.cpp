// The raised plateau with its faces, the grey mountains and the dark rock.
#include <algorithm>
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"
#include "content/pictures/tiles/patch.h"
#include "content/pictures/tiles/rockface.h"

namespace orvane::paint::tiles {
namespace {

constexpr int FaceSeed = 443;

Colour Face(int x, int y, double lift) {
  return Rock[static_cast<int>(std::floor(FaceTone(x, y, FaceSeed) + lift))];
}

// Three tiles side by side of a face that is `foot` or not; its ends are cut upright.
Image FaceRow(bool foot) {
  return Fill(3 * TileSize, TileSize, [&](int x, int y) {
    if (x == 0) return Rock[1];
    if (x == 1) return Rock[6];
    if (x == 47) return Rock[0];
    if (x > 44) return Rock[2];
    if (foot && y == 15) return Rock[0];
    if (foot && y > 12) return Face(x, y, -2.2);
    return Face(x, y, foot ? -0.8 : 0);
  });
}

// Blades that hang over the edge of the plateau, in pixels, by column.
int Overhang(int x) {
  return static_cast<int>(3.4 * Hash(x % TileSize, 0, 451) * Hash(x % TileSize / 3, 1, 451) +
                          1.5 * Noise(x / 4.0, 0.5, 4, 452));
}

Image Plateau() {
  const Image grass = GrassTile(0);
  return Fill(3 * TileSize, 3 * TileSize, [&](int x, int y) {
    const int lip = 37 + Overhang(x);
    if (x < 1 && y > 2) return Rock[1];
    if (x > 46 && y > 2) return Rock[0];
    if (y > lip + 1 && y > 36) {
      if (x == 1) return Rock[6];
      if (x > 44) return Rock[2];
      return y < lip + 4 ? Face(x, y, -2.0) : Face(x, y, 0.4);
    }
    if (y == lip + 1) return Grass[1];
    if (y == lip) return Grass[3];
    if (y > lip - 3) return Grass[Hash(x % TileSize, y, 455) > 0.35 ? 6 : 5];
    // The rims: lit rock in the west and at the back, rock in shade in the east.
    const int rugged = static_cast<int>(2 * Noise(x / 3.0, y / 4.0, 0, 457) * 1.5);
    if (x < 3) return Rock[x == 1 ? 6 : 4];
    if (x < 5 + rugged % 2) return Grass[6];
    if (x > 44) return Rock[2];
    if (x > 42 - rugged % 2) return Grass[2];
    if (y < 1) return Rock[1];
    if (y < 2) return Rock[5];
    if (y < 3) return Rock[7];
    if (y < 4 + rugged % 2) return Grass[6];
    return Repeated(grass, x, y);
  });
}

// A massif in its own scree: peaks on top, a face toward the viewer in the lowest row.
template <size_t Count>
Colour Massif(const PatchSpot& spot, const Image& scree, const Ramp<Count>& ramp, int seed,
              double lift) {
  if (spot.depth < 0) {
    if (spot.depth > -1.2) return Shaded(Repeated(scree, spot.x, spot.y), 0.55);
    return Repeated(scree, spot.x, spot.y);
  }
  if (spot.depth < 1) return ramp[spot.facing_x + spot.facing_y < -0.3 ? 2 : 0];
  const int brow = 34 + static_cast<int>(2.4 * Noise(spot.x / 4.0, 0.5, 4, seed));
  double tone = 0;
  if (spot.y < brow) {
    tone = PeakTone(spot.x, spot.y) + lift;
    if (spot.y > brow - 2) tone = 6.2;
    if (spot.depth < 2.2 && spot.facing_x + spot.facing_y < -0.3) tone = 6;
    if (spot.facing_x > 0.6 && spot.depth < 4) tone -= 1.2;
  } else {
    tone = FaceTone(spot.x, spot.y, seed) - (spot.y - brow < 2 ? 1.4 : 0) -
           (spot.y > 43 ? 1.6 : 0) + lift;
    if (spot.facing_x > 0.6 && spot.depth < 4) tone -= 1.0;
  }
  return ramp[static_cast<int>(std::floor(std::clamp(tone, 0.0, 7.0)))];
}

Colour Mountain(const PatchSpot& spot) {
  static const Image scree = GravelTile(0);
  return Massif(spot, scree, Rock, FaceSeed, 0);
}

Colour DarkRock(const PatchSpot& spot) {
  static const Image scree = WasteTile(0);
  return Massif(spot, scree, Dark, 447, -0.4);
}

}  // namespace

void PaintCliffs(Sheet& sheet) {
  const Image plateau = Plateau();
  sheet.Put(18, plateau, 0, 0);
  sheet.Put(145, plateau, 16, 0);
  sheet.Put(147, plateau, 32, 0);
  sheet.Put(61, plateau, 0, 16);
  sheet.Put(63, plateau, 32, 16);
  for (int column = 0; column < 3; ++column)
    sheet.Put(157 + column, plateau, column * TileSize, 32);
  sheet.PutBlock(187, FaceRow(false));
  sheet.PutBlock(217, FaceRow(true));
  PaintPatch(sheet, {.first = 163, .inset = 1.5, .radius = 5, .waver = 1.2, .seed = 231}, Mountain);
  PaintPatch(sheet, {.first = 166, .inset = 1.5, .radius = 5, .waver = 1.2, .seed = 233}, DarkRock);
}

}  // namespace orvane::paint::tiles
