// The window of one screen.
#pragma once

#include <QMainWindow>
#include <memory>
#include <vector>

#include "src/frontend/desktop/client_area.h"
#include "src/frontend/desktop/control_view.h"
#include "src/frontend/desktop/menu_view.h"

namespace orvane {

class ScreenWindow : public QMainWindow {
 public:
  ScreenWindow(Screen& screen, Events& events);

  Screen& Model() const { return screen_; }

  // Brings the window's title, menus and controls up to date.
  void Follow();

  // Shows the window over the middle of `over`, or of the screen where that is null; moves it only
  // the first time.
  void Present(const ScreenWindow* over);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeViews();
  void FollowTitle();
  void FollowAll();
  void TieTo(const ScreenWindow* over);
  void PutOver(const ScreenWindow* over);
  void FocusFirst();

  Screen& screen_;
  Events& events_;
  ClientArea* client_;
  std::unique_ptr<MenuView> menu_;
  std::vector<std::unique_ptr<ControlView>> views_;
  bool placed_ = false;
};

}  // namespace orvane
