// Fields for a line of text.
#pragma once

#include <QLineEdit>

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class FieldView : public ControlView {
 public:
  FieldView(TextBox& model, QWidget* parent, Events& events);

 protected:
  void FollowValues(bool all) override;

 private:
  TextBox& model_;
  QLineEdit* widget_;
};

}  // namespace orvane
