// Tab controls.
#pragma once

#include <memory>
#include <vector>

#include "src/frontend/windows/views/view.h"
#include "src/frontend/windows/windows/ground.h"

namespace orvane {

// What the controls of one pane stand on.
class PaneGround : public Ground {
 public:
  explicit PaneGround(HWND tabs) { MakeWithin(tabs); }

 protected:
  void PaintGround(HDC context, const RECT& part) override;
};

// A row of tabs over panes. Positions on a pane count from the corner of the whole control, its
// tabs included, so every pane covers all of it but for the tabs, which it leaves free. The tabs
// are painted here: the system's own cannot be disabled.
class TabsView : public View {
 public:
  TabsView(TabStrip& model, const Ground& ground, const Setting& setting);

  Ground* GroundOf(int pane) override;
  void Notice(UINT code) override;
  bool Uses(WPARAM key) const override { return key == VK_LEFT || key == VK_RIGHT; }
  // Opens the next tab that is on in a direction, -1 or 1; none beyond the last one.
  void Turn(int step);

 protected:
  bool TakeBefore(UINT message, WPARAM w, LPARAM l, LRESULT& result) override;
  void FollowValues(bool all) override;

 private:
  void LayOut();
  void Paint();
  void PaintAll(HDC context);
  void Open(int tab);

  TabStrip& model_;
  TabValues seen_;
  std::vector<std::unique_ptr<PaneGround>> panes_;
};

}  // namespace orvane
