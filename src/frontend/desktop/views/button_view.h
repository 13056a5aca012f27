// Push buttons.
#pragma once

#include <QPushButton>

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class ButtonView : public ControlView {
 public:
  ButtonView(CommandButton& model, QWidget* parent, Events& events);

 protected:
  void FollowValues(bool all) override;

 private:
  CommandButton& model_;
  QPushButton* widget_;
  std::string seen_;
};

}  // namespace orvane
