#include "src/frontend/windows/views/button_view.h"

#include <cmath>

#include "src/frontend/shared/caption_fit.h"
#include "src/frontend/shared/faces.h"
#include "src/frontend/windows/paint/text_paint.h"
#include "src/frontend/windows/system/captions.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {

ButtonView::ButtonView(CommandButton& model, const Ground& ground, const Setting& setting)
    : View(model, setting), model_(model) {
  MakeControl(ground, WC_BUTTONW, BS_PUSHBUTTON | BS_MULTILINE);
}

void ButtonView::Notice(UINT code) {
  if (code != BN_CLICKED) return;
  TheSetting().TheEvents.Send([this](Program& program) { program.Click(model_); });
}

void ButtonView::Fit() const {
  constexpr double margin = 4;
  const int own = CaptionSize(PixelSize({}), static_cast<int>(model_.At.Height));
  const HFONT font = TheSetting().TheFonts.Get({}, static_cast<int>(std::lround(own * Scale())));
  const HDC context = GetDC(Handle());
  const HGDIOBJ before = SelectObject(context, font);
  const std::string caption = Shown(seen_);
  const int width = TextWidth(context, Wide(caption));
  SelectObject(context, before);
  ReleaseDC(Handle(), context);
  const bool is_too_wide = width > (model_.At.Width - 2 * margin) * Scale();
  Ask(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  SetText(WideCaption(is_too_wide ? InTwoLines(caption) : caption));
}

void ButtonView::FollowValues(bool all) {
  if (!all && seen_ == model_.Caption) return;
  seen_ = model_.Caption;
  Fit();
}

}  // namespace orvane
