// The window of one screen.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

#include "src/frontend/desktop/input/focus.h"
#include "src/frontend/desktop/views/control_view.h"
#include "src/frontend/desktop/views/menu_view.h"
#include "src/frontend/desktop/windows/client_area.h"
#include "src/frontend/shared/scale.h"

namespace orvane {

// What windows are shown on.
struct Setting {
  bool FullScreen = false;  // scenes cover the display
  QWindow* Backdrop =
      nullptr;  // that covers the display behind all windows; null where there is none
};

class ScreenWindow : public QMainWindow {
 public:
  ScreenWindow(Screen& screen, WindowEvents& events);

  Screen& Model() const { return screen_; }
  // Null where the screen has no menus.
  const MenuView* Menu() const { return menu_.get(); }
  const Focus& KeysTo() const { return *keys_to_; }

  // Brings the window's title, menus and controls up to date.
  void Follow();

  // Shows all texts anew: the language may have changed.
  void Retranslate();

  // Shows the window over the middle of `over`, or of the screen where that is null; where it has
  // been before, it comes back to that place. It stands before the backdrop.
  void Present(ScreenWindow* over, const Setting& setting);
  // Takes the window off the screen.
  void Dismiss();
  // The same, and away from the window system, so that the scale can change.
  void TakeDown();
  // Presents it as it was, after TakeDown.
  void PutBack(const Setting& setting);

  // What the window takes of the display; `full_screen` tells whether a scene covers it.
  Span TakenSpan(bool full_screen) const;

  // The inside that the window manager has given a scene's window, in the screen's own pixels.
  const std::optional<Extent>& Given() const { return given_; }
  // Takes a size that the window may be given, as another one has been; with nothing the window has
  // the size of its scene again.
  void SetGiven(const std::optional<Extent>& given) { given_ = given; }

 protected:
  // Tells of painting.
  bool event(QEvent* event) override;
  // Offers the languages where nothing else is asked of a right click or of the key for menus.
  void contextMenuEvent(QContextMenuEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // Keys that the control which has the keyboard has no use for.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void MakeViews();
  void FollowTitle();
  void FollowAll();
  void Open(const Setting& setting);
  void Tie(QWindow* backdrop);
  void PutInPlace();
  void MeasureGiven();

  Screen& screen_;
  WindowEvents& events_;
  ClientArea* client_;
  std::unique_ptr<MenuView> menu_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::unique_ptr<Focus> keys_to_;
  QPointer<ScreenWindow> owner_;  // the window that this one was opened over
  QPointer<QWidget> focus_;       // had the keyboard when the window was taken down
  QTimer resized_;                // runs while the size may still change
  std::optional<Extent> given_;
  bool covers_ = false;            // the display, as it was opened last
  std::optional<QPointF> centre_;  // of the window, in the screen's own pixels, once it has a place
};

}  // namespace orvane
