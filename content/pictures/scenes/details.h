// Small things that stand on a landscape: trees, stones, grass.
#pragma once

#include <span>

#include "content/pictures/scenes/terrain.h"

namespace orvane::paint::scene {

// Where a thing stands, how large it is and what chance it is drawn from.
struct Standing {
  float X = 0;
  float Z = 0;
  float Size = 1;  // in units of the scene
  int Seed = 0;
};

// One joint of a limb: a place in the scene and how thick the limb is there.
struct Joint {
  Vec Place;
  float Radius = 1;
};

// Draws things on a painted landscape, hidden by what is nearer and veiled by the same air.
class Dresser {
 public:
  Dresser(const Terrain& terrain, const View& view, Painting& painting)
      : terrain_(terrain), view_(view), painting_(painting) {}

  // A round crown of lit leaf clusters over a shadow; `size` is its radius.
  void Tree(const Standing& at, RampView leaves);
  // A fir of hanging tiers; `size` is a third of its height.
  void Fir(const Standing& at, RampView needles);
  // A stone that throws its shadow away from the light; `size` is its radius.
  void Stone(const Standing& at, RampView rock, Colour shadow);
  // Some blades that lean apart; `size` is their length.
  void Tuft(const Standing& at, RampView blades);
  // A few blossoms on short stems.
  void Flowers(const Standing& at, Colour petal, RampView blades);

  // A soft shadow on level ground, `across` and `deep` units from its middle to its border.
  void Shade(float x, float z, float across, float deep, Colour shadow);
  // A round rod through the joints: a bone, a bough. `height` of the places is above the ground's
  // 0.
  void Limb(std::span<const Joint> joints, RampView tones);

 private:
  struct Foot {
    float Column;
    float Row;
    float Scale;
  };
  Foot FootOf(const Standing& at) const;
  void Put(float column, float row, float z, Colour colour, float cover = 1);

  const Terrain& terrain_;
  const View& view_;
  Painting& painting_;
};

}  // namespace orvane::paint::scene
