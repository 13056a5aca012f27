// Fields for a line of text.
#pragma once

#include "src/frontend/windows/views/view.h"

namespace orvane {

class FieldView : public View {
 public:
  FieldView(TextBox& model, const Ground& ground, const Setting& setting);

  void Notice(UINT code) override;
  bool Uses(WPARAM key) const override;
  void Press() override;

 protected:
  bool TakeBefore(UINT message, WPARAM w, LPARAM l, LRESULT& result) override;
  void FollowValues(bool all) override;

 private:
  std::string Text() const;

  TextBox& model_;
  bool composing_ = false;  // the input method is at work within the text
};

}  // namespace orvane
