// Windows of the program's own classes.
#pragma once

#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// What a window of a class of ours is made with.
struct WindowMaking {
  const wchar_t* Text = L"";
  DWORD Style = 0;
  DWORD Extended = 0;
  HWND Parent = nullptr;
  RECT Box{};
};

class OwnWindow {
 public:
  OwnWindow() = default;
  virtual ~OwnWindow();
  OwnWindow(const OwnWindow&) = delete;
  OwnWindow& operator=(const OwnWindow&) = delete;

  HWND Handle() const { return handle_; }

 protected:
  // Makes the window; Take gets its messages from then on.
  void Make(const WindowMaking& making);

  // Takes a message. What it has no use for goes on to the system's own handling.
  virtual LRESULT Take(UINT message, WPARAM w, LPARAM l);

 private:
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM w, LPARAM l);
  static const wchar_t* ClassName();

  HWND handle_ = nullptr;
};

}  // namespace orvane
