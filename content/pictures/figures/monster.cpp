#include "content/pictures/figures/monster.h"

#include "content/pictures/figures/shadow.h"

namespace orvane::paint {

std::vector<Knot> Crescent(Vec middle, Vec u, Vec v, float from, float to, float thickness) {
  constexpr int kPieces = 9;
  std::vector<Knot> knots;
  for (int i = 0; i <= kPieces; ++i) {
    const float t = static_cast<float>(i) / kPieces;
    const float angle = Mix(from, to, t);
    const float radius = 0.3F + thickness * 4 * t * (1 - t);
    knots.push_back({middle + u * std::cos(angle) + v * std::sin(angle), radius});
  }
  return knots;
}

std::vector<Knot> Arc(Vec middle, Vec u, Vec v, float from, float to, float start, float end) {
  constexpr int kPieces = 7;
  std::vector<Knot> knots;
  for (int i = 0; i <= kPieces; ++i) {
    const float t = static_cast<float>(i) / kPieces;
    const float angle = Mix(from, to, t);
    knots.push_back({middle + u * std::cos(angle) + v * std::sin(angle), Mix(start, end, t)});
  }
  return knots;
}

Vec Around(float angle, float radius_x, float height, float radius_z) {
  return {std::cos(angle) * radius_x, height, std::sin(angle) * radius_z};
}

void StampAt(Sprite& sprite, Vec point, const std::vector<std::string>& rows,
             const std::string& letters, const std::vector<uint32_t>& colours) {
  const Vec at = sprite.Eye.Project(point);
  const float wide = static_cast<float>(rows.front().size());
  const float high = static_cast<float>(rows.size());
  Stamp(sprite, static_cast<int>(std::lround(at.X - wide * 0.5F)),
        static_cast<int>(std::lround(at.Y - high * 0.5F)), rows, letters, colours);
}

View MonsterView(float yaw, float pitch) {
  View view;
  view.Yaw = yaw;
  view.Pitch = pitch;
  view.Room = kShadowRoom;
  return view;
}

View HoverView(float yaw, float pitch, float air) {
  View view = MonsterView(yaw, pitch);
  view.OnGround = false;
  view.Room = air;
  return view;
}

}  // namespace orvane::paint
