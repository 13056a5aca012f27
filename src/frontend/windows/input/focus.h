// Where the keyboard is within a window.
#pragma once

#include <memory>
#include <vector>

#include "src/frontend/shared/focus_order.h"
#include "src/frontend/windows/views/view.h"

namespace orvane {

class Events;

// Carries out on a window's controls what FocusOrder says of them.
class Focus {
 public:
  // The window of `screen` and the views of its controls. They must outlive it.
  Focus(HWND window, const Screen& screen, const std::vector<std::unique_ptr<View>>& views);

  // The window comes up.
  void Begin();
  // Takes note of what the player has clicked on, while it still has the keyboard.
  void Look();
  // The controls have changed. While nothing can be used, the window itself has the keyboard.
  void Follow();
  // The window has become the active one.
  void Restore() const;
  // Tab, or with -1 Shift and Tab.
  void Step(int step);
  // Goes to the control that lies next in a direction. Nothing where there is none.
  void Move(Direction direction);
  // Opens the next tab that can be opened, or with -1 the one before. False where there are no
  // tabs.
  bool TurnTab(int step, Events& events) const;

  // The view that has the keyboard, or null.
  View* Current();

 private:
  View* ViewOf(const Control* control) const;
  void GoTo(Control* control);

  HWND window_;
  const std::vector<std::unique_ptr<View>>& views_;
  FocusOrder order_;
  Control* current_ = nullptr;
};

}  // namespace orvane
