// Where the keyboard is within a window.
#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "src/frontend/desktop/views/control_view.h"
#include "src/game/program.h"

namespace orvane {

// Keeps the keyboard on a control that can be used, as long as the window has one.
class Focus {
 public:
  // The views of a window's controls, in design order. They must outlive it. Puts Tab in the order
  // in which the controls are read: what is filled in comes before the buttons that go with it,
  // otherwise as designed.
  Focus(const QWidget& window, const std::vector<std::unique_ptr<ControlView>>& views);

  // The window comes up: the keyboard goes to the first list or field, or else to the first control
  // that takes keys.
  void Begin();

  // The controls have changed; before that, `before` had the keyboard. Where it can no longer be
  // used, the keyboard goes to its tabs, if its pane has closed; to a list or a field that has
  // come; or back to the last one that lost it and is there again. While nothing can be used,
  // nothing has the keyboard.
  void Follow(QWidget* before);

  // Goes to the control that lies next in a direction. Nothing where there is none.
  void Move(Key direction) const;

  // Opens the next tab that can be opened, or with -1 the one before. False where there are no
  // tabs.
  bool TurnTab(int step) const;

 private:
  struct Stop {
    ControlView* View = nullptr;
    QPointer<QWidget> Widget;  // that takes the keys
  };

  const Stop* StopOf(const QWidget* widget) const;
  bool IsUsable(const QWidget* widget) const;
  QWidget* Choose(const QWidget* before) const;
  QWidget* TabsAbove(const QWidget* widget) const;

  const QWidget& window_;
  std::vector<Stop> stops_;                  // all that can take keys, in the order of Tab
  std::vector<QPointer<QWidget>> had_keys_;  // and lost them by going, the last one last
};

}  // namespace orvane
