// The raised plateau with its faces, the grey mountains and the dark rock.
#include <algorithm>
#include <cmath>
#include <optional>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"
#include "content/pictures/tiles/patch.h"
#include "content/pictures/tiles/rockface.h"

namespace orvane::paint::tiles {
namespace {

// The strata of a wall from its lip to its foot.
constexpr int kLipStratum = 8;
constexpr int kMiddleStratum = 15;
constexpr int kFootStratum = 22;
constexpr int kDarkStratum = 13;

Colour Face(int x, int y, int stratum, double lift) {
  return kRock[static_cast<int>(std::floor(FaceTone(x, y, stratum) + lift))];
}

// Three tiles side by side of a face that is `foot` or not; its ends are cut upright.
Image FaceRow(bool foot) {
  const int stratum = foot ? kFootStratum : kMiddleStratum;
  return Fill(3 * kTileSize, kTileSize, [&](int x, int y) {
    if (x == 0) return kRock[1];
    if (x == 47) return kRock[0];
    double lift = foot ? -0.5 : 0;
    if (x < 3) lift += 1.0;
    if (x > 43) lift -= 1.2;
    if (foot && y == 15) return kRock[0];
    if (foot && y > 12) lift -= 1.6;
    return Face(x, y, stratum, lift);
  });
}

// Blades that hang over the edge of the plateau, in pixels, by column.
int Overhang(int x) {
  return static_cast<int>(3.4 * Hash(x % kTileSize, 0, 451) * Hash(x % kTileSize / 3, 1, 451) +
                          1.5 * Noise(x / 4.0, 0.5, 4, 452));
}

constexpr int kRimWidth = 6;

// The row of boulders along a rim: `out` pixels from the outer side, `along` it. Gives no colour
// where the boulders leave the grass free.
std::optional<Colour> Rim(int out, int along, bool lit) {
  if (out == 0) return kRock[0];
  const Facet stone = FacetAt((along + 0.5) * 3 / kTileSize, (out + 0.2) / 7.0, 3, 1, 641);
  const double reach = kRimWidth - 0.5 + 1.6 * (stone.Chance - 0.5) - 2.2 * stone.Dx * stone.Dx * 4;
  if (out > reach + 1) return std::nullopt;
  if (out > reach || stone.Edge < 0.16) return kRock[lit ? 1 : 0];
  const double tone = (lit ? 5.4 : 3.2) - 2.6 * stone.Dx - 2.4 * stone.Dy;
  return kRock[static_cast<int>(std::floor(tone))];
}

Image Plateau() {
  const Image grass = GrassTile(0);
  return Fill(3 * kTileSize, 3 * kTileSize, [&](int x, int y) {
    const int lip = 37 + Overhang(x);
    const int across = x % kTileSize;
    if (y > lip + 1) {
      if (x == 0) return kRock[1];
      if (x == 47) return kRock[0];
      const double lift = (x < 3 ? 1.0 : x > 43 ? -1.2 : 0.0) + (y < lip + 4 ? -1.8 : 0.2);
      return Face(x, y, kLipStratum, lift);
    }
    if (y == lip + 1) return kGrass[1];
    if (y == lip) return kGrass[3];
    if (y > lip - 3) return kGrass[Hash(across, y, 455) > 0.35 ? 6 : 5];
    std::optional<Colour> rim;
    if (x < kTileSize) rim = Rim(x, y % kTileSize, true);
    if (47 - x < kTileSize) rim = Rim(47 - x, y % kTileSize, false);
    if (y < kTileSize && !rim) rim = Rim(y, across, true);
    if (rim) return *rim;
    // Grass grows dark in the shade of the boulders.
    const int blades = kRimWidth + 1 + (Hash(across, 0, 458) > 0.5 ? 1 : 0);
    const int rows = kRimWidth + 1 + (Hash(y % kTileSize, 0, 457) > 0.5 ? 1 : 0);
    if (y <= blades || x <= rows || 47 - x <= rows - 1) return kGrass[2];
    return Repeated(grass, x, y);
  });
}

// What a massif is made of.
struct Massif {
  const Image& Scree;
  double ScreeShade;  // so that the scree does not show as a pale box where it lies on other ground
  const Ramp<8>& Tones;
  const Ramp<8>& TopTones;  // close to each other, so that large masses stay calm
  double (*TopTone)(int, int);
  int Stratum;
  double Lift;  // added to the tones of the face
};

// A massif in its own scree: its top, and a face toward the viewer in the lowest row.
Colour InMassif(const PatchSpot& spot, const Massif& massif) {
  if (spot.Depth < 0) {
    const Colour scree = Repeated(massif.Scree, spot.X, spot.Y);
    return Shaded(scree, spot.Depth > -1.2 ? std::max(0.55, massif.ScreeShade) : massif.ScreeShade);
  }
  const bool to_light = spot.FacingX + spot.FacingY < -0.3;
  if (spot.Depth < 1) return massif.Tones[to_light ? 2 : 0];
  const int brow = 34 + static_cast<int>(2.4 * Noise(spot.X / 4.0, 0.5, 4, massif.Stratum));
  double tone = 0;
  if (spot.Y < brow) {
    // The rims catch the light; only between them lies the calm top.
    if (spot.Y >= brow - 2) {
      tone = spot.Y == brow - 1 ? 6.6 : 5.2;
    } else if (to_light && spot.Depth < 2.4) {
      tone = 6;
    } else {
      const double top = massif.TopTone(spot.X, spot.Y) + (to_light && spot.Depth < 4 ? 1.5 : 0) -
                         (spot.FacingX > 0.6 && spot.Depth < 4 ? 1.5 : 0);
      return massif.TopTones[static_cast<int>(std::floor(std::clamp(top, 0.0, 7.0)))];
    }
  } else {
    tone = FaceTone(spot.X, spot.Y, massif.Stratum) + massif.Lift;
    if (spot.Y < brow + 2) tone -= 1.4;
    if (spot.Y > 43) tone -= 1.6;
    if (spot.FacingX > 0.6 && spot.Depth < 4) tone -= 1.0;
  }
  return massif.Tones[static_cast<int>(std::floor(std::clamp(tone, 0.0, 7.0)))];
}

Colour Mountain(const PatchSpot& spot) {
  static const Image scree = GravelTile(0);
  return InMassif(spot, {scree, 0.85, kRock, kSummit, SummitTone, kLipStratum, 0});
}

Colour DarkRock(const PatchSpot& spot) {
  // Its own rubble and not the waste's ground, since it hangs under the floors of the last stage
  // too.
  static const Image scree(kTileSize, kTileSize, kDark[2]);
  return InMassif(spot, {scree, 0.3, kDark, kDark, CaveTopTone, kDarkStratum, -0.2});
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
    sheet.Put(157 + column, plateau, column * kTileSize, 32);
  sheet.PutBlock(187, FaceRow(false));
  sheet.PutBlock(217, FaceRow(true));
  PaintPatch(sheet, {.First = 163, .Inset = 0.7, .Radius = 4, .Waver = 0.9, .Seed = 231}, Mountain);
  PaintPatch(sheet, {.First = 166, .Inset = 0.9, .Radius = 4, .Waver = 1.0, .Seed = 233}, DarkRock);
}

}  // namespace orvane::paint::tiles
