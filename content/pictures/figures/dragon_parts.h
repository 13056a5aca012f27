// What the dragons share: materials by number, and limbs built to measure.
#pragma once

#include <array>
#include <vector>

#include "content/pictures/figures/sheet.h"

namespace orvane::paint {

// Every dragon fills these with ramps of its own.
enum DragonMaterial {
  kDragonSkin,
  kDragonBelly,
  kDragonMembrane,
  kDragonHorn,
  kDragonEye,
  kDragonPupil,
  kDragonMouth,
  kDragonTooth,
  kDragonPlate,
  kDragonFire,
  kDragonMaterials  // how many
};

// A wing: an arm of two bones, four fingers, and where its skin ends on the flank.
struct Wing {
  Vec Shoulder;
  Vec Elbow;
  Vec Wrist;
  std::array<Vec, 4> Tips;
  Vec Flank;
  Vec Bow{0, 6, 0};   // how far the fingers bend out of the straight
  float Billow = -5;  // of the skin between the fingers
};
void AddWing(Model& model, const Wing& wing);

// One ray of a fin.
struct Ray {
  Vec Root;
  Vec Tip;
};
// A fin of at least two rays with skin between them.
void AddFin(Model& model, const std::vector<Ray>& rays, float thickness, float scallop,
            int ray_material = kDragonSkin, int skin_material = kDragonMembrane);

// Fingers or toes with claws, `count` of them, spread to `across` from the palm on.
struct Hand {
  Vec Palm;
  Vec Ahead;   // unit, where the fingers point
  Vec Across;  // unit, from one finger to the next
  Vec Curl;    // unit, where the claws bend to
  float Size = 1;
  int Count = 3;
};
void AddHand(Model& model, const Hand& hand);

// Spikes standing on a curve, away from its front; the size swells toward the middle.
void AddSpines(Model& model, const std::vector<Knot>& curve, Vec side, float length,
               float thickness, int material = kDragonHorn);

// The view of the big figures.
View DragonView(int width, int height, float yaw, float pitch);

}  // namespace orvane::paint
