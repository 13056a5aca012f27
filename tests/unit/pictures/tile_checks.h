// How well tiles, and the hero upon them, can be told apart. Distances of colours are Euclidean in
// red, green and blue, 0 to 441; greys are 0 to 255.
#pragma once

#include <string>
#include <vector>

#include "src/ui/surface.h"
#include "tests/unit/pictures/sprite_checks.h"

namespace orvane::pictures {

constexpr int kTileSize = 16;
constexpr int kTileCodes = 240;

// The cell of a tile code, 1 to 240, on the tile sheet.
Rect TileCell(int code);

// The grey of a colour as the eye weighs it.
double Grey(Colour colour);

// The mean grey of a rectangle, which lies inside of the sheet.
double MeanGrey(const Surface& sheet, const Rect& cell);

// The share of pairs of a walkable tile and a blocking one of which the walkable one is lighter; a
// half when grey says nothing.
double ShareOfWalkableLighter(const Surface& tiles);

// A walkable tile and a blocking one that are seen side by side.
struct TilePair {
  std::string Name;
  int Walkable;
  int Blocking;
  double LeastGrey;  // how much lighter in grey the walkable one must be
};

// The pairs of which the walkable tile is not that much lighter.
Faults NeighbourFaults(const Surface& tiles, const std::vector<TilePair>& pairs);

// How a figure stands out from a ground: over its outermost pixels, against the ground that the
// neighbours outside of the figure show. Its shadow is left out, as if the ground went on there.
struct Standout {
  double MeanColour = 0;  // mean distance of colours
  double MeanGrey = 0;    // mean difference of greys
  double ShareLost = 0;   // share of places whose distance is below 32
};

// `figure` is a cell of a hero's sheet whose mask lies 72 pixels to the right; the ground is the
// tile, repeated.
Standout StandoutOn(const Surface& hero, const Rect& figure, const Surface& tiles, int code);

}  // namespace orvane::pictures
