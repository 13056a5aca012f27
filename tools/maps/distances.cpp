#include "tools/maps/distances.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "src/field/tiles.h"

namespace orvane::maps {
namespace {

constexpr const char* kRecoveryName = "rest";
constexpr int kStepsToAFight = 150;

std::string NameOf(const World& world, const Party& party) {
  const int tile = TileUnder(world, party);
  const std::string map = std::to_string(party.MapA) + "," + std::to_string(party.MapB);
  if (tile == kChest) return "chest " + map;
  if (IsBookChest(tile)) return "book " + map;
  if (tile == kRecovery) return kRecoveryName + (" " + map);
  return {};
}

// Chests before books before recovery points, each in the order of their maps.
bool Before(const Goal& one, const Goal& other) {
  const auto rank = [](const Goal& goal) {
    return goal.Name[0] == 'c' ? 0 : goal.Name[0] == 'b' ? 1 : 2;
  };
  return rank(one) != rank(other) ? rank(one) < rank(other) : one.Name < other.Name;
}

bool MeetsDragon(const Stand& stand) {
  return std::find(stand.Next.begin(), stand.Next.end(), kToDragon) != stand.Next.end();
}

int32_t Least(const std::vector<int32_t>& steps, const Goal& goal) {
  int32_t least = -1;
  for (const int32_t stand : goal.Stands) {
    const int32_t here = steps[static_cast<size_t>(stand)];
    if (here >= 0 && (least < 0 || here < least)) least = here;
  }
  return least;
}

// A column's head: "c 3,1" for "chest 3,1".
std::string ShortName(const std::string& name) {
  const size_t blank = name.find(' ');
  return blank == std::string::npos ? name : name.substr(0, 1) + name.substr(blank);
}

std::string Padded(const std::string& text, size_t width) {
  return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

}  // namespace

std::vector<Goal> GoalsOf(const World& world, const Exploration& exploration) {
  std::map<std::string, Goal> found;
  Goal dragon{"dragon", {}};
  for (size_t number = 0; number < exploration.Stands.size(); ++number) {
    const Stand& stand = exploration.Stands[number];
    if (MeetsDragon(stand)) dragon.Stands.push_back(static_cast<int32_t>(number));
    const std::string name = NameOf(world, stand.party);
    if (name.empty()) continue;
    found[name].Name = name;
    found[name].Stands.push_back(static_cast<int32_t>(number));
  }
  std::vector<Goal> goals;
  goals.reserve(found.size() + 2);
  for (const auto& [name, goal] : found) goals.push_back(goal);
  std::sort(goals.begin(), goals.end(), Before);
  goals.insert(goals.begin(), Goal{"start", {0}});
  goals.push_back(dragon);
  return goals;
}

std::vector<std::vector<int32_t>> StepsBetween(const Exploration& exploration,
                                               const std::vector<Goal>& goals) {
  std::vector<std::vector<int32_t>> table;
  for (const Goal& from : goals) {
    std::vector<int32_t> row(goals.size(), -1);
    if (!from.Stands.empty()) {
      const std::vector<int32_t> steps = StepsFrom(exploration, from.Stands.front());
      for (size_t to = 0; to < goals.size(); ++to) row[to] = Least(steps, goals[to]);
    }
    table.push_back(row);
  }
  return table;
}

int32_t StepsOfATour(const std::vector<Goal>& goals,
                     const std::vector<std::vector<int32_t>>& steps_between) {
  std::vector<size_t> left;
  for (size_t goal = 0; goal < goals.size(); ++goal) {
    if (goals[goal].Name[0] == 'c' || goals[goal].Name[0] == 'b') left.push_back(goal);
  }
  size_t here = 0;
  int32_t steps = 0;
  while (!left.empty()) {
    const auto nearest = std::min_element(left.begin(), left.end(), [&](size_t one, size_t other) {
      return steps_between[here][one] < steps_between[here][other];
    });
    if (steps_between[here][*nearest] < 0) return -1;
    steps += steps_between[here][*nearest];
    here = *nearest;
    left.erase(nearest);
  }
  const int32_t last = steps_between[here].back();
  return last < 0 ? -1 : steps + last;
}

std::string DistanceTable(const World& world, const Exploration& exploration) {
  const std::vector<Goal> goals = GoalsOf(world, exploration);
  const std::vector<std::vector<int32_t>> table = StepsBetween(exploration, goals);
  std::string text = exploration.journey.Name + ", steps of 4 pixels\n" + Padded("", 10);
  for (const Goal& goal : goals) text += Padded(ShortName(goal.Name), 7);
  text += '\n';
  for (size_t from = 0; from < goals.size(); ++from) {
    text += goals[from].Name + std::string(10 - std::min<size_t>(10, goals[from].Name.size()), ' ');
    for (const int32_t steps : table[from]) text += Padded(std::to_string(steps), 7);
    text += '\n';
  }
  const int32_t tour = StepsOfATour(goals, table);
  text += "all chests, the nearest first, then the dragon: " + std::to_string(tour) + " steps, " +
          std::to_string(tour / kStepsToAFight) + " fights on the way\n";
  return text;
}

}  // namespace orvane::maps
