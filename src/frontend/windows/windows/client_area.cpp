#include "src/frontend/windows/windows/client_area.h"

#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"
#include "src/platform/windows/wide_text.h"
#include "src/ui/reach.h"

namespace orvane {

ClientArea::ClientArea(Screen& screen, HWND window, const Setting& setting)
    : screen_(screen), setting_(setting) {
  MakeWithin(window);
  NameForReaders();
}

void ClientArea::NameForReaders() const {
  const std::string name = setting_.TheEvents.Texts().Of(screen_.Caption);
  SetWindowTextW(Handle(), Wide(name).c_str());
}

void ClientArea::Follow(bool all) {
  if (all) InvalidateRect(Handle(), nullptr, FALSE);
  if (screen_.OwnSurface == nullptr) return;
  const RECT changed = picture_.Follow(*screen_.OwnSurface, all, setting_.Scale);
  if (IsRectEmpty(&changed) == FALSE) InvalidateRect(Handle(), &changed, FALSE);
  Announce();
}

void ClientArea::Announce() {
  if (!setting_.TheSpeech.IsHeard()) return;
  const std::string text = SpokenText(screen_, setting_.TheEvents.Texts());
  if (text == told_) return;
  told_ = text;
  Speech::SetDescription(Handle(), text);
  if (!text.empty()) Speech::Alert(Handle());
}

void ClientArea::PaintGround(HDC context, const RECT& part) {
  FillRect(context, &part, GetSysColorBrush(COLOR_BTNFACE));
  if (screen_.OwnSurface != nullptr) picture_.Paint(context, {0, 0}, part, setting_.Scale);
}

LRESULT ClientArea::Take(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONDOWN: {
      // Any button will do.
      const Point at = {GET_X_LPARAM(l) / setting_.Scale, GET_Y_LPARAM(l) / setting_.Scale};
      if (IsBare(screen_, at)) {
        setting_.TheEvents.Send([this](Program& program) { program.Press(screen_); });
      }
      return 0;
    }
    default:
      return Ground::Take(message, w, l);
  }
}

}  // namespace orvane
