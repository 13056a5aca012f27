// The window of one screen.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "src/frontend/shared/scale.h"
#include "src/frontend/windows/input/focus.h"
#include "src/frontend/windows/system/own_window.h"
#include "src/frontend/windows/views/menu_view.h"
#include "src/frontend/windows/views/view.h"
#include "src/frontend/windows/windows/client_area.h"

namespace orvane {

class ScreenWindow : public OwnWindow {
 public:
  // The window is there from now on, hidden.
  ScreenWindow(Screen& screen, const Setting& setting);

  Screen& Model() const { return screen_; }
  Focus& KeysTo() { return *keys_to_; }
  bool HasMenu() const { return menu_.Bar() != nullptr; }
  bool IsUp() const { return up_; }

  // Brings the window's title, menus and controls up to date.
  void Follow();

  // Shows everything anew, in another language.
  void Retranslate();

  // Shows the window over the middle of `over`, or of the display where that is null; where it has
  // been before, it comes back to that place. While it covers the display it belongs to `backdrop`.
  // `active` tells whether it takes the keyboard as it comes.
  void Present(const ScreenWindow* over, HWND backdrop, bool active);
  void Dismiss();

  // The scale has changed, or whether scenes cover the display. The window keeps its middle.
  void LayOut(bool full_screen);

  // What the window takes of the display; `full_screen` tells whether a scene covers it.
  Span TakenSpan(bool full_screen) const;

  // Paints at once what has changed, and returns whether anything has.
  bool PaintNow() const;

 protected:
  LRESULT Take(UINT message, WPARAM w, LPARAM l) override;

 private:
  void MakeViews();
  void FollowTitle();
  void FollowAll();
  void OfferLanguages(POINT at) const;
  void Centre(POINT middle) const;
  void CoverDisplay() const;
  SIZE WholeSize() const;
  SIZE InsideSize() const;
  void PlaceClient();
  DWORD Style() const;

  Screen& screen_;
  const Setting& setting_;
  MenuView menu_;
  std::unique_ptr<ClientArea> client_;
  std::vector<std::unique_ptr<View>> views_;
  std::unique_ptr<Focus> keys_to_;
  std::string title_;
  bool up_ = false;
  bool covers_ = false;  // the display
  bool placed_ = false;  // has had a place of its own
};

}  // namespace orvane
