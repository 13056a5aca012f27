#include "src/frontend/windows/views/label_view.h"

#include "src/frontend/shared/faces.h"
#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/paint/text_paint.h"
#include "src/frontend/windows/windows/ground.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

bool Same(const LabelValues& one, const LabelValues& other) {
  return one.Caption == other.Caption && one.ForeColor == other.ForeColor &&
         one.Face.Name == other.Face.Name && one.Face.Size == other.Face.Size &&
         one.Face.Bold == other.Face.Bold && one.Alignment == other.Alignment;
}

}  // namespace

LabelView::LabelView(Label& model, Ground& ground, const Setting& setting)
    : View(model, setting), model_(model), ground_(ground) {
  MakeControl(ground, WC_STATICW, SS_NOPREFIX, WS_EX_TRANSPARENT);
  ground.Add(*this);
}

bool LabelView::TakeBefore(UINT message, WPARAM /*w*/, LPARAM /*l*/, LRESULT& result) {
  switch (message) {
    case WM_PAINT:
      ValidateRect(Handle(), nullptr);
      result = 0;
      return true;
    case WM_ERASEBKGND:
      result = 1;
      return true;
    case WM_NCHITTEST:
      // A click on a text is the business of what it lies on, which asks the model.
      result = HTTRANSPARENT;
      return true;
    default:
      return false;
  }
}

RECT LabelView::Strip() const {
  RECT strip;
  GetClientRect(ground_.Handle(), &strip);
  const int beyond = LetterPixels(seen_.Face, Scale());
  strip.top = box_.top - beyond;
  strip.bottom = box_.bottom + beyond;
  return strip;
}

void LabelView::FollowValues(bool all) {
  RECT box;
  GetWindowRect(Handle(), &box);
  MapWindowPoints(nullptr, ground_.Handle(), reinterpret_cast<POINT*>(&box), 2);
  const bool stays = EqualRect(&box, &box_) != FALSE && visible_ == model_.Visible;
  if (!all && stays && Same(seen_, model_)) return;
  const RECT before = Strip();
  if (visible_) InvalidateRect(ground_.Handle(), &before, FALSE);
  const bool words_changed = all || seen_.Caption != model_.Caption;
  const std::string words = words_changed ? Shown(model_.Caption) : shown_.Caption;
  seen_ = model_;
  shown_ = model_;
  shown_.Caption = words;
  // Readers hear of every text that is set.
  if (words_changed) SetText(Wide(words));
  box_ = box;
  visible_ = model_.Visible;
  const RECT now = Strip();
  if (visible_) InvalidateRect(ground_.Handle(), &now, FALSE);
}

void LabelView::Paint(HDC context, const RECT& part) const {
  const RECT strip = Strip();
  RECT common;
  if (!visible_ || IntersectRect(&common, &strip, &part) == FALSE) return;
  PaintText(context, TheSetting().TheFonts, box_, shown_, Scale());
}

}  // namespace orvane
