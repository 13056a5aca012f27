#include "src/frontend/windows/app/box_window.h"

#include <algorithm>
#include <span>
#include <utility>

#include "src/frontend/shared/box_captions.h"
#include "src/frontend/windows/system/captions.h"
#include "src/frontend/windows/system/program_icon.h"
#include "src/frontend/windows/windows/display.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

constexpr int kFirstButton = 100;

// A dialog without controls, as the system reads it: the numbers of its menu, class and title
// follow.
struct Template {
  DLGTEMPLATE Dialog{};
  WORD Rest[3]{};
};

// What the system's own boxes are laid out with, at 96 to the inch.
constexpr int kMargin = 12;
constexpr int kButtonWidth = 88;
constexpr int kButtonHeight = 26;
constexpr int kGap = 8;
constexpr int kWidestText = 520;
constexpr int kIcons = 110;  // beside the title

HFONT MessageFont(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

SIZE SizeOf(HWND window, HFONT font, const std::wstring& text, int widest) {
  RECT box = {0, 0, widest, 0};
  const HDC context = GetDC(window);
  const HGDIOBJ before = SelectObject(context, font);
  DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &box,
            DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
  SelectObject(context, before);
  ReleaseDC(window, context);
  return {box.right, box.bottom};
}

HWND MakeChild(HWND window, const wchar_t* kind, DWORD style, int number) {
  return CreateWindowExW(0, kind, L"", style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, window,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(number)),
                         GetModuleHandleW(nullptr), nullptr);
}

}  // namespace

BoxWindow::BoxWindow(const Box& box, const Translator& texts, HWND owner, bool active,
                     std::function<void(BoxAnswer)> answer)
    : box_(box), texts_(texts), answer_(std::move(answer)) {
  Template shape;
  shape.Dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_NOIDLEMSG;
  window_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &shape.Dialog, owner,
                                       &BoxWindow::Receive, reinterpret_cast<LPARAM>(this));
  MakeControls();
  LayOut(owner);
  ShowWindow(window_, active ? SW_SHOW : SW_SHOWNA);
}

BoxWindow::~BoxWindow() {
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
  DeleteObject(font_);
}

void BoxWindow::MakeControls() {
  SendMessageW(window_, WM_SETICON, ICON_SMALL,
               reinterpret_cast<LPARAM>(ProgramIcon(GetSystemMetrics(SM_CXSMICON))));
  text_ = MakeChild(window_, WC_STATICW, SS_NOPREFIX, -1);
  const auto count = static_cast<int>(ChoicesOf(box_.Buttons).size());
  for (int index = 0; index < count; ++index) {
    const DWORD kind = index == 0 ? BS_DEFPUSHBUTTON | WS_GROUP : BS_PUSHBUTTON;
    buttons_.push_back(MakeChild(window_, WC_BUTTONW, kind | WS_TABSTOP, kFirstButton + index));
  }
  Inscribe();
  SendMessageW(window_, DM_SETDEFID, kFirstButton, 0);
  SendMessageW(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

void BoxWindow::Inscribe() {
  shown_ = texts_.Of(box_);
  SetWindowTextW(window_, Wide(shown_.Title).c_str());
  SetWindowTextW(text_, WideLines(ShownText(shown_)).c_str());
  const std::span<const BoxChoice> choices = ChoicesOf(box_.Buttons);
  for (size_t i = 0; i < buttons_.size(); ++i) {
    SetWindowTextW(buttons_[i], WideCaption(texts_.Of(choices[i].Caption)).c_str());
  }
}

void BoxWindow::Retranslate() {
  Inscribe();
  LayOut(GetWindow(window_, GW_OWNER));
  InvalidateRect(window_, nullptr, TRUE);
}

void BoxWindow::LayOut(HWND owner) {
  RECT around = DisplayAt(owner).Available;
  const RECT available = around;
  if (owner != nullptr && IsIconic(owner) == FALSE) GetWindowRect(owner, &around);
  const UINT dpi = owner != nullptr ? GetDpiForWindow(owner) : GetDpiForWindow(window_);
  const auto px = [dpi](int own) { return MulDiv(own, static_cast<int>(dpi), 96); };
  const HFONT old = std::exchange(font_, MessageFont(dpi));
  if (old != nullptr) DeleteObject(old);
  const SIZE text = SizeOf(window_, font_, WideLines(ShownText(shown_)), px(kWidestText));
  const SIZE title = SizeOf(window_, font_, Wide(shown_.Title), 10 * px(kWidestText));
  const auto count = static_cast<int>(buttons_.size());
  const int buttons = count * px(kButtonWidth) + (count - 1) * px(kGap);
  const int width = std::max({static_cast<int>(text.cx) + 2 * px(kMargin),
                              buttons + 2 * px(kMargin), static_cast<int>(title.cx) + px(kIcons)});
  band_ = static_cast<int>(text.cy) + 4 * px(kMargin);
  const int height = band_ + px(kButtonHeight) + 2 * px(kMargin);
  MoveWindow(text_, px(kMargin), 2 * px(kMargin), width - 2 * px(kMargin), text.cy, FALSE);
  SendMessageW(text_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
  int left = width - px(kMargin) - buttons;
  for (const HWND button : buttons_) {
    MoveWindow(button, left, band_ + px(kMargin), px(kButtonWidth), px(kButtonHeight), FALSE);
    SendMessageW(button, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
    left += px(kButtonWidth) + px(kGap);
  }
  RECT box = {0, 0, width, height};
  AdjustWindowRectExForDpi(&box, static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE)), FALSE,
                           static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_EXSTYLE)), dpi);
  const LONG w = box.right - box.left;
  const LONG h = box.bottom - box.top;
  const LONG x = std::min((around.left + around.right - w) / 2, available.right - w);
  const LONG y = std::min((around.top + around.bottom - h) / 2, available.bottom - h);
  SetWindowPos(window_, HWND_TOP, std::max(x, available.left), std::max(y, available.top), w, h,
               SWP_NOACTIVATE);
}

bool BoxWindow::TakeKey(const MSG& message) const {
  if (message.hwnd != window_ && IsChild(window_, message.hwnd) == FALSE) return false;
  // A key still held down from before does not answer.
  const bool repeats = message.message == WM_KEYDOWN && (message.lParam & 1 << 30) != 0;
  if (repeats && message.wParam != VK_TAB) return true;
  MSG copy = message;
  if (copy.message == WM_KEYDOWN && copy.wParam == VK_RETURN) {
    // Enter presses the button that has the keyboard, as everywhere in the game.
    if (std::find(buttons_.begin(), buttons_.end(), GetFocus()) != buttons_.end()) {
      SendMessageW(GetFocus(), BM_CLICK, 0, 0);
      return true;
    }
  }
  return IsDialogMessageW(window_, &copy) != FALSE;
}

void BoxWindow::ComeToFront() const {
  SetForegroundWindow(window_);
  SetFocus(buttons_.front());
}

void BoxWindow::Answer(int number) {
  const std::span<const BoxChoice> choices = ChoicesOf(box_.Buttons);
  const auto index = static_cast<size_t>(number - kFirstButton);
  // The box may be gone when the answer has been taken.
  const auto answer = answer_;
  answer(index < choices.size() ? choices[index].Answer : AnswerOfClosing(box_.Buttons));
}

LRESULT BoxWindow::PaintGround(HDC context) const {
  RECT box;
  GetClientRect(window_, &box);
  RECT upper = box;
  upper.bottom = band_;
  box.top = band_;
  FillRect(context, &upper, GetSysColorBrush(COLOR_WINDOW));
  FillRect(context, &box, GetSysColorBrush(COLOR_BTNFACE));
  return TRUE;
}

INT_PTR BoxWindow::Take(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(w) != BN_CLICKED) return FALSE;
      if (LOWORD(w) >= kFirstButton || LOWORD(w) == IDCANCEL) Answer(LOWORD(w));
      return TRUE;
    case WM_CLOSE:
      Answer(IDCANCEL);
      return TRUE;
    case WM_ERASEBKGND:
      return PaintGround(reinterpret_cast<HDC>(w));
    case WM_CTLCOLORSTATIC:
      if (reinterpret_cast<HWND>(l) != text_) return FALSE;
      SetBkColor(reinterpret_cast<HDC>(w), GetSysColor(COLOR_WINDOW));
      return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
    case WM_DPICHANGED:
      LayOut(GetWindow(window_, GW_OWNER));
      return TRUE;
    default:
      return FALSE;
  }
}

INT_PTR CALLBACK BoxWindow::Receive(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, GWLP_USERDATA, l);
    return FALSE;
  }
  auto* self = reinterpret_cast<BoxWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  // Before it knows its window it has nothing to say.
  return self != nullptr && self->window_ != nullptr ? self->Take(message, w, l) : FALSE;
}

}  // namespace orvane
