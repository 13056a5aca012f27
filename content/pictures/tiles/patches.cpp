// Grounds set into grass.
#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"
#include "content/pictures/tiles/patch.h"

namespace orvane::paint::tiles {
namespace {

// Grass stands higher than what is set into it: it throws shade where the ground's shore faces the
// light in the upper left, and shows a lit rim on the far side.
template <size_t Count>
Colour InGrass(const PatchSpot& spot, const Image& ground, const Ramp<Count>& ramp) {
  static const Image grass = GrassTile(0);
  const bool shaded_side = spot.FacingX + spot.FacingY < -0.2;
  if (spot.Depth > 0) {
    if (shaded_side && spot.Depth < 1.0) return ramp[0];
    if (shaded_side && spot.Depth < 2.2) return ramp[1];
    if (!shaded_side && spot.Depth < 1.2) return ramp[4];
    return Repeated(ground, spot.X, spot.Y);
  }
  if (spot.Depth > -1.2) return shaded_side ? kGrass[6] : kGrass[2];
  if (spot.Depth > -2.2) return shaded_side ? kGrass[5] : kGrass[3];
  return Repeated(grass, spot.X, spot.Y);
}

Colour PathInGrass(const PatchSpot& spot) {
  static const Image ground = PathTile();
  return InGrass(spot, ground, kPath);
}

Colour SandInGrass(const PatchSpot& spot) {
  static const Image ground = SandTile(0);
  return InGrass(spot, ground, kSand);
}

Colour LitterInGrass(const PatchSpot& spot) {
  static const Image ground = LitterTile(0);
  return InGrass(spot, ground, kLitter);
}

Colour PavingInGrass(const PatchSpot& spot) {
  static const Image ground = PavingTile(0);
  return InGrass(spot, ground, kStone);
}

Colour WasteInGrass(const PatchSpot& spot) {
  static const Image ground = WasteTile(0);
  return InGrass(spot, ground, kWaste);
}

// A trail one cell wide, from the two opposite shores of a patch.
Image Trail(bool across) {
  return Fill(kTileSize, kTileSize, [&](int x, int y) {
    const int place = across ? y : x;
    const double waver = 1.6 * Noise((across ? x : y) / 3.2, 0.5, 5, 213);
    PatchSpot spot;
    spot.X = x;
    spot.Y = y;
    const double near_side = place + 0.5 - 2.5 - waver;
    const double far_side = 13.5 - (place + 0.5) + waver - 1;
    spot.Depth = near_side < far_side ? near_side : far_side;
    (across ? spot.FacingY : spot.FacingX) = near_side < far_side ? -1 : 1;
    return PathInGrass(spot);
  });
}

}  // namespace

void PaintPatches(Sheet& sheet) {
  PaintPatch(sheet, {.First = 64, .Inner = {70, 71, 100, 101}, .Inset = 4, .Seed = 201},
             PathInGrass);
  sheet.Put(72, Trail(true));
  sheet.Put(102, Trail(false));
  PaintPatch(sheet,
             {.First = 67, .Inner = {75, 105, 133, 134}, .Inset = 5, .Waver = 1.8, .Seed = 203},
             SandInGrass);
  PaintPatch(sheet, {.First = 76, .Inset = 4, .Waver = 2.2, .Seed = 205}, LitterInGrass);
  PaintPatch(sheet, {.First = 79, .Inset = 4, .Radius = 3, .Waver = 1.0, .Seed = 207},
             PavingInGrass);
  PaintPatch(sheet, {.First = 160, .Inset = 5, .Waver = 2.0, .Seed = 209}, WasteInGrass);
}

}  // namespace orvane::paint::tiles
