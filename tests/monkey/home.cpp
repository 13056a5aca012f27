#include "tests/monkey/home.h"

#include <array>
#include <deque>

#include "src/core/map.h"
#include "src/field/tiles.h"
#include "src/ui/controls.h"
#include "src/ui/reach.h"

namespace orvane::monkey {
namespace {

class Way {
 public:
  explicit Way(Program& program) : program_(program), stage_(program.TheStage()) {}

  bool Step() {
    if (stage_.HeldFor() > 0) return program_.EndHold(), true;
    if (stage_.BoxStands()) {
      return Done(program_.Answer(AnswerOfClosing(stage_.Boxes().back().Shown.Buttons)));
    }
    Screen* active = stage_.Active();
    if (active == nullptr) return false;
    if (active->Name() == "Battle") return StepInBattle(*active);
    if (active->Name() == "Ending") return StepInEnding(*active);
    if (active->Name() == "Main") return StepInField(*active);
    return Done(program_.Close(*active));
  }

 private:
  static bool Done(const Refusal& refusal) { return refusal.empty(); }

  template <class Kind>
  Kind& Find(const Screen& screen, const char* name) {
    return *static_cast<Kind*>(screen.Find(name));
  }

  bool Tick(const Screen& screen, const char* name) {
    auto& timer = Find<Timer>(screen, name);
    if (!timer.Ticks() || timer.InTick) return false;
    program_.Tick(timer);
    return true;
  }

  bool ChooseTarget(ListBox& list) {
    for (int row = 1; row < list.ListCount(); ++row) {
      if (list.List(row) != "×") return Done(program_.Choose(list, row));
    }
    return Done(program_.Choose(list, 0));
  }

  bool StepInBattle(const Screen& battle) {
    if (Tick(battle, "Timer1")) return true;
    if (IsShown(*battle.Find("Picture10"))) return Done(program_.Click(*battle.Find("Picture1")));
    if (const auto lists = UsableOf(battle, ControlKind::List); !lists.empty()) {
      auto& list = static_cast<ListBox&>(*lists.front());
      return list.Name() == "List2" ? ChooseTarget(list) : Done(program_.Choose(list, 0));
    }
    if (CanClick(*battle.Find("Command1"))) return Done(program_.Click(*battle.Find("Command1")));
    auto& tabs = Find<TabStrip>(battle, "SSTab1");
    if (Done(program_.SelectTab(tabs, tabs.Tab() ^ 1))) {
      return CanClick(*battle.Find("Command1"));
    }
    const auto buttons = UsableOf(battle, ControlKind::Button);
    return !buttons.empty() && Done(program_.Click(*buttons.front()));
  }

  bool StepInEnding(Screen& ending) {
    for (int tick = 0; tick < 100; ++tick) {
      if (!Tick(ending, "Timer1")) break;
    }
    program_.Press(ending);
    return true;
  }

  bool StepInField(const Screen& main) {
    for (const char* timer : {"Timer2", "Timer3"}) {
      if (!Tick(main, timer)) continue;
      if (!stage_.BoxStands() && program_.TheStage().Active() == &main) {
        program_.Click(*main.Find("Picture1"));
      }
      return true;
    }
    return false;
  }

  Program& program_;
  Stage& stage_;
};

}  // namespace

std::vector<Control*> UsableOf(const Screen& screen, ControlKind kind) {
  std::vector<Control*> usable;
  for (Control* control : screen.Controls()) {
    if (control->Kind() == kind && CanClick(*control)) usable.push_back(control);
  }
  return usable;
}

bool IsHome(Program& program) {
  const Stage& stage = program.TheStage();
  const Screen* active = stage.Active();
  if (active == nullptr || active->Name() != "Main" || stage.BoxStands() || !stage.TimeRuns()) {
    return false;
  }
  if (program.TheState().GameStarted == kFalse) return true;
  return static_cast<const Timer*>(active->Find("Timer1"))->Ticks();
}

bool StepHome(Program& program) {
  return Way(program).Step();
}

std::optional<Direction> WayUp(const State& state) {
  struct Cell {
    int Column, Row;
    std::optional<Direction> First;
  };
  struct Turn {
    Direction To;
    int Columns, Rows;
  };
  constexpr std::array<Turn, 4> turns = {{{Direction::Up, 0, -1},
                                          {Direction::Left, -1, 0},
                                          {Direction::Right, 1, 0},
                                          {Direction::Down, 0, 1}}};
  constexpr int lair_column = 14;
  constexpr int lair_row = 3;
  std::array<std::array<bool, kMapRows>, kMapColumns> seen{};
  std::deque<Cell> next = {
      {int{state.HeroX} / kTileSize, int{state.HeroY} / kTileSize, std::nullopt}};
  while (!next.empty()) {
    const Cell cell = next.front();
    next.pop_front();
    if (cell.Column == lair_column && cell.Row <= lair_row) return cell.First;
    for (const Turn& turn : turns) {
      const int column = cell.Column + turn.Columns;
      const int row = cell.Row + turn.Rows;
      if (column < 0 || row < 0 || column >= kMapColumns || row >= kMapRows) continue;
      bool& was_seen = seen.at(static_cast<size_t>(column)).at(static_cast<size_t>(row));
      if (was_seen || !IsWalkable(state.MapTile[column][row])) continue;
      was_seen = true;
      next.push_back({column, row, cell.First ? cell.First : turn.To});
    }
  }
  return std::nullopt;
}

}  // namespace orvane::monkey
