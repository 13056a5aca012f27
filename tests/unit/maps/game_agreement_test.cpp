// The checker walks by a step of its own; here it must agree with the step of the game.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "src/base/error.h"
#include "src/core/game.h"
#include "src/field/party_walk.h"
#include "src/field/tiles.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "tools/maps/explore.h"
#include "tools/maps/step.h"
#include "tools/maps/tile_codes.h"

namespace orvane::maps {
namespace {

// A game folder that holds the maps of a world, for as long as the object lives.
class MapFolder {
 public:
  MapFolder(const World& world, const std::string& name)
      : path_(std::filesystem::temp_directory_path() /
              (name + "-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(path_ / "Mapdata");
    for (const auto& [place, map] : world.maps) {
      WriteFile((path_ / "Mapdata" / (FileName(place) + ".dat")).string(), WriteDat(map));
    }
  }
  MapFolder(const MapFolder&) = delete;
  MapFolder& operator=(const MapFolder&) = delete;
  ~MapFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// The game, put on any spot and walked one step.
class GameWalker {
 public:
  GameWalker(const World& world, const std::filesystem::path& folder)
      : world_(world), files_(folder), game_(Services{quiet_.Sound, quiet_.Luck, files_}) {
    game_.links.ShowBattle = [this] { battle_ = true; };
  }

  Outcome Walk(const StepRules& rules, const Party& party, Direction direction) {
    Put(rules, party);
    State& state = game_.state;
    state.KeyUp = direction == Direction::Up ? -1 : 0;
    state.KeyDown = direction == Direction::Down ? -1 : 0;
    state.KeyLeft = direction == Direction::Left ? -1 : 0;
    state.KeyRight = direction == Direction::Right ? -1 : 0;
    battle_ = false;
    try {
      WalkOneStep(game_, 0, [] {});
    } catch (const RunError&) {
      tiles_of_.reset();
      return {Event::NoSuchMap, party};
    }
    const bool moved = state.HeroX != party.x || state.HeroY != party.y;
    return {battle_ ? Event::Dragon : moved ? Event::Walked : Event::Blocked, Now()};
  }

  // True when the tiles in the game's memory are those of the place.
  bool HasTilesOf(const Place& place) {
    const TileMap* map = world_.Find(place);
    for (int column = 0; column < kColumns; ++column) {
      for (int row = 0; row < kRows; ++row) {
        if (game_.state.MapTile[column][row] != map->At(column, row)) return false;
      }
    }
    tiles_of_ = place;
    return true;
  }

  // The next step cannot rely on the tiles that stand in memory.
  void Forget() { tiles_of_.reset(); }

 private:
  void Put(const StepRules& rules, const Party& party) {
    State& state = game_.state;
    if (tiles_of_ != party.Ground()) {
      const TileMap* map = world_.Find(party.Ground());
      for (int column = 0; column < kColumns; ++column) {
        for (int row = 0; row < kRows; ++row) state.MapTile[column][row] = map->At(column, row);
      }
      tiles_of_ = party.Ground();
    }
    state.Round = rules.round;
    state.LastBossFight = rules.round == 4 ? -1 : 0;
    state.BossFight = 0;
    for (int skill = 0; skill < 10; ++skill)
      state.WazaKnown[skill] = rules.nine_techniques ? -1 : 0;
    for (int chest = 0; chest < 15; ++chest) state.TreasureLeft[chest] = 0;
    for (int book = 0; book < 4; ++book) state.BookLeft[book] = 0;
    state.MapA = party.map_a;
    state.MapB = party.map_b;
    state.HeroX = party.x;
    state.HeroY = party.y;
    state.InBook = party.in_book ? -1 : 0;
    state.BookReturnX = party.return_x;
    state.BookReturnY = party.return_y;
  }

  Party Now() {
    const State& state = game_.state;
    Party party{state.MapA, state.MapB, state.HeroX, state.HeroY};
    party.in_book = state.InBook != 0;
    if (party.in_book) {
      party.return_x = state.BookReturnX;
      party.return_y = state.BookReturnY;
    }
    return party;
  }

  const World& world_;
  QuietServices quiet_;  // never a chance encounter
  FolderStorage files_;
  Game game_;
  bool battle_ = false;
  std::optional<Place> tiles_of_;
};

// Both take the step; true when they agree about what comes of it, the tiles in memory included.
bool Agree(GameWalker& walker, const World& world, const StepRules& rules, const Party& party,
           Direction direction) {
  Outcome mine = Step(world, rules, party, direction);
  const Outcome games = walker.Walk(rules, party, direction);
  if (mine.event != games.event) return false;
  if (mine.event == Event::NoSuchMap) return true;
  const Place ground = mine.party.Ground();
  mine.party.room = Room::None;  // the game has no such mark; its tiles tell
  if (mine.party != games.party) return false;
  if (ground == party.Ground()) return true;
  return world.Find(ground) != nullptr && walker.HasTilesOf(ground);
}

std::string Told(const Party& party, Direction direction) {
  return PlaceName(party.Ground()) + " at " + std::to_string(party.x) + "," +
         std::to_string(party.y) + " way " + std::to_string(static_cast<int>(direction));
}

TEST(GameAgreement, AboutWhatCanBeWalkedOn) {
  for (int code = -1; code <= 300; ++code) EXPECT_EQ(Walkable(code), IsWalkable(code)) << code;
}

// Every step that leaves a map, opens a door or meets the dragon, and a part of all others.
TEST(GameAgreement, OnTheMapsOfTheGame) {
  const World world = ReadTiledWorld(ORVANE_MAP_SOURCES);
  const MapFolder folder(world, "orvane-maps");
  GameWalker walker(world, folder.Path());
  size_t compared = 0;
  for (const Journey& journey : AllJourneys()) {
    const Exploration exploration = Explore(world, journey);
    for (size_t number = 0; number < exploration.stands.size(); ++number) {
      const Stand& stand = exploration.stands[number];
      for (size_t way = 0; way < 4; ++way) {
        const int32_t next = stand.next[way];
        const bool turns =
            next == kToDragon || next == kToNowhere ||
            (next >= 0 &&
             exploration.stands[static_cast<size_t>(next)].party.Ground() != stand.party.Ground());
        if (!turns && (number * 4 + way) % 97 != 0) continue;
        ++compared;
        ASSERT_TRUE(Agree(walker, world, journey.rules, stand.party, kDirections[way]))
            << journey.name << ": " << Told(stand.party, kDirections[way]);
        walker.Forget();
      }
    }
  }
  EXPECT_GT(compared, 10000u);
}

// Maps of chance codes show what well-drawn maps never do.
TEST(GameAgreement, OnMapsOfChance) {
  std::mt19937 chance(20);
  const auto draw = [&](int from, int to) {
    return std::uniform_int_distribution<>(from, to)(chance);
  };
  World world;
  for (const Place& place : AllPlaces()) {
    TileMap map;
    for (int column = 0; column < kColumns; ++column) {
      for (int row = 0; row < kRows; ++row) {
        constexpr int kDoors[] = {47, 116, kBookFDoor, kChest, kRecovery, 73};
        const int roll = draw(0, 9);
        map.Set(column, row, roll < 6 ? 7 : roll < 8 ? kDoors[draw(0, 5)] : draw(0, 245));
      }
    }
    world.maps[place] = map;
  }
  const MapFolder folder(world, "orvane-chance");
  GameWalker walker(world, folder.Path());
  const std::vector<Place> places = AllPlaces();
  for (int trial = 0; trial < 40000; ++trial) {
    const Place place = places[static_cast<size_t>(draw(0, static_cast<int>(places.size()) - 1))];
    const bool edge = draw(0, 2) == 0;
    Party party{place.map_a, place.map_b, draw(16, 479), draw(16, 239)};
    if (edge && draw(0, 1) == 0) party.x = draw(0, 1) == 0 ? draw(16, 22) : draw(456, 466);
    if (edge && draw(0, 1) == 0) party.y = draw(0, 1) == 0 ? draw(16, 22) : draw(232, 239);
    if (place.room != Room::None) {
      party = {draw(1, 5), draw(1, 5), party.x,       party.y,
               place.room, true,       draw(20, 400), draw(20, 200)};
    }
    const StepRules rules{draw(1, 4), draw(0, 1) == 0};
    const Direction direction = kDirections[draw(0, 3)];
    ASSERT_TRUE(Agree(walker, world, rules, party, direction)) << Told(party, direction);
    walker.Forget();
  }
}

}  // namespace
}  // namespace orvane::maps
