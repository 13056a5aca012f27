// Where the keyboard is within a window.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "src/frontend/desktop/views/control_view.h"
#include "src/frontend/shared/focus_order.h"

namespace orvane {

// Carries out on a window's widgets what FocusOrder says of its controls.
class Focus {
 public:
  // The window of `screen` and the views of its controls. They must outlive it. Puts Tab in order.
  Focus(const QWidget& window, const Screen& screen,
        const std::vector<std::unique_ptr<ControlView>>& views);

  // The window comes up.
  void Begin();

  // The controls have changed; before that, `before` had the keyboard. While nothing can be used,
  // nothing has it.
  void Follow(QWidget* before);

  // Goes to the control that lies next in a direction. Nothing where there is none.
  void Move(Direction direction) const;

  // Opens the next tab that can be opened, or with -1 the one before. False where there are no
  // tabs.
  bool TurnTab(int step) const;

 private:
  ControlView* ViewOf(const Control* control) const;
  QWidget* TargetOf(const Control* control) const;
  // The control whose keys the widget takes, or null.
  Control* ControlOf(const QWidget* widget) const;

  const QWidget& window_;
  const std::vector<std::unique_ptr<ControlView>>& views_;
  FocusOrder order_;
};

}  // namespace orvane
