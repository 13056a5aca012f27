#include "src/frontend/desktop/views/control_view.h"

#include <cmath>

#include "src/frontend/shared/events.h"

namespace orvane {
namespace {

bool Same(const Place& one, const Place& other) {
  return one.Left == other.Left && one.Top == other.Top && one.Width == other.Width &&
         one.Height == other.Height;
}

int Round(double pixels) {
  // Absurd places come from absurd numbers in a save; a widget far away is as good.
  return static_cast<int>(std::lround(std::fmax(-30000, std::fmin(30000, pixels))));
}

}  // namespace

void ControlView::Follow() {
  FollowCommon(false);
  FollowValues(false);
}

void ControlView::FollowAll() {
  FollowCommon(true);
  FollowValues(true);
}

QRect ControlView::Box(const Place& place) const {
  const int border = model_.Parent() != nullptr ? model_.Parent()->Border() : 0;
  return {Round(place.Left) + border, Round(place.Top) + border, Round(place.Width),
          Round(place.Height)};
}

std::string ControlView::Shown(std::string_view text) const {
  return events_.Texts().Of(model_, text);
}

void ControlView::FollowCommon(bool all) {
  if (all || !Same(seen_.At, model_.At)) widget_->setGeometry(Box(model_.At));
  if (all || seen_.Enabled != model_.Enabled) widget_->setEnabled(model_.Enabled);
  if (all || seen_.Visible != model_.Visible) widget_->setVisible(model_.Visible);
  seen_ = model_;
}

QString ToQt(const std::string& text) {
  return QString::fromStdString(text);
}

QString ToQtCaption(const std::string& text) {
  return ToQt(text).replace('&', "&&");
}

}  // namespace orvane
