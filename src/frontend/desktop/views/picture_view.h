// Pictures.
#pragma once

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class PictureWidget;

class PictureView : public ControlView {
 public:
  PictureView(PictureBox& model, QWidget* parent, Events& events);

 protected:
  void FollowValues(bool all) override;

 private:
  PictureBox& model_;
  PictureWidget* widget_;
};

}  // namespace orvane
