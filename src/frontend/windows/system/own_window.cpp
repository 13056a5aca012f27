#include "src/frontend/windows/system/own_window.h"

#include "src/frontend/windows/system/program_icon.h"

namespace orvane {

const wchar_t* OwnWindow::ClassName() {
  static const wchar_t* const name = [] {
    WNDCLASSEXW kind{};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = &OwnWindow::Receive;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hIcon = ProgramIcon(GetSystemMetrics(SM_CXICON));
    kind.hIconSm = ProgramIcon(GetSystemMetrics(SM_CXSMICON));
    kind.lpszClassName = L"Orvane";
    RegisterClassExW(&kind);
    return kind.lpszClassName;
  }();
  return name;
}

OwnWindow::~OwnWindow() {
  if (handle_ == nullptr) return;
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  DestroyWindow(handle_);
}

void OwnWindow::Make(const WindowMaking& making) {
  const RECT& box = making.Box;
  handle_ = CreateWindowExW(making.Extended, ClassName(), making.Text, making.Style, box.left,
                            box.top, box.right - box.left, box.bottom - box.top, making.Parent,
                            nullptr, GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

LRESULT OwnWindow::Take(UINT message, WPARAM w, LPARAM l) {
  return DefWindowProcW(handle_, message, w, l);
}

LRESULT CALLBACK OwnWindow::Receive(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<OwnWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  return self != nullptr ? self->Take(message, w, l) : DefWindowProcW(window, message, w, l);
}

}  // namespace orvane
