// Texts on windows and pictures.
#pragma once

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class LabelWidget;

class LabelView : public ControlView {
 public:
  LabelView(Label& model, QWidget* parent, Events& events);

 protected:
  void FollowValues(bool all) override;
  QRect Box(const Place& place) const override;

 private:
  Label& model_;
  LabelWidget* widget_;
  LabelValues seen_;
};

}  // namespace orvane
