#include "src/frontend/windows/views/picture_view.h"

#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/paint/text_paint.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"

namespace orvane {
namespace {

void Fill(HDC context, const RECT& box, Colour colour) {
  SetDCBrushColor(context, SystemColour(colour));
  FillRect(context, &box, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

}  // namespace

PictureGround::PictureGround(PictureBox& model, const Ground& ground, const Setting& setting)
    : model_(model), setting_(setting) {
  MakeWithin(ground.Handle());
}

void PictureGround::Follow(bool all) {
  RECT changed = picture_.Follow(model_.Picture, all, setting_.Scale);
  if (all) {
    InvalidateRect(Handle(), nullptr, FALSE);
  } else if (IsRectEmpty(&changed) == FALSE) {
    const int edge = ToScreen(model_.Edge, setting_.Scale);
    OffsetRect(&changed, edge, edge);
    InvalidateRect(Handle(), &changed, FALSE);
  }
}

void PictureGround::PaintGround(HDC context, const RECT& part) {
  RECT inside;
  GetClientRect(Handle(), &inside);
  const RECT whole = inside;
  const int edge = ToScreen(model_.Edge, setting_.Scale);
  InflateRect(&inside, -edge, -edge);
  const SIZE size = picture_.Size(setting_.Scale);
  const bool is_covered =
      size.cx >= inside.right - inside.left && size.cy >= inside.bottom - inside.top;
  if (!is_covered) FillRect(context, &inside, GetSysColorBrush(COLOR_BTNFACE));
  picture_.Paint(context, {inside.left, inside.top}, part, setting_.Scale);
  if (edge > 0) PaintBorder(context, whole);
}

// Sunken into the window: dark above and on the left, light below and on the right.
void PictureGround::PaintBorder(HDC context, const RECT& box) const {
  constexpr Colour colours[][2] = {{0x808080, 0xFFFFFF}, {0x404040, 0xD8D8D8}};
  for (int ring = 0; ring < model_.Edge; ++ring) {
    const int outer = ToScreen(ring, setting_.Scale);
    const int thickness = ToScreen(ring + 1, setting_.Scale) - outer;
    RECT line = box;
    InflateRect(&line, -outer, -outer);
    const auto& [dark, light] = colours[ring % 2];
    Fill(context, {line.left, line.bottom - thickness, line.right, line.bottom}, light);
    Fill(context, {line.right - thickness, line.top, line.right, line.bottom}, light);
    Fill(context, {line.left, line.top, line.right - thickness, line.top + thickness}, dark);
    Fill(context, {line.left, line.top, line.left + thickness, line.bottom - thickness}, dark);
  }
}

void PictureGround::Click(POINT at) {
  const double x = at.x / setting_.Scale - model_.Edge;
  const double y = at.y / setting_.Scale - model_.Edge;
  setting_.TheEvents.Send([this, x, y](Program& program) { program.ClickAt(model_, x, y); });
}

LRESULT PictureGround::Take(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_LBUTTONDOWN:
      pressed_ = true;
      SetCapture(Handle());
      return 0;
    case WM_CAPTURECHANGED:
      pressed_ = false;
      return 0;
    case WM_LBUTTONUP: {
      const bool was_pressed = pressed_;
      const POINT at = {GET_X_LPARAM(l), GET_Y_LPARAM(l)};
      RECT whole;
      GetClientRect(Handle(), &whole);
      ReleaseCapture();
      if (was_pressed && PtInRect(&whole, at) != FALSE) Click(at);
      return 0;
    }
    default:
      return Ground::Take(message, w, l);
  }
}

PictureView::PictureView(PictureBox& model, const Ground& ground, const Setting& setting)
    : View(model, setting), model_(model), ground_(model, ground, setting) {
  Adopt(ground_.Handle());
  Speech::SetRole(Handle(), model.OnClick ? Speech::Role::Button : Speech::Role::Picture);
}

Ground* PictureView::GroundOf(int /*pane*/) {
  return &ground_;
}

void PictureView::FollowValues(bool all) {
  // A hidden sheet changes nothing on the screen; it is looked at when it comes up.
  if (model_.Visible) ground_.Follow(all || !followed_);
  followed_ = model_.Visible;
  Announce();
}

void PictureView::Announce() {
  if (!TheSetting().TheSpeech.IsHeard()) return;
  const std::string text = SpokenText(model_, TheSetting().TheEvents.Texts());
  if (text == told_) return;
  told_ = text;
  Speech::SetDescription(Handle(), text);
  // A text that has gone is no reason to interrupt the player.
  if (!text.empty()) Speech::Alert(Handle());
}

}  // namespace orvane
