// A window that is never seen and only takes messages, in every loop that the system runs.
#pragma once

#include <functional>
#include <string>

#include "src/frontend/windows/system/own_window.h"

namespace orvane {

// What a second start of the game sends to the first.
constexpr UINT kCallMessage = WM_APP + 1;

class MessageWindow : public OwnWindow {
 public:
  // `take` gets the messages from WM_APP on, and those of timers.
  MessageWindow(const std::wstring& name, std::function<void(UINT message)> take);

  // The message window of this name, of any program; null where there is none.
  static HWND Find(const std::wstring& name);

 protected:
  LRESULT Take(UINT message, WPARAM w, LPARAM l) override;

 private:
  std::function<void(UINT message)> take_;
};

}  // namespace orvane
