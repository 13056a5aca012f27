// Tab controls.
#pragma once

#include <QTabBar>
#include <vector>

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

// A row of tabs over panes. Positions on a pane count from the corner of the whole control, its
// tabs included, so every pane covers all of it, and the tabs lie on top.
class TabsView : public ControlView {
 public:
  TabsView(TabStrip& model, QWidget* parent, Events& events);

  QWidget* Ground(int pane) const override;
  QWidget* KeyTarget() const override { return bar_; }

  // Opens a tab as the player does.
  void Open(int tab) const { bar_->setCurrentIndex(tab); }

 protected:
  void FollowValues(bool all) override;

 private:
  TabStrip& model_;
  QTabBar* bar_;
  std::vector<QWidget*> panes_;
};

}  // namespace orvane
