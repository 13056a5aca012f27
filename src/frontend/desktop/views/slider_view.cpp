#include "src/frontend/desktop/views/slider_view.h"

#include <QSignalBlocker>

#include "src/frontend/shared/events.h"
#include "src/game/program.h"

namespace orvane {

SliderView::SliderView(Slider& model, QWidget* parent, Events& events)
    : ControlView(model, new QSlider(Qt::Horizontal, parent), events),
      model_(model),
      widget_(static_cast<QSlider*>(Widget())) {
  widget_->setTickPosition(QSlider::TicksBelow);
  QObject::connect(widget_, &QSlider::valueChanged, widget_, [&model, &events](int value) {
    events.Send([&model, value](Program& program) { program.Slide(model, value); });
  });
}

void SliderView::FollowValues(bool /*all*/) {
  const QSignalBlocker quiet(widget_);
  widget_->setRange(model_.Min, model_.Max);
  widget_->setSingleStep(model_.SmallChange);
  widget_->setPageStep(model_.LargeChange);
  widget_->setTickInterval(model_.SmallChange);
  if (widget_->value() != model_.Value) widget_->setValue(model_.Value);
}

}  // namespace orvane
