// What is asked of sheets of sprites. Every check returns its faults as sentences, none when all is
// well, and looks at nothing but what it is given.
#pragma once

#include <string>
#include <vector>

#include "src/ui/surface.h"

namespace orvane::pictures {

using Faults = std::vector<std::string>;

constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kBlack = 0x000000;
// Every shadow on the ground has this colour, and no figure has it.
constexpr Colour kShadow = 0x2A2840;

// A picture on white and its mask, white on black. Where a sheet is too small for the mask, the
// mask counts as black: the game cuts it off there.
struct SpritePair {
  std::string Name;
  Rect Image;  // cell of the picture
  int MaskX = 0;
  int MaskY = 0;
  int LeastFigure = 1;    // pixels that the mask and the picture must have at least
  bool ClearEdge = true;  // the figure keeps off the cell's outermost pixels
};

// A white shape on black without a picture, which is simply added to the ground.
struct WhiteStrip {
  std::string Name;
  Rect Cell;
  int LeastFigure = 1;
};

// Width and height, and no more colours than that; 0 for any number.
Faults SizeFaults(const Surface& sheet, int width, int height, int most_colours);

// How many different colours a surface has.
int ColourCount(const Surface& sheet);

// The mask is pure black and white, the picture is white wherever the mask is black, both have a
// figure, and it keeps off the edge.
Faults PairFaults(const Surface& sheet, const SpritePair& pair);

// The strip is pure black and white and has a figure that keeps off its edge.
Faults StripFaults(const Surface& sheet, const WhiteStrip& strip);

// What lies in no cell of these is black, and no two cells overlap.
Faults OutsideFaults(const Surface& sheet, const std::vector<SpritePair>& pairs,
                     const std::vector<WhiteStrip>& strips);

// The cells' pictures are all different.
Faults SamenessFaults(const Surface& sheet, const std::vector<Rect>& cells);

// True where the pair shows its figure; (x, y) counts from the picture's corner. A shadow is no
// part of the figure.
bool InFigure(const Surface& sheet, const SpritePair& pair, int x, int y);

// How alike the outlines of two figures are: what both cover by what either covers, 0 to 1.
double OutlineLikeness(const Surface& one, const SpritePair& its_pair, const Surface& other,
                       const SpritePair& other_pair);

}  // namespace orvane::pictures
