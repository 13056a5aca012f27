// The menu bar of a screen.
#pragma once

#include <string>
#include <vector>

#include "src/frontend/windows/system/windows_api.h"
#include "src/ui/controls.h"

namespace orvane {

class Events;

class MenuView {
 public:
  // Makes the bar with the screen's menus, where it has any. It belongs to the window that it is
  // then given to.
  MenuView(const Screen& screen, Events& events);

  // Null where the screen has no menus.
  HMENU Bar() const { return bar_; }

  // Brings the menus up to date; `window` is the one they belong to.
  void Follow(HWND window);

  // The player opens a menu, or chooses the item of this number.
  void Opened(HMENU menu);
  void Chosen(UINT number);

 private:
  struct Entry {
    MenuItem* Model = nullptr;
    HMENU In = nullptr;
    UINT At = 0;                // its position there
    HMENU Opens = nullptr;      // of a menu
    std::string Shown;          // its caption
    CommonValues SeenCommon{};  // it is made as one that is on
  };

  std::string CaptionOf(const MenuItem& item) const;
  void AddTop(MenuItem& item);
  void AddItem(MenuItem& item);

  Events& events_;
  HMENU bar_ = nullptr;
  std::vector<Entry> entries_;
};

}  // namespace orvane
