// The windows of all screens, kept like the stage: which are shown, and which is in front.
#pragma once

#include <memory>
#include <vector>

#include "src/frontend/shared/zoom.h"
#include "src/frontend/windows/windows/screen_window.h"
#include "src/ui/stage.h"

namespace orvane {

class Windows {
 public:
  // `setting` has the scale that the windows start with, and gets every other one.
  Windows(Stage& stage, Setting& setting);

  // Brings all that can be seen up to date, as large as the player wants it.
  void Follow(const Zoom& zoom);
  // Shows all windows anew, in another language.
  void Retranslate() const;
  // The next Follow lays all windows out, whatever they were.
  void LayOutAnew() { laid_out_ = false; }
  // Whether a screen takes no input because of a box or of another screen, and its window none.
  void FollowInput();
  // Brings the active screen's window to the front.
  void RaiseActive() const;

  // Paints at once what has changed, and tells which screens were painted.
  std::vector<const Screen*> PaintNow() const;

  // The window of the active screen, or null.
  ScreenWindow* Active() const;
  ScreenWindow* Of(const Screen* screen) const;
  // The screen's window that is this one, or holds it; null for other windows.
  ScreenWindow* Around(HWND window) const;

 private:
  void Suit(const Zoom& zoom);
  void FollowBackdrop();
  std::vector<Span> TakenSpans(bool full_screen) const;

  Stage& stage_;
  Setting& setting_;
  std::vector<std::unique_ptr<ScreenWindow>> windows_;
  std::unique_ptr<OwnWindow> backdrop_;  // there while the game has the full screen
  const Screen* active_ = nullptr;       // as the windows stand
  bool full_screen_ = false;
  bool laid_out_ = false;
};

// Whether the window that the player works with is one of this program's.
bool IsInFront();

}  // namespace orvane
