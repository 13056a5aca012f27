// How experience becomes levels.
#pragma once

namespace orvane {

// The experience at which the man (0) or the woman (1) leaves a level for the next.
constexpr double ExperienceToLeave(int hero, int level) {
  const double square = static_cast<double>(level) * level;
  return square * (hero == 0 ? 300 : 310) / 2;
}

}  // namespace orvane
