#include "tools/maps/step.h"

namespace orvane::maps {

Party StartOf(int round) {
  if (round == 1) return kGameStart;
  return round == 4 ? kLastStageStart : kRoundStart;
}

WalkRules RulesOf(int round, bool nine_techniques) {
  return {round, nine_techniques, round == 4};
}

int TileUnder(const World& world, const Party& party) {
  const TileMap* map = world.Find(party.Map());
  return map == nullptr ? 0 : map->At(party.X / kTileSize, party.Y / kTileSize);
}

bool AtDragon(const WalkRules& rules, const Party& party) {
  return BeforeDragon(party) || (rules.LastStage && BeforeLastDragon(party));
}

Outcome Step(const World& world, const WalkRules& rules, const Party& party, Direction direction) {
  const TileMap* map = world.Find(party.Map());
  if (map == nullptr) return {Event::NoSuchMap, party};
  const Surroundings around = LookAround(map->Tiles(), party.X, party.Y);
  const StepTaken step = TryStep(around, rules, party, direction);
  if (!step.Free) return {Event::Blocked, party};
  if (step.ThroughDoor && world.Find(step.Before.Map()) == nullptr) {
    return {Event::NoSuchMap, step.Before};
  }
  const std::optional<Party> crossed = CrossEdge(rules, step.After);
  const Party& next = crossed ? *crossed : step.After;
  if (crossed && world.Find(next.Map()) == nullptr) return {Event::NoSuchMap, next};
  return {AtDragon(rules, step.Before) ? Event::Dragon : Event::Walked, next};
}

}  // namespace orvane::maps
