// Pictures.
#pragma once

#include "src/frontend/windows/paint/surface_paint.h"
#include "src/frontend/windows/views/view.h"
#include "src/frontend/windows/windows/ground.h"

namespace orvane {

// The window of a picture: its border, the picture, and what stands on it.
class PictureGround : public Ground {
 public:
  PictureGround(PictureBox& model, const Ground& ground, const Setting& setting);

  void Follow(bool all);

 protected:
  void PaintGround(HDC context, const RECT& part) override;
  LRESULT Take(UINT message, WPARAM w, LPARAM l) override;

 private:
  void PaintBorder(HDC context, const RECT& box) const;
  void Click(POINT at);

  PictureBox& model_;
  const Setting& setting_;
  SurfacePaint picture_;
  bool pressed_ = false;
};

class PictureView : public View {
 public:
  PictureView(PictureBox& model, const Ground& ground, const Setting& setting);

  Ground* GroundOf(int pane) override;

 protected:
  void FollowValues(bool all) override;

 private:
  void Announce();

  PictureBox& model_;
  PictureGround ground_;
  std::string told_;
  bool followed_ = false;  // what is shown is the picture as it is
};

}  // namespace orvane
