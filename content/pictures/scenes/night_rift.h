// The land of the title: a moonlit rift with a lake between mountains.
#pragma once

#include "content/pictures/scenes/terrain.h"

namespace orvane::paint::scene {

class NightRift : public Terrain {
 public:
  explicit NightRift(const View& view) : view_(view) {}

  float Height(float x, float z, int octaves) const override;
  Colour Ground(const Spot& spot) const override;
  Colour Sky(Vec direction) const override;
  Colour Haze(Vec direction) const override;
  float HazeCover(float distance) const override;
  Vec Light() const override;

 private:
  const View& view_;
};

}  // namespace orvane::paint::scene
