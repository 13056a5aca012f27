#include "src/frontend/desktop/views/button_view.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <string>

#include "src/frontend/desktop/input/keyboard.h"
#include "src/frontend/desktop/paint/fonts.h"
#include "src/frontend/shared/caption_fit.h"
#include "src/frontend/shared/events.h"
#include "src/game/program.h"

namespace orvane {
namespace {

// A push button that Enter presses too.
class Button : public QPushButton {
 public:
  using QPushButton::QPushButton;

  void SetCaption(const std::string& caption) {
    caption_ = caption;
    Fit();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // The window knows what lies next to a button.
    if (ArrowKey(event->key())) return event->ignore();
    if (!enter) return QPushButton::keyPressEvent(event);
    if (!event->isAutoRepeat()) click();
  }

  void resizeEvent(QResizeEvent* event) override {
    QPushButton::resizeEvent(event);
    Fit();
  }

 private:
  // The game has buttons of a text line's height, whose text is made small enough, and narrow ones,
  // whose text is broken where it has a blank.
  void Fit() {
    constexpr int margin = 4;
    QFont face = DefaultFont();
    face.setPixelSize(CaptionSize(face.pixelSize(), height()));
    setFont(face);
    const QString text = ToQtCaption(caption_);
    const bool is_too_wide = fontMetrics().horizontalAdvance(text) > width() - 2 * margin;
    setText(is_too_wide ? ToQtCaption(InTwoLines(caption_)) : text);
  }

  std::string caption_;
};

}  // namespace

ButtonView::ButtonView(CommandButton& model, QWidget* parent, Events& events)
    : ControlView(model, new Button(parent), events),
      model_(model),
      widget_(static_cast<QPushButton*>(Widget())) {
  QObject::connect(widget_, &QPushButton::clicked, widget_, [&model, &events] {
    events.Send([&model](Program& program) { program.Click(model); });
  });
}

void ButtonView::FollowValues(bool all) {
  if (!all && seen_ == model_.Caption) return;
  seen_ = model_.Caption;
  static_cast<Button*>(widget_)->SetCaption(Shown(seen_));
}

}  // namespace orvane
