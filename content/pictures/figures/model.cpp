#include "content/pictures/figures/model.h"

namespace orvane::paint {
namespace {

constexpr float kFullTurn = 6.2831853F;

Vec Flip(Vec p) {
  return {-p.X, p.Y, p.Z};
}

// Catmull and Rom's curve from b to c.
Vec Between(Vec a, Vec b, Vec c, Vec d, float t) {
  return (b * 2 + (c - a) * t + (a * 2 - b * 5 + c * 4 - d) * (t * t) +
          (b * 3 - a - c * 3 + d) * (t * t * t)) *
         0.5F;
}

}  // namespace

std::vector<Knot> Curve(const std::vector<Knot>& knots, int steps) {
  std::vector<Knot> points;
  const size_t count = knots.size();
  for (size_t i = 0; i + 1 < count; ++i) {
    const Knot& a = knots[i == 0 ? 0 : i - 1];
    const Knot& b = knots[i];
    const Knot& c = knots[i + 1];
    const Knot& d = knots[std::min(count - 1, i + 2)];
    for (int j = 0; j < steps; ++j) {
      const float t = static_cast<float>(j) / static_cast<float>(steps);
      points.push_back({Between(a.At, b.At, c.At, d.At, t),
                        Mix(b.Radius, c.Radius, Mix(t, SmoothStep(0, 1, t), 0.5F))});
    }
  }
  points.push_back(knots.back());
  return points;
}

// Sets the part's points from the frame's coordinates, once or on both sides.
void Group::Put(Part part, const std::vector<Vec>& points) {
  const Part plain = part;
  for (int side = 0; side < (mirrored_ ? 2 : 1); ++side) {
    part = plain;
    const auto place = [&](Vec p) { return frame_.Place(side == 0 ? p : Flip(p)); };
    part.A = place(points[0]);
    if (points.size() > 1) part.B = place(points[1]);
    if (points.size() > 2) part.C = place(points[2]);
    for (Vec& axis : part.Axis) axis = frame_.Turn(side == 0 ? axis : Flip(axis));
    part.Side = frame_.Turn(side == 0 ? plain.Side : Flip(plain.Side));
    part.RadiusA *= frame_.Scale;
    if (part.Kind == Shape::Capsule) part.RadiusB *= frame_.Scale;
    if (side == 1)
      part.Billow = -part.Billow;  // the mirrored triangle's normal points the other way
    part.Billow *= frame_.Scale;
    part.Radii = part.Radii * frame_.Scale;
    Bound(part);
    Parts.push_back(part);
  }
}

Group& Group::Limb(Vec a, Vec b, float radius_a, float radius_b) {
  Part part;
  part.RadiusA = radius_a;
  part.RadiusB = radius_b;
  part.AlongB = Length(b - a);
  part.Side = {0, 0, 1};
  Put(part, {a, b});
  return *this;
}

Group& Group::Ball(Vec middle, Vec radii) {
  Part part;
  part.Kind = Shape::Ellipsoid;
  part.Axis = {Vec{1, 0, 0}, Vec{0, 1, 0}, Vec{0, 0, 1}};
  part.Radii = radii;
  part.Side = {0, 0, 1};
  Put(part, {middle});
  return *this;
}

Group& Group::Leaf(Vec a, Vec b, float width, float thickness, Vec face) {
  Part part;
  part.Kind = Shape::Ellipsoid;
  const Vec length = Unit(b - a);
  const Vec across = Unit(Cross(length, face));
  part.Axis = {across, length, Cross(across, length)};
  part.Radii = {width, Length(b - a) * 0.5F, thickness};
  part.Side = face;
  Put(part, {Mix(a, b, 0.5F)});
  return *this;
}

Group& Group::Chain(const std::vector<Knot>& knots, int steps, Vec side) {
  const std::vector<Knot> points = Curve(knots, steps);
  float along = 0;
  for (size_t i = 0; i + 1 < points.size(); ++i) {
    const Vec run = points[i + 1].At - points[i].At;
    Part part;
    part.RadiusA = points[i].Radius;
    part.RadiusB = points[i + 1].Radius;
    part.AlongA = along;
    along += Length(run);
    part.AlongB = along;
    part.Side = Unit(Cross(side, Unit(run)));
    Put(part, {points[i].At, points[i + 1].At});
  }
  return *this;
}

Group& Group::Ring(Vec middle, Vec u, Vec v, float thickness) {
  constexpr int kPieces = 20;
  const auto at = [&](int i) {
    const float angle = kFullTurn * static_cast<float>(i) / kPieces;
    return middle + u * std::cos(angle) + v * std::sin(angle);
  };
  for (int i = 0; i < kPieces; ++i) Limb(at(i), at(i + 1), thickness, thickness);
  return *this;
}

Group& Group::Panel(Vec root, Vec tip_a, Vec tip_b, float scallop, float billow, float thickness) {
  Part part;
  part.Kind = Shape::Panel;
  part.RadiusA = thickness;
  part.RadiusB = scallop;
  part.Billow = billow;
  part.Side = Unit(Cross(tip_a - root, tip_b - root));
  Put(part, {root, tip_a, tip_b});
  return *this;
}

Group& Model::Add(int material, float blend, float join) {
  return groups_.emplace_back(material, blend, join, false, frame_);
}

Group& Model::AddPair(int material, float blend, float join) {
  return groups_.emplace_back(material, blend, join, true, frame_);
}

void Model::Finish() {
  for (Group& group : groups_) {
    Vec low{1e9F, 1e9F, 1e9F};
    Vec high{-1e9F, -1e9F, -1e9F};
    for (const Part& part : group.Parts) {
      const Vec reach{part.Reach, part.Reach, part.Reach};
      const Vec l = part.Middle - reach;
      const Vec h = part.Middle + reach;
      low = {std::min(low.X, l.X), std::min(low.Y, l.Y), std::min(low.Z, l.Z)};
      high = {std::max(high.X, h.X), std::max(high.Y, h.Y), std::max(high.Z, h.Z)};
    }
    group.Middle = Mix(low, high, 0.5F);
    group.Reach = Length(high - low) * 0.5F;
  }
}

}  // namespace orvane::paint
