#include "src/frontend/windows/windows/ground.h"

#include "src/frontend/windows/views/label_view.h"

namespace orvane {
namespace {

constexpr DWORD kCopyRaster = 0x00CC0020;

// A picture in memory that stands for a part of a window while that is painted.
class Canvas {
 public:
  Canvas(HDC target, const RECT& part)
      : target_(target), part_(part), context_(CreateCompatibleDC(target)) {
    bitmap_ = CreateCompatibleBitmap(target, part.right - part.left, part.bottom - part.top);
    before_ = SelectObject(context_, bitmap_);
    SetViewportOrgEx(context_, -part.left, -part.top, nullptr);
  }
  ~Canvas() {
    ::BitBlt(target_, part_.left, part_.top, part_.right - part_.left, part_.bottom - part_.top,
             context_, part_.left, part_.top, kCopyRaster);
    SelectObject(context_, before_);
    DeleteObject(bitmap_);
    DeleteDC(context_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  HDC Context() const { return context_; }

 private:
  HDC target_;
  RECT part_;
  HDC context_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
};

}  // namespace

void Ground::MakeWithin(HWND parent) {
  Make({.Style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, .Parent = parent});
}

void Ground::PaintAll(HDC context, const RECT& part) {
  PaintGround(context, part);
  for (const LabelView* text : texts_) text->Paint(context, part);
}

void Ground::PaintBehind(HWND window, HDC context) {
  RECT box;
  GetClientRect(window, &box);
  MapWindowPoints(window, Handle(), reinterpret_cast<POINT*>(&box), 2);
  POINT before{};
  OffsetViewportOrgEx(context, -box.left, -box.top, &before);
  PaintGround(context, box);
  SetViewportOrgEx(context, before.x, before.y, nullptr);
}

void Ground::Paint() {
  PAINTSTRUCT paint;
  const HDC target = BeginPaint(Handle(), &paint);
  const RECT& part = paint.rcPaint;
  if (IsRectEmpty(&part) == FALSE) {
    const Canvas canvas(target, part);
    PaintAll(canvas.Context(), part);
  }
  EndPaint(Handle(), &paint);
}

LRESULT Ground::Take(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_PRINTCLIENT: {
      // Controls whose corners are round ask for what lies behind them.
      RECT all;
      GetClientRect(Handle(), &all);
      PaintAll(reinterpret_cast<HDC>(w), all);
      return 0;
    }
    case WM_COMMAND:
      if (View* view = View::Of(reinterpret_cast<HWND>(l))) view->Notice(HIWORD(w));
      return 0;
    case WM_HSCROLL:
      if (View* view = View::Of(reinterpret_cast<HWND>(l))) view->Notice(LOWORD(w));
      return 0;
    case WM_NOTIFY: {
      const auto& notice = *reinterpret_cast<const NMHDR*>(l);
      if (View* view = View::Of(notice.hwndFrom)) view->Notice(notice.code);
      return 0;
    }
    case WM_DRAWITEM: {
      const auto& drawing = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
      if (View* view = View::Of(drawing.hwndItem)) view->Draw(drawing);
      return TRUE;
    }
    case WM_CTLCOLORSTATIC:
      return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
    default:
      return OwnWindow::Take(message, w, l);
  }
}

}  // namespace orvane
