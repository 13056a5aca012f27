// The ground of a screen: grey, or the surface that the screen itself is drawn on.
#pragma once

#include "src/frontend/windows/paint/surface_paint.h"
#include "src/frontend/windows/views/view.h"
#include "src/frontend/windows/windows/ground.h"
#include "src/ui/screen.h"

namespace orvane {

class ClientArea : public Ground {
 public:
  ClientArea(Screen& screen, HWND window, const Setting& setting);

  // Brings the surface up to date; `all` when it may have been made afresh.
  void Follow(bool all);
  // Gives it its name in the language that is shown.
  void NameForReaders() const;

 protected:
  void PaintGround(HDC context, const RECT& part) override;
  LRESULT Take(UINT message, WPARAM w, LPARAM l) override;

 private:
  void Announce();

  Screen& screen_;
  const Setting& setting_;
  SurfacePaint picture_;
  std::string told_;
};

}  // namespace orvane
