// Sliders.
#pragma once

#include <QSlider>

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class SliderView : public ControlView {
 public:
  SliderView(Slider& model, QWidget* parent, Events& events);

 protected:
  void FollowValues(bool all) override;

 private:
  Slider& model_;
  QSlider* widget_;
};

}  // namespace orvane
