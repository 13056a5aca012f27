#include "src/frontend/windows/views/frame_view.h"

#include "src/frontend/shared/faces.h"
#include "src/frontend/shared/text_fit.h"
#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/paint/text_paint.h"
#include "src/frontend/windows/paint/theme.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {

FrameGround::FrameGround(Ground& ground, const Setting& setting)
    : behind_(ground), setting_(setting) {
  MakeWithin(ground.Handle());
}

void FrameGround::SetTitle(const std::string& title) {
  title_ = Wide(title);
  SetWindowTextW(Handle(), title_.c_str());
  InvalidateRect(Handle(), nullptr, FALSE);
}

void FrameGround::PaintGround(HDC context, const RECT& /*part*/) {
  constexpr double title_left = 8;
  constexpr double title_gap = 3;
  const double scale = setting_.Scale;
  RECT all;
  GetClientRect(Handle(), &all);
  behind_.PaintBehind(Handle(), context);
  const int line_height = ToScreen(OwnLineHeight(PixelSize({})), scale);
  RECT line = all;
  line.top += line_height / 2;
  SelectObject(context, setting_.TheFonts.Get({}, LetterPixels({}, scale)));
  const int left = ToScreen(title_left, scale);
  const int gap = ToScreen(title_gap, scale);
  const int saved = SaveDC(context);
  if (!title_.empty()) {
    ExcludeClipRect(context, left - gap, 0, left + TextWidth(context, title_) + gap, line_height);
  }
  PaintFrameLine(Handle(), context, line);
  RestoreDC(context, saved);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(COLOR_WINDOWTEXT));
  TextOutW(context, left, 0, title_.c_str(), static_cast<int>(title_.size()));
}

FrameView::FrameView(Frame& model, Ground& ground, const Setting& setting)
    : View(model, setting), model_(model), ground_(ground, setting) {
  Adopt(ground_.Handle());
  Speech::SetRole(Handle(), Speech::Role::Group);
}

void FrameView::FollowValues(bool all) {
  if (!all && seen_ == model_.Caption) return;
  seen_ = model_.Caption;
  ground_.SetTitle(Shown(seen_));
}

}  // namespace orvane
