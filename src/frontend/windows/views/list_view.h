// Lists of rows, and of files.
#pragma once

#include "src/frontend/windows/views/view.h"

namespace orvane {

// A row is chosen by a click or by Enter; the other keys only move the highlight.
class ListView : public View {
 public:
  ListView(Control& model, ListValues& values, const Ground& ground, const Setting& setting);

  void Draw(const DRAWITEMSTRUCT& drawing) override;
  bool Uses(WPARAM key) const override;
  void Press() override;

 protected:
  bool TakeBefore(UINT message, WPARAM w, LPARAM l, LRESULT& result) override;
  void FollowValues(bool all) override;

 private:
  void SetRows() const;
  void Choose(int row);
  std::wstring Row(WPARAM row) const;

  ListValues& values_;
  ListValues seen_;
  bool stale_ = false;  // the highlight may have left the row that the game knows
};

}  // namespace orvane
