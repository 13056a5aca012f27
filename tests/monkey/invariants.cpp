#include "tests/monkey/invariants.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

#include "src/core/map.h"
#include "src/core/new_game.h"
#include "src/field/tiles.h"
#include "src/ui/controls.h"
#include "src/ui/reach.h"

namespace orvane::monkey {
namespace {

const Timer& TimerOf(const Stage& stage, const char* screen, const char* name) {
  return *static_cast<const Timer*>(stage.Find(screen)->Find(name));
}

// HP and MP as the field's panel and the battle's panes show them, "HP ：12/120".
std::string BrokenGauges(const Stage& stage) {
  for (const char* name : {"Main", "Battle"}) {
    const Screen& screen = *stage.Find(name);
    if (!screen.IsVisible()) continue;
    for (const Control* control : screen.Controls()) {
      if (control->Kind() != ControlKind::Label || !IsShown(*control)) continue;
      const std::string& caption = static_cast<const Label*>(control)->Caption;
      const size_t slash = caption.find('/');
      if (slash == std::string::npos) continue;
      const size_t digits = caption.find_last_not_of("-0123456789", slash - 1) + 1;
      int now = 0;
      int limit = 0;
      if (std::sscanf(caption.c_str() + digits, "%d/%d", &now, &limit) != 2) continue;
      if (now < 0 || now > limit) return screen.Name() + " shows " + caption;
    }
  }
  return {};
}

std::string BrokenNumbers(const State& state) {
  for (int hero = 0; hero < 2; ++hero) {
    if (state.HP[hero] < 0 || state.HP[hero] > state.MaxHP[hero]) return "HP out of bounds";
    if (state.MP[hero] < 0 || state.MP[hero] > state.MaxMP[hero]) return "MP out of bounds";
  }
  const auto items = std::count_if(state.Items.begin(), std::prev(state.Items.end()),
                                   [](int item) { return item != kNoItem; });
  if (state.ItemCount != items) {
    return "ItemCount " + std::to_string(state.ItemCount) + " for " + std::to_string(items);
  }
  if (state.HeroesActed < 0) return "HeroesActed below 0";
  if (state.EnemyCount < 0 || state.EnemyCount > 4) return "EnemyCount out of bounds";
  return {};
}

std::string BrokenLists(const Stage& stage) {
  for (const Screen* screen : stage.Screens()) {
    for (const Control* control : screen->Controls()) {
      const ListValues* list = nullptr;
      if (control->Kind() == ControlKind::List) list = static_cast<const ListBox*>(control);
      if (control->Kind() == ControlKind::FileList) list = static_cast<const FileListBox*>(control);
      const int rows = list == nullptr ? 0 : static_cast<int>(list->Rows.size());
      if (list != nullptr && (list->ListIndex < -1 || list->ListIndex >= rows)) {
        return screen->Name() + "." + control->Name() + " has row " +
               std::to_string(list->ListIndex) + " of " + std::to_string(rows);
      }
      if (control->Kind() != ControlKind::Tabs) continue;
      const auto& tabs = static_cast<const TabStrip&>(*control);
      if (tabs.Tab() < 0 || tabs.Tab() >= tabs.TabCount())
        return control->Name() + " has no tab open";
    }
  }
  return {};
}

std::string BrokenScreens(const Stage& stage) {
  if (stage.Active() == nullptr) return "no screen is active";
  if (!stage.Active()->IsVisible()) return "the active screen is hidden";
  for (const Screen* screen : stage.Screens()) {
    if (screen->IsVisible() && !screen->IsLoaded()) return screen->Name() + " is shown, not loaded";
    if (screen->IsModal() && screen != stage.Active())
      return screen->Name() + " is modal, not active";
  }
  return {};
}

// Which timers may be on at one time.
std::string BrokenTimers(const Stage& stage, bool walk_goes_on) {
  const Screen& battle = *stage.Find("Battle");
  const Screen& main = *stage.Find("Main");
  for (const char* name : {"Timer1", "Timer2"}) {
    const Timer& timer = TimerOf(stage, "Battle", name);
    if (timer.IsEnabled() && !battle.IsVisible())
      return std::string("Battle.") + name + " ticks unseen";
  }
  // The message of a tile whose step has met a fight too waits behind it, and so does the closing
  // scene of a dragon whose battle's window was closed. The walk stands.
  if (TimerOf(stage, "Main", "Timer1").Ticks() && !main.IsVisible() && !walk_goes_on)
    return "the walk goes on unseen";
  const Timer& scroll = TimerOf(stage, "Ending", "Timer1");
  if (scroll.Ticks() && !stage.Find("Ending")->IsVisible()) return "the credits roll unseen";
  return {};
}

// In a battle something can be chosen, or time goes on to where it can.
std::string StuckBattle(const Stage& stage) {
  const Screen& battle = *stage.Find("Battle");
  if (!battle.IsVisible() || stage.BoxStands() || !stage.TimeRuns()) return {};
  if (TimerOf(stage, "Battle", "Timer1").Ticks()) return {};
  if (!stage.TakesInput(battle)) return {};
  for (const Control* control : battle.Controls()) {
    const bool acts =
        control->Kind() == ControlKind::Button || control->Kind() == ControlKind::List;
    const bool ends = control->Name() == "Picture10" && IsShown(*control);
    if (ends || (acts && CanClick(*control))) return {};
  }
  return "nothing can be done in the battle";
}

// On the field, as it is read and with the party where it walks.
std::string BrokenPlace(Program& program) {
  const State& state = program.TheState();
  const Stage& stage = program.TheStage();
  if (state.GameStarted != kTrue || !TimerOf(stage, "Main", "Timer1").Ticks()) return {};
  const int column = int{state.HeroX} / kTileSize;
  const int row = int{state.HeroY} / kTileSize;
  if (column < 0 || row < 0 || column >= kMapColumns || row >= kMapRows) {
    return "the party stands beside the map";
  }
  return IsWalkable(state.MapTile[column][row]) ? std::string()
                                                : "the party stands in what it may not walk on";
}

}  // namespace

std::string Broken(Program& program, const Known& known) {
  const Stage& stage = program.TheStage();
  if (!stage.IsRunning()) return {};
  std::vector<std::string> all = {BrokenLists(stage), BrokenScreens(stage),
                                  BrokenTimers(stage, known.WalkGoesOn), StuckBattle(stage)};
  if (known.DataIsSound) {
    all.insert(all.end(),
               {BrokenGauges(stage), BrokenNumbers(program.TheState()), BrokenPlace(program)});
  }
  for (const std::string& each : all) {
    if (!each.empty()) return each;
  }
  return {};
}

}  // namespace orvane::monkey
