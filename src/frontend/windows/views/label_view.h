// Texts on windows and pictures.
#pragma once

#include "src/frontend/windows/views/view.h"

namespace orvane {

// The window is there for screen readers; the ground that it stands on paints the text, so that
// what lies behind it shows through.
class LabelView : public View {
 public:
  LabelView(Label& model, Ground& ground, const Setting& setting);

  // Paints the text as it was followed last, on a picture of the ground.
  void Paint(HDC context, const RECT& part) const;

 protected:
  bool TakeBefore(UINT message, WPARAM w, LPARAM l, LRESULT& result) override;
  void FollowValues(bool all) override;

 private:
  // What the text takes of the ground: a strip of it, since it may be too long for its box.
  RECT Strip() const;

  Label& model_;
  const Ground& ground_;
  LabelValues seen_;
  LabelValues shown_;  // the same with the words that are painted
  RECT box_{};         // on the ground
  bool visible_ = false;
};

}  // namespace orvane
