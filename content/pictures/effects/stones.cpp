// Ice and rock.
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

#include "content/pictures/effects/shapes.h"

namespace orvane::paint::effects {
namespace {

using std::numbers::pi;

// A crystal or spire: a shaft that ends in a point, lit on its left face.
struct Shaft {
  double root_x;
  double root_y;
  double turn;  // radians, 0 straight up, positive to the right
  double length;
  double width;  // half
};

std::optional<double> ToneIn(const Shaft& shaft, double x, double y, double shoulder) {
  const double up_x = std::sin(shaft.turn);
  const double up_y = -std::cos(shaft.turn);
  const double along = ((x - shaft.root_x) * up_x + (y - shaft.root_y) * up_y) / shaft.length;
  const double across = -(x - shaft.root_x) * up_y + (y - shaft.root_y) * up_x;
  if (along < 0 || along > 1) return std::nullopt;
  const double width = shaft.width * (along < shoulder ? 0.72 + 0.28 * along / shoulder
                                                       : (1 - along) / (1 - shoulder));
  const double side = across / std::max(0.3, width);
  if (std::abs(side) > 1) return std::nullopt;
  const double rim = (1 - std::abs(side)) * width;
  double tone = side < -0.3 ? 3.4 : side < 0.25 ? 4.4 : 1.8;
  if (along > shoulder) tone += side < 0.1 ? 1 : 0.6;
  if (rim < 0.9) tone = side > 0 ? 0.4 : 2.2;
  if (std::abs(side + 0.28) < 0.14 && rim > 0.9) tone = 5.2;
  return tone;
}

Shape Cluster(std::initializer_list<Shaft> shafts, double shoulder, const Ramp& ramp) {
  const std::vector<Shaft> all(shafts);
  return [all, shoulder, ramp](double x, double y) -> std::optional<Colour> {
    std::optional<Colour> colour;
    for (const Shaft& shaft : all) {
      const std::optional<double> tone = ToneIn(shaft, x, y, shoulder);
      if (tone) colour = ramp(*tone);
    }
    return colour;
  };
}

// A lump with flat faces: lit above and to the left.
std::optional<Colour> Lump(double x, double y, double radius, double turn, const Ramp& ramp) {
  const double direction = std::atan2(y, x) + turn;
  const double face = std::fmod(direction + 4 * pi, pi / 3) - pi / 6;
  const double rim = radius * std::cos(pi / 6) / std::cos(face);
  const double distance = std::hypot(x, y);
  if (distance > rim) return std::nullopt;
  const double middle = direction - turn - face;
  const double light = -(0.55 * std::cos(middle) + 0.83 * std::sin(middle));
  if (distance < rim * 0.42) return ramp(3.6);
  return ramp(2.3 + 2.3 * light - (distance > rim - 0.9 ? 0.9 : 0));
}

}  // namespace

Shape IceCrystal() {
  return Cluster({{-4.2, 10.2, -0.72, 12.5, 2.9},
                  {4.6, 10.2, 0.74, 12.0, 2.9},
                  {-2.6, 10.8, -0.32, 16.5, 3.3},
                  {3.0, 10.8, 0.34, 15.5, 3.2},
                  {0, 11, 0, 21.8, 4.4}},
                 0.62, Ice);
}

Shape IceGrowing(int frame) {
  const double size = 0.34 + 0.17 * frame;
  return Cluster({{-3.6, 10.6, -0.6, 13 * size, 2.6},
                  {3.8, 10.6, 0.6, 13 * size, 2.6},
                  {0, 11, 0, 21 * size, 2.6 + 0.5 * frame}},
                 0.62, Ice);
}

Shape IceBreaking(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    if (frame == 0) {
      const double turn = std::fmod(std::atan2(y, x) + 4 * pi + pi / 6, pi / 3) - pi / 6;
      const double distance = std::hypot(x, y);
      const double along = distance * std::cos(turn);
      const double across = std::abs(distance * std::sin(turn));
      const double branch = std::abs(across - std::max(0.0, along - 5.2));
      const bool twig = along > 5.2 && along < 8.6 && branch < 1.1;
      if (along > 11 || (across > 1.35 && !twig && distance > 3.6)) return std::nullopt;
      return Ice(across < 0.7 ? 5 : distance < 3.6 ? 4 : 2.6);
    }
    const int count = frame == 1 ? 7 : 6;
    for (int i = 0; i < count; ++i) {
      const double turn = i * 2 * pi / count + 0.4;
      const double away = frame == 1 ? (i % 2 == 0 ? 5.4 : 7.2) : 7.4;
      const double dx = x - away * std::cos(turn);
      const double dy = y - away * std::sin(turn);
      const double along = std::abs(dx * std::cos(turn) + dy * std::sin(turn));
      const double across = -dx * std::sin(turn) + dy * std::cos(turn);
      const double length = frame == 1 ? 4.2 : 3.2;
      const double width = (frame == 1 ? 3.0 : 2.4) * (1 - along / length);
      if (along > length || std::abs(across) > width) continue;
      return Ice(across < -0.2 ? 5 : across < 0.6 ? 3.5 : 1.5);
    }
    return std::nullopt;
  };
}

Shape RockSpire() {
  return Cluster({{-0.6, 10.8, -0.02, 21.4, 5.6},
                  {-6.4, 10.8, -0.30, 13.5, 4.2},
                  {6.2, 10.8, 0.28, 12.0, 4.4},
                  {2.6, 10.9, 0.12, 9.0, 4.6},
                  {-3.0, 10.9, -0.12, 7.0, 4.0}},
                 0.30, Earth);
}

Shape Pillar() {
  return [](double x, double y) -> std::optional<Colour> {
    // One broad six-sided column of crystal, its top a slanting facet.
    const double top = -10.6 + std::abs(x + 1.5) * 0.95;
    if (std::abs(x) > 7.4 || y < top || y > 10.9 - std::abs(x) * 0.22) {
      return std::nullopt;
    }
    if (y < top + 1.3) return Ice(4.4);
    if (std::abs(x) > 6.5) return Ice(x < 0 ? 2.2 : 0.2);
    const double slant = y - 0.5 * x;
    const bool seam = std::fmod(slant + 40, 7.4) < 1.1;
    if (x < -2.4) return Ice(seam ? 4.4 : 3.4);
    if (x < -1.2) return Ice(5);
    if (x < 2.6) return Ice(seam ? 3.4 : 2.6);
    return Ice(seam ? 2.2 : 1.2);
  };
}

Shape Boulder() {
  return [](double x, double y) { return Lump(x, y, 10.8, 0.35, Earth); };
}

Shape RockShards() {
  return [](double x, double y) -> std::optional<Colour> {
    constexpr std::array<std::array<double, 3>, 6> Places{{{-6, -5.5, 4.2},
                                                           {5.5, -6.5, 3.4},
                                                           {7, 2.5, 3.7},
                                                           {0, 0.5, 4.0},
                                                           {-6.5, 5.5, 3.4},
                                                           {3, 7.6, 3.2}}};
    double turn = 0;
    for (const auto& place : Places) {
      turn += 0.9;
      const auto colour = Lump(x - place[0], y - place[1], place[2], turn, Earth);
      if (colour) return colour;
    }
    return std::nullopt;
  };
}

Shape Dust(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    constexpr std::array<std::array<double, 3>, 5> Puffs{
        {{-5.5, 3.5, 5.2}, {5.8, 3.8, 5.0}, {0, 5.2, 5.6}, {-2.5, -2.0, 5.2}, {3.6, -3.6, 4.4}}};
    double best = -1;
    for (const auto& puff : Puffs) {
      const double radius = puff[2] * (frame == 0 ? 1 : 0.86);
      const double depth = 1 - std::hypot(x - puff[0], y - puff[1]) / radius;
      const double light = -(0.5 * (x - puff[0]) + 0.7 * (y - puff[1])) / radius;
      if (depth > 0) best = std::max(best, 1.6 + depth + 1.7 * light);
    }
    if (best < 0) return std::nullopt;
    if (frame == 1 && Wander(x * 0.45 + 5, y * 0.45 + 5, 61) > 0.56) return std::nullopt;
    return Smoke(best + (frame == 0 ? 0.6 : 1.2));
  };
}

}  // namespace orvane::paint::effects
