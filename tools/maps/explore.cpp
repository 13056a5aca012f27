#include "tools/maps/explore.h"

namespace orvane::maps {
namespace {

constexpr size_t kManyStands = 600000;

// 0 for none; those of the rounds follow the two that stand once.
int NumberOf(const Room& room) {
  switch (room.What) {
    case Room::Kind::Spring:
      return 1;
    case Room::Kind::LastBook:
      return 2;
    case Room::Kind::Book:
      return 2 + room.Round;
    case Room::Kind::Nowhere:
      break;
  }
  return 0;
}

// All of a party's place in one number: 61 bits. A map number off the grid keeps its low bits,
// which tell it from any other that one step can lead to.
uint64_t KeyOf(const Party& party) {
  struct Part {
    int Value;
    int Bits;
  };
  const Part parts[] = {{party.MapA, 5},     {party.MapB, 5},    {NumberOf(party.Inside), 3},
                        {party.InBook, 1},   {party.X, 12},      {party.Y, 12},
                        {party.ReturnX, 12}, {party.ReturnY, 11}};
  uint64_t key = 0;
  for (const Part& part : parts) {
    const uint64_t mask = (uint64_t{1} << part.Bits) - 1;
    key = key << part.Bits | (static_cast<uint64_t>(part.Value) & mask);
  }
  return key;
}

int32_t NumberOf(Exploration& exploration, const Party& party) {
  const auto [found, is_new] =
      exploration.Numbers.emplace(KeyOf(party), static_cast<int32_t>(exploration.Stands.size()));
  if (is_new) exploration.Stands.push_back({party});
  return found->second;
}

int32_t Reached(Exploration& exploration, const Outcome& outcome) {
  switch (outcome.event) {
    case Event::Walked:
      return NumberOf(exploration, outcome.party);
    case Event::Dragon:
      return kToDragon;
    case Event::NoSuchMap:
      return kToNowhere;
    case Event::Blocked:
      break;
  }
  return kNoWay;
}

// A game saved in the last book's room is loaded on the map outside, at the same coordinates.
Party AfterLoading(const Party& party) {
  return {party.MapA, party.MapB, party.X, party.Y};
}

bool SameCell(const Party& one, const Party& other) {
  return one.Map() == other.Map() && one.MapA == other.MapA && one.MapB == other.MapB &&
         one.X / kTileSize == other.X / kTileSize && one.Y / kTileSize == other.Y / kTileSize;
}

template <typename Visit>
void ForEachWay(const Stand& stand, Visit visit) {
  for (const int32_t next : stand.Next) {
    if (next >= 0) visit(next);
  }
  if (stand.loaded >= 0) visit(stand.loaded);
}

// All ways, backwards: for every place the places that lead to it, packed one after the other.
class BackWays {
 public:
  explicit BackWays(const Exploration& exploration) : first_(exploration.Stands.size() + 1, 0) {
    for (const Stand& stand : exploration.Stands) {
      ForEachWay(stand, [&](int32_t to) { ++first_[static_cast<size_t>(to) + 1]; });
    }
    for (size_t at = 1; at < first_.size(); ++at) first_[at] += first_[at - 1];
    from_.resize(first_.back());
    std::vector<size_t> end(first_.begin(), first_.end() - 1);
    for (size_t from = 0; from < exploration.Stands.size(); ++from) {
      ForEachWay(exploration.Stands[from], [&](int32_t to) {
        from_[end[static_cast<size_t>(to)]++] = static_cast<int32_t>(from);
      });
    }
  }

  template <typename Visit>
  void ForEach(int32_t to, Visit visit) const {
    const auto place = static_cast<size_t>(to);
    for (size_t at = first_[place]; at < first_[place + 1]; ++at) visit(from_[at]);
  }

 private:
  std::vector<size_t> first_;
  std::vector<int32_t> from_;
};

}  // namespace

std::vector<Journey> AllJourneys() {
  std::vector<Journey> journeys;
  for (int round = 1; round <= 3; ++round) {
    journeys.push_back({"round " + std::to_string(round), RulesOf(round, false), StartOf(round)});
  }
  journeys.push_back({"round 3 with nine techniques", RulesOf(3, true), StartOf(3)});
  journeys.push_back({"last stage", RulesOf(4, true), StartOf(4)});
  return journeys;
}

int32_t Exploration::Find(const Party& party) const {
  const auto found = Numbers.find(KeyOf(party));
  return found == Numbers.end() ? kNoWay : found->second;
}

Exploration Explore(const World& world, const Journey& journey) {
  Exploration exploration{journey, {}, {}};
  exploration.Stands.reserve(kManyStands);
  exploration.Numbers.reserve(kManyStands);
  NumberOf(exploration, journey.Start);
  for (size_t at = 0; at < exploration.Stands.size(); ++at) {
    const Party party = exploration.Stands[at].party;
    for (size_t way = 0; way < 4; ++way) {
      const Outcome outcome = Step(world, journey.Rules, party, kDirections[way]);
      const int32_t next = Reached(exploration, outcome);
      exploration.Stands[at].Next[way] = next;
    }
    if (party.Inside == kLastBookRoom) {
      const int32_t loaded = NumberOf(exploration, AfterLoading(party));
      exploration.Stands[at].loaded = loaded;
    }
  }
  return exploration;
}

std::vector<int32_t> StepsFrom(const Exploration& exploration, int32_t from) {
  std::vector<int32_t> steps(exploration.Stands.size(), -1);
  std::vector<int32_t> queue{from};
  steps[static_cast<size_t>(from)] = 0;
  for (size_t at = 0; at < queue.size(); ++at) {
    const auto here = static_cast<size_t>(queue[at]);
    for (const int32_t next : exploration.Stands[here].Next) {
      if (next < 0 || steps[static_cast<size_t>(next)] >= 0) continue;
      steps[static_cast<size_t>(next)] = steps[here] + 1;
      queue.push_back(next);
    }
  }
  return steps;
}

std::vector<bool> CanReturn(const Exploration& exploration) {
  const BackWays back(exploration);
  std::vector<bool> can(exploration.Stands.size(), false);
  std::vector<int32_t> queue;
  for (size_t number = 0; number < exploration.Stands.size(); ++number) {
    if (!SameCell(exploration.Stands[number].party, exploration.journey.Start)) continue;
    can[number] = true;
    queue.push_back(static_cast<int32_t>(number));
  }
  for (size_t at = 0; at < queue.size(); ++at) {
    back.ForEach(queue[at], [&](int32_t from) {
      if (can[static_cast<size_t>(from)]) return;
      can[static_cast<size_t>(from)] = true;
      queue.push_back(from);
    });
  }
  return can;
}

}  // namespace orvane::maps
