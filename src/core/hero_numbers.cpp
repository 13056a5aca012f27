#include "src/core/hero_numbers.h"

namespace orvane {
namespace {

constexpr int kHeroes = 2;
constexpr int kMostHPAndMP = 9999;

void Cap(Int16& number, int most) {
  if (number > most) number = most;
}

// What the level just reached adds.
void GrowStrength(GameRecord& record, int hero) {
  const int level = record.Level[hero];
  const bool man = hero == 0;
  record.MaxHP[hero] += man ? 30 + level % 4 : 25 + level % 3;
  record.MaxMP[hero] += man ? 5 + level % 3 : 10 + level % 4;
  record.BaseAttack[hero] += level % (man ? 4 : 3);
  record.BaseDefence[hero] += level % (man ? 3 : 4);
  record.Spirit[hero] += 1 + level % (man ? 2 : 3);
  Cap(record.MaxHP[hero], kMostHPAndMP);
  Cap(record.MaxMP[hero], kMostHPAndMP);
}

}  // namespace

void SumUpAttack(GameRecord& record, int hero) {
  record.Attack[hero] = record.BaseAttack[hero] + record.WeaponAttack[hero];
}

void SumUpDefence(GameRecord& record, int hero) {
  record.Defence[hero] = record.BaseDefence[hero] + record.ArmourDefence[hero];
}

void SumUp(GameRecord& record) {
  for (int hero = 0; hero < kHeroes; ++hero) {
    SumUpAttack(record, hero);
    SumUpDefence(record, hero);
  }
}

void CapHP(GameRecord& record, int hero) {
  Cap(record.HP[hero], record.MaxHP[hero]);
}

void CapMP(GameRecord& record, int hero) {
  Cap(record.MP[hero], record.MaxMP[hero]);
}

void Settle(GameRecord& record) {
  SumUp(record);
  for (int hero = 0; hero < kHeroes; ++hero) {
    if (record.HP[hero] < 0) record.HP[hero] = 0;
    CapHP(record, hero);
    CapMP(record, hero);
  }
}

std::string Gauge(int now, int limit) {
  return std::to_string(now) + "/" + std::to_string(limit);
}

bool TakeLevels(GameRecord& record, int hero) {
  bool taken = false;
  while (ExperienceToLeave(hero, record.Level[hero]) <= record.Exp[hero]) {
    taken = true;
    record.Level[hero] += 1;
    GrowStrength(record, hero);
  }
  return taken;
}

}  // namespace orvane
