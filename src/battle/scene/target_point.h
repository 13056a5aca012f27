// Where a skill's picture is drawn on a big enemy, in pixels of the scene.
#pragma once

namespace orvane {

constexpr int BigTargetX = 120;
constexpr int BigTargetY = 140;

}  // namespace orvane
