#include "tests/unit/pictures/tile_checks.h"

#include <cmath>
#include <utility>

#include "src/field/tiles.h"

namespace orvane::pictures {
namespace {

constexpr int kTilesPerRow = 30;
constexpr int kMaskFrom = 72;
constexpr double kLost = 32;

double Part(Colour colour, unsigned shift) {
  return static_cast<double>(colour >> shift & 0xFFU);
}

double Distance(Colour one, Colour other) {
  double sum = 0;
  for (const unsigned shift : {0U, 8U, 16U}) {
    const double difference = Part(one, shift) - Part(other, shift);
    sum += difference * difference;
  }
  return std::sqrt(sum);
}

}  // namespace

Rect TileCell(int code) {
  return {(code - 1) % kTilesPerRow * kTileSize, (code - 1) / kTilesPerRow * kTileSize, kTileSize,
          kTileSize};
}

double Grey(Colour colour) {
  return 0.299 * Part(colour, 16) + 0.587 * Part(colour, 8) + 0.114 * Part(colour, 0);
}

double MeanGrey(const Surface& sheet, const Rect& cell) {
  double sum = 0;
  for (int y = 0; y < cell.Height; ++y) {
    for (int x = 0; x < cell.Width; ++x) sum += Grey(sheet.At(cell.X + x, cell.Y + y));
  }
  return sum / (cell.Width * cell.Height);
}

double ShareOfWalkableLighter(const Surface& tiles) {
  std::vector<double> walkable;
  std::vector<double> blocking;
  for (int code = 1; code <= kTileCodes; ++code) {
    (IsWalkable(code) ? walkable : blocking).push_back(MeanGrey(tiles, TileCell(code)));
  }
  int lighter = 0;
  for (const double ground : walkable) {
    for (const double wall : blocking) lighter += ground > wall ? 1 : 0;
  }
  return static_cast<double>(lighter) / static_cast<double>(walkable.size() * blocking.size());
}

Faults NeighbourFaults(const Surface& tiles, const std::vector<TilePair>& pairs) {
  Faults faults;
  for (const TilePair& pair : pairs) {
    const double lighter =
        MeanGrey(tiles, TileCell(pair.Walkable)) - MeanGrey(tiles, TileCell(pair.Blocking));
    if (lighter >= pair.LeastGrey) continue;
    faults.push_back(pair.Name + ": lighter by " + std::to_string(lighter) + ", not by " +
                     std::to_string(pair.LeastGrey));
  }
  return faults;
}

Standout StandoutOn(const Surface& hero, const Rect& figure, const Surface& tiles, int code) {
  const Rect tile = TileCell(code);
  const SpritePair pair{"hero", figure, kMaskFrom + figure.X, figure.Y};
  const auto in_figure = [&](int x, int y) { return InFigure(hero, pair, x, y); };
  Standout result;
  int places = 0;
  int lost = 0;
  for (int y = 0; y < figure.Height; ++y) {
    for (int x = 0; x < figure.Width; ++x) {
      if (!in_figure(x, y)) continue;
      const Colour rim = hero.At(figure.X + x, figure.Y + y);
      for (const auto& [dx, dy] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 1}}) {
        if (in_figure(x + dx, y + dy)) continue;
        const Colour ground = tiles.At(tile.X + (x + dx + kTileSize) % kTileSize,
                                       tile.Y + (y + dy + kTileSize) % kTileSize);
        const double distance = Distance(rim, ground);
        result.MeanColour += distance;
        result.MeanGrey += std::abs(Grey(rim) - Grey(ground));
        lost += distance < kLost ? 1 : 0;
        ++places;
      }
    }
  }
  result.MeanColour /= places;
  result.MeanGrey /= places;
  result.ShareLost = static_cast<double>(lost) / places;
  return result;
}

}  // namespace orvane::pictures
