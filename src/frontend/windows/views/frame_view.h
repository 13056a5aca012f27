// Titled frames.
#pragma once

#include "src/frontend/windows/views/view.h"
#include "src/frontend/windows/windows/ground.h"

namespace orvane {

// A frame whose line runs through the middle of its title.
class FrameGround : public Ground {
 public:
  FrameGround(Ground& ground, const Setting& setting);

  void SetTitle(const std::string& title);

 protected:
  void PaintGround(HDC context, const RECT& part) override;

 private:
  Ground& behind_;
  const Setting& setting_;
  std::wstring title_;
};

class FrameView : public View {
 public:
  FrameView(Frame& model, Ground& ground, const Setting& setting);

  Ground* GroundOf(int /*pane*/) override { return &ground_; }

 protected:
  void FollowValues(bool all) override;

 private:
  Frame& model_;
  FrameGround ground_;
  std::string seen_;
};

}  // namespace orvane
