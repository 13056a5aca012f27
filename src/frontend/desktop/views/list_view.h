// Lists of rows, and of files.
#pragma once

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class ListWidget;

class ListView : public ControlView {
 public:
  ListView(Control& model, ListValues& values, QWidget* parent, Events& events);

 protected:
  void FollowValues(bool all) override;

 private:
  ListValues& values_;
  ListWidget* widget_;
  ListValues seen_;
};

}  // namespace orvane
