// A window of ours that controls stand on: it paints itself and the texts that lie on it, all at
// once, and hands its controls what they report.
#pragma once

#include <vector>

#include "src/frontend/windows/system/own_window.h"

namespace orvane {

class LabelView;

class Ground : public OwnWindow {
 public:
  // A text that lies right on this ground.
  void Add(const LabelView& text) { texts_.push_back(&text); }

  // Paints what of this ground lies behind a window on it.
  void PaintBehind(HWND window, HDC context);

 protected:
  // Makes the window within another one.
  void MakeWithin(HWND parent);

  // Paints what lies behind the texts, at least within `part`.
  virtual void PaintGround(HDC context, const RECT& part) = 0;

  LRESULT Take(UINT message, WPARAM w, LPARAM l) override;

 private:
  void Paint();
  void PaintAll(HDC context, const RECT& part);

  std::vector<const LabelView*> texts_;
};

}  // namespace orvane
