// Sliders.
#pragma once

#include "src/frontend/windows/views/view.h"

namespace orvane {

class SliderView : public View {
 public:
  SliderView(Slider& model, const Ground& ground, const Setting& setting);

  void Notice(UINT code) override;
  // It moves by all four arrows.
  bool Uses(WPARAM /*key*/) const override { return true; }

 protected:
  void FollowValues(bool all) override;

 private:
  Slider& model_;
};

}  // namespace orvane
