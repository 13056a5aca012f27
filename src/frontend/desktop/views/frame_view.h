// Titled frames.
#pragma once

#include <QGroupBox>

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class FrameView : public ControlView {
 public:
  FrameView(Frame& model, QWidget* parent, Events& events);

 protected:
  void FollowValues(bool all) override;

 private:
  Frame& model_;
  QGroupBox* widget_;
  std::string seen_;
};

}  // namespace orvane
