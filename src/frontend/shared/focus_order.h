// Where the keyboard is within a window, and where it goes.
#pragma once

#include <optional>
#include <vector>

#include "src/game/program.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

// The height of a tab control's tabs: the layouts of its panes begin 24 pixels below its top.
constexpr int kTabHeight = 22;

// Keeps the keyboard on a control that can be used, as long as the screen has one.
class FocusOrder {
 public:
  // The screen must outlive it.
  explicit FocusOrder(const Screen& screen);

  // All controls that can take keys, in the order in which they are read: what is filled in comes
  // before the buttons that go with it, otherwise as designed.
  const std::vector<Control*>& Stops() const { return stops_; }

  // The window comes up: the first list or field, or else the first control that takes keys; null
  // where none can.
  Control* Begin();

  // The controls have changed; before that, `before` had the keyboard, or with null none. What is
  // to have it now: `before` itself, where it can be used; otherwise its tabs, if its pane has
  // closed; a list or a field that has come; or the last one that lost the keyboard and is there
  // again. Null while nothing can be used.
  Control* Follow(Control* before);

  // The control that Tab leads to from another, or with a step of -1 Shift and Tab, round and
  // round; from null the first or the last one. Null while nothing can be used.
  Control* Next(const Control* from, int step) const;

  // The control that lies next to another in a direction, or null where there is none.
  Control* Neighbour(const Control& from, Direction direction) const;

  // The tab to open of a tab control.
  struct Turn {
    TabStrip* Tabs = nullptr;
    int Tab = 0;
  };
  // The next tab that can be opened, or with a step of -1 the one before, round and round; the open
  // one where there is no other. Nothing where no tabs can be used.
  std::optional<Turn> NextTab(int step) const;

 private:
  Control* Choose(const Control* before) const;

  std::vector<Control*> stops_;
  std::vector<Control*> had_keys_;  // and lost them by going, the last one last
};

}  // namespace orvane
