// A figure as a set of groups of parts. The figure looks along +z, its left hand is at +x, up is
// +y.
#pragma once

#include <deque>
#include <vector>

#include "content/pictures/figures/part.h"

namespace orvane::paint {

// A point of a chain and the body's thickness there.
struct Knot {
  Vec At;
  float Radius = 1;
};

// A place of its own for a head or a hand: scaled, rolled, pitched, turned, then moved.
struct Frame {
  Vec At;
  float Yaw = 0;
  float Pitch = 0;
  float Roll = 0;
  float Scale = 1;

  // From the frame's coordinates to the model's, and the same for a direction.
  Vec Place(Vec point) const { return At + Turn(point) * Scale; }
  Vec Turn(Vec direction) const { return TurnY(TurnX(TurnZ(direction, Roll), Pitch), Yaw); }
};

// Parts of one material that flow into each other.
class Group {
 public:
  // The arguments are those of Model::Add.
  Group(int material, float blend, float join, bool mirrored, const Frame& frame)
      : Material(material), Blend(blend), Join(join), mirrored_(mirrored), frame_(frame) {}

  // A round limb from a to b with a radius at each end.
  Group& Limb(Vec a, Vec b, float radius_a, float radius_b);
  // An ellipsoid with its axes along the frame's.
  Group& Ball(Vec middle, Vec radii);
  // An ellipsoid from a to b: `width` across, `thickness` along `face`, both half lengths.
  Group& Leaf(Vec a, Vec b, float width, float thickness, Vec face = {0, 0, 1});
  // A smooth curve through the knots; `steps` straight pieces from knot to knot. Its front (belly)
  // is the side that `side` and the direction of the curve span with: cross(side, direction).
  Group& Chain(const std::vector<Knot>& knots, int steps = 4, Vec side = {1, 0, 0});
  // A closed ring of the given thickness about `middle`, through middle + u and middle + v.
  Group& Ring(Vec middle, Vec u, Vec v, float thickness);
  // A skin from the root to two tips; `scallop` 0 to 0.4 cuts the free edge, `billow` bulges it.
  Group& Panel(Vec root, Vec tip_a, Vec tip_b, float scallop, float billow, float thickness = 0.5F);

  int Material;
  float Blend;
  float Join;
  std::vector<Part> Parts;
  Vec Middle;  // ball around all parts, set by Model::Finish
  float Reach = 0;

 private:
  void Put(Part part, const std::vector<Vec>& points);

  bool mirrored_;
  Frame frame_;
};

// The points of a smooth curve through the knots.
std::vector<Knot> Curve(const std::vector<Knot>& knots, int steps);

class Model {
 public:
  // Starts a group. `blend`: how softly its parts melt together (torso 8, limbs 7, details 0 to 2);
  // `join`: how softly it melts into what is there already (0 for claws, eyes, armour; 2 to 7 for
  // flesh). A mirrored group is made on both sides of the frame's x = 0.
  Group& Add(int material, float blend = 0, float join = 0);
  Group& AddPair(int material, float blend = 0, float join = 0);

  // Groups added from now on stand in this frame.
  void Enter(const Frame& frame) { frame_ = frame; }
  void Leave() { frame_ = Frame{}; }

  // Computes the bounds; call it once, after the last part.
  void Finish();

  const std::deque<Group>& Groups() const { return groups_; }

 private:
  std::deque<Group> groups_;  // a deque, since callers hold on to a group while they add others
  Frame frame_;
};

}  // namespace orvane::paint
