#include "src/frontend/desktop/views/field_view.h"

#include "src/frontend/shared/events.h"
#include "src/game/program.h"

namespace orvane {

FieldView::FieldView(TextBox& model, QWidget* parent, Events& events)
    : ControlView(model, new QLineEdit(parent), events),
      model_(model),
      widget_(static_cast<QLineEdit*>(Widget())) {
  // The fields are as low as the game lays them out; the text needs the height that is left.
  widget_->setTextMargins(0, 0, 0, 0);
  QObject::connect(
      widget_, &QLineEdit::textEdited, widget_, [&model, &events](const QString& text) {
        const std::string typed = text.toStdString();
        events.Send([&model, &typed](Program& program) { program.EnterText(model, typed); });
      });
  QObject::connect(widget_, &QLineEdit::returnPressed, widget_, [&model, &events] {
    events.Send([&model](Program& program) { program.Confirm(model.Owner()); });
  });
}

void FieldView::FollowValues(bool /*all*/) {
  const QString text = ToQt(model_.Text);
  if (widget_->text() != text) widget_->setText(text);
}

}  // namespace orvane
