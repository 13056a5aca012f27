// Landscapes: a field of heights seen from a little above the ground.
#pragma once

#include <vector>

#include "content/pictures/scenes/canvas.h"
#include "content/pictures/shared/vec.h"

namespace orvane::paint::scene {

// The eye looks straight along z from (0, eye, 0). Sizes are in pixels of the canvas.
struct View {
  int Width = 0;
  int Height = 0;
  float Horizon = 0;  // the row of the eye's height
  float Focal = 0;    // how many pixels a unit is wide at distance 1
  float Eye = 9;      // height above the level ground
  float Far = 1100;   // nothing is seen beyond

  float ColumnOf(float x, float z) const { return static_cast<float>(Width) / 2 + x / z * Focal; }
  float RowOf(float y, float z) const { return Horizon - (y - Eye) / z * Focal; }
  // The direction through the middle of a pixel, one unit deep.
  Vec Through(int column, int row) const {
    return {(static_cast<float>(column) + 0.5F - static_cast<float>(Width) / 2) / Focal,
            (Horizon - static_cast<float>(row) - 0.5F) / Focal, 1};
  }
};

// A place on the ground with all that its colour may depend on.
struct Spot {
  Vec Place;
  Vec Normal;
  float Sun = 0;       // sunlight that arrives, 0 to 1
  float Distance = 0;  // along z
};

// What a landscape is made of.
class Terrain {
 public:
  Terrain() = default;
  virtual ~Terrain() = default;
  Terrain(const Terrain&) = delete;
  Terrain& operator=(const Terrain&) = delete;

  // The ground's height; fewer octaves give a coarser, cheaper field.
  virtual float Height(float x, float z, int octaves) const = 0;
  virtual Colour Ground(const Spot& spot) const = 0;
  // `direction` has length 1.
  virtual Colour Sky(Vec direction) const = 0;
  // The air's colour and cover at a distance: (colour, 0 to 1).
  virtual Colour Haze(Vec direction) const = 0;
  virtual float HazeCover(float distance) const = 0;
  // Towards the light, length 1.
  virtual Vec Light() const = 0;
};

// A painted landscape and the distance that each pixel shows; the sky is infinitely far.
struct Painting {
  Painting(int wide, int high) : canvas(wide, high) {}
  float& Depth(int x, int y) {
    return Depths[static_cast<size_t>(y) * static_cast<size_t>(canvas.Width) +
                  static_cast<size_t>(x)];
  }

  Canvas canvas;
  std::vector<float> Depths;
};

Painting PaintTerrain(const Terrain& terrain, const View& view);

}  // namespace orvane::paint::scene
