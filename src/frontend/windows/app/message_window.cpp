#include "src/frontend/windows/app/message_window.h"

#include <utility>

namespace orvane {

MessageWindow::MessageWindow(const std::wstring& name, std::function<void(UINT message)> take)
    : take_(std::move(take)) {
  Make({.Text = name.c_str(), .Parent = HWND_MESSAGE});
}

HWND MessageWindow::Find(const std::wstring& name) {
  return FindWindowExW(HWND_MESSAGE, nullptr, L"Orvane", name.c_str());
}

LRESULT MessageWindow::Take(UINT message, WPARAM w, LPARAM l) {
  if (message < WM_APP && message != WM_TIMER) return OwnWindow::Take(message, w, l);
  take_(message);
  return 0;
}

}  // namespace orvane
