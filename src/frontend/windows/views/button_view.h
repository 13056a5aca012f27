// Push buttons.
#pragma once

#include "src/frontend/windows/views/view.h"

namespace orvane {

class ButtonView : public View {
 public:
  ButtonView(CommandButton& model, const Ground& ground, const Setting& setting);

  void Notice(UINT code) override;
  void Press() override { Ask(BM_CLICK); }

 protected:
  void FollowValues(bool all) override;

 private:
  // Sets the caption as large as there is room, in two lines where one is too narrow.
  void Fit() const;

  CommandButton& model_;
  std::string seen_;
};

}  // namespace orvane
