// What the recipes of the smaller enemies share.
#pragma once

#include <string>
#include <vector>

#include "content/pictures/figures/sheet.h"

namespace orvane::paint {

// An arc about `middle` from angle `from` to `to` (radians, u at 0, v at a quarter turn), thickest
// half-way and sharp at both ends: crescents, claws, blades.
std::vector<Knot> Crescent(Vec middle, Vec u, Vec v, float from, float to, float thickness);

// An arc of even change: from radius `start` to radius `end`.
std::vector<Knot> Arc(Vec middle, Vec u, Vec v, float from, float to, float start, float end);

// A point on an ellipse in the ground plane at the given height.
Vec Around(float angle, float radius_x, float height, float radius_z);

// Stamps pixels so that the middle of the rows falls on the model's point.
void StampAt(Sprite& sprite, Vec point, const std::vector<std::string>& rows,
             const std::string& letters, const std::vector<uint32_t>& colours);

// The view that the 64 by 64 enemies share, turned by `yaw` to the right: one for those that stand,
// and one for those that float `air` pixels above the ground line.
View MonsterView(float yaw, float pitch);
View HoverView(float yaw, float pitch, float air);

}  // namespace orvane::paint
