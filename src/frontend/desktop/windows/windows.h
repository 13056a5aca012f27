// The windows of all screens, kept like the stage: which are shown, and which is in front.
#pragma once

#include <QElapsedTimer>
#include <memory>
#include <vector>

#include "src/frontend/desktop/windows/screen_window.h"
#include "src/frontend/shared/zoom.h"
#include "src/ui/stage.h"

namespace orvane {

class Windows {
 public:
  // The windows start with the scale that is set.
  Windows(Stage& stage, WindowEvents& events, const Zoom& zoom);

  // Brings all that can be seen up to date.
  void Follow();
  // Shows all texts anew: the language has changed.
  void Retranslate();
  // Whether the windows are as large as the player wants those that are visible to be.
  bool Suit(const Zoom& zoom) const;
  // Makes them so. None of them may be within a handler: all are taken down and put back.
  void Rescale(const Zoom& zoom);
  // What the window manager has given one scene it is taken to give the next one too.
  void ShareGiven(const Screen& screen);
  // The windows have the sizes of their scenes again, unless the window manager gives them others.
  void ForgetGiven();
  // Brings the active screen's window to the front again, after a box.
  void RaiseActive();

  // The window of the active screen, or null.
  ScreenWindow* Active() const;
  ScreenWindow* Of(const Screen* screen) const;
  // The window of a scene that is shown, or null.
  const ScreenWindow* Scene() const;

  // The window manager has made a window the active one. True if the player meant it; false if it
  // comes of the game's own opening and closing of windows.
  bool IsPlayersChoice(const ScreenWindow& window);

 private:
  void ShowNew();
  void HideOld();
  bool IsGiven() const;
  Setting TheSetting() const;
  void FollowBackdrop();
  // What the windows of all visible screens take of the display.
  std::vector<Span> TakenSpans(bool full_screen) const;

  Stage& stage_;
  std::vector<std::unique_ptr<ScreenWindow>> windows_;
  const Screen* active_ = nullptr;    // as the windows stand
  ScreenWindow* expected_ = nullptr;  // asked to the front and not there yet
  QElapsedTimer since_asked_;
  double scale_;
  bool full_screen_ = false;
  std::unique_ptr<QWidget> backdrop_;  // there while the game has the full screen
};

}  // namespace orvane
