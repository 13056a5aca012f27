#include "content/pictures/figures/part.h"

namespace orvane::paint {
namespace {

constexpr float kPi = 3.14159265F;

float CapsuleDistance(const Part& part, Vec point, Spot* spot) {
  const Vec axis = part.B - part.A;
  const Vec from = point - part.A;
  const float t = Clamp(Dot(from, axis) / std::max(1e-6F, Dot(axis, axis)));
  if (spot != nullptr) *spot = {Mix(part.AlongA, part.AlongB, t), 0, part.Side, Unit(axis)};
  return Length(from - axis * t) - Mix(part.RadiusA, part.RadiusB, t);
}

// A bound of first order: exact near the surface, which is all that the march needs.
float EllipsoidDistance(const Part& part, Vec point, Spot* spot) {
  const Vec from = point - part.A;
  const Vec q{Dot(from, part.Axis[0]), Dot(from, part.Axis[1]), Dot(from, part.Axis[2])};
  const Vec r = part.Radii;
  if (spot != nullptr) *spot = {q.Y, 0, part.Side, part.Axis[1]};
  const float k0 = Length({q.X / r.X, q.Y / r.Y, q.Z / r.Z});
  const float k1 = Length({q.X / (r.X * r.X), q.Y / (r.Y * r.Y), q.Z / (r.Z * r.Z)});
  if (k1 < 1e-6F) return -std::min({r.X, r.Y, r.Z});
  return k0 * (k0 - 1) / k1;
}

// A triangle from the root A to the tips B and C, bulging, its free edge cut in an arc.
float PanelDistance(const Part& part, Vec point, Spot* spot) {
  const Vec e1 = part.B - part.A;
  const Vec e2 = part.C - part.A;
  const Vec normal = Unit(Cross(e1, e2));
  const Vec from = point - part.A;
  const float height = Dot(from, normal);
  const Vec flat = from - normal * height;
  const float d11 = Dot(e1, e1);
  const float d12 = Dot(e1, e2);
  const float d22 = Dot(e2, e2);
  const float p1 = Dot(flat, e1);
  const float p2 = Dot(flat, e2);
  const float area = std::max(1e-4F, d11 * d22 - d12 * d12);
  const float a = (p1 * d22 - p2 * d12) / area;
  const float b = (p2 * d11 - p1 * d12) / area;
  const float out = std::max(1e-4F, a + b);
  const float across = Clamp(b / out);
  const float lift = height - part.Billow * std::sin(kPi * across) * Clamp(out);
  const float cut = part.RadiusB * 4 * across * (1 - across);
  const float longest = std::sqrt(std::max(d11, d22));
  const float edge = std::max(std::max(-a * std::sqrt(area / d22), -b * std::sqrt(area / d11)),
                              (out - 1 + cut * out) * longest * 0.8F);
  if (spot != nullptr) *spot = {across, out, part.Side, Unit(e1)};
  const float thick = std::fabs(lift) - part.RadiusA;
  if (edge <= 0) return std::max(thick, edge);
  return thick > 0 ? std::sqrt(thick * thick + edge * edge) : edge;
}

}  // namespace

float Distance(const Part& part, Vec point, Spot* spot) {
  switch (part.Kind) {
    case Shape::Capsule:
      return CapsuleDistance(part, point, spot);
    case Shape::Ellipsoid:
      return EllipsoidDistance(part, point, spot);
    case Shape::Panel:
      return PanelDistance(part, point, spot);
  }
  return 0;
}

float Extent(const Part& part, Vec direction) {
  const float a = Dot(part.A, direction);
  if (part.Kind == Shape::Capsule) {
    return std::max(a + part.RadiusA, Dot(part.B, direction) + part.RadiusB);
  }
  if (part.Kind == Shape::Ellipsoid) {
    return a + Length({part.Radii.X * Dot(part.Axis[0], direction),
                       part.Radii.Y * Dot(part.Axis[1], direction),
                       part.Radii.Z * Dot(part.Axis[2], direction)});
  }
  const float bulge =
      std::fabs(part.Billow * Dot(Unit(Cross(part.B - part.A, part.C - part.A)), direction));
  const float tips = std::max(Dot(part.B, direction), Dot(part.C, direction));
  return std::max(a, tips + bulge * 0.5F) + part.RadiusA;
}

void Bound(Part& part) {
  if (part.Kind == Shape::Ellipsoid) {
    part.Middle = part.A;
    part.Reach = std::max({part.Radii.X, part.Radii.Y, part.Radii.Z});
  } else if (part.Kind == Shape::Capsule) {
    part.Middle = Mix(part.A, part.B, 0.5F);
    part.Reach = Length(part.B - part.A) * 0.5F + std::max(part.RadiusA, part.RadiusB);
  } else {
    part.Middle = (part.A + part.B + part.C) * (1.0F / 3);
    part.Reach = std::max({Length(part.A - part.Middle), Length(part.B - part.Middle),
                           Length(part.C - part.Middle)}) +
                 part.RadiusA + std::fabs(part.Billow);
  }
}

}  // namespace orvane::paint
