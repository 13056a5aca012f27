// What a hero's numbers add up to, what bounds them, and how experience becomes levels. Heroes are
// 0, the man, and 1, the woman; any other index throws RunError(Subscript).
#pragma once

#include <string>

#include "src/core/game_record.h"

namespace orvane {

// Attack and defence: the base and what the worn thing adds. Throw RunError(Overflow) where the sum
// leaves 16 bits.
void SumUpAttack(GameRecord& record, int hero);
void SumUpDefence(GameRecord& record, int hero);
void SumUp(GameRecord& record);  // both, of both heroes

// Takes HP or MP down to its maximum. Below 0 neither is changed.
void CapHP(GameRecord& record, int hero);
void CapMP(GameRecord& record, int hero);

// Sums up both heroes and holds their HP to 0 and the maximum, and their MP to the maximum.
void Settle(GameRecord& record);

// HP or MP as all screens show them: "now/limit".
std::string Gauge(int now, int limit);

// The experience at which a hero leaves a level for the next.
constexpr double ExperienceToLeave(int hero, int level) {
  const double square = static_cast<double>(level) * level;
  return square * (hero == 0 ? 300 : 310) / 2;
}

// Takes all levels that a hero's experience has reached, with what each adds. True if there was
// one.
bool TakeLevels(GameRecord& record, int hero);

}  // namespace orvane
