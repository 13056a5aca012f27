#include "src/frontend/desktop/button_view.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "src/frontend/desktop/events.h"
#include "src/frontend/desktop/fonts.h"
#include "src/game/program.h"

namespace orvane {
namespace {

// A push button that Enter presses too.
class Button : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) return QPushButton::keyPressEvent(event);
    if (!event->isAutoRepeat()) click();
  }

  // The game has buttons of a text line's height; their text is made to fit.
  void resizeEvent(QResizeEvent* event) override {
    QPushButton::resizeEvent(event);
    constexpr int frame = 2;
    QFont face = DefaultFont();
    const int room = std::max(6, height() - 2 * frame + 2);
    if (room < face.pixelSize()) face.setPixelSize(room);
    setFont(face);
  }

  // A text wider than its button runs over two lines.
  void paintEvent(QPaintEvent* event) override {
    constexpr int margin = 4;
    const QRect inside = rect().adjusted(margin, 0, -margin, 0);
    if (fontMetrics().horizontalAdvance(text()) <= inside.width()) {
      return QPushButton::paintEvent(event);
    }
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(inside, Qt::AlignCenter | Qt::TextWordWrap, text());
  }
};

}  // namespace

ButtonView::ButtonView(CommandButton& model, QWidget* parent, Events& events)
    : ControlView(model, new Button(parent)),
      model_(model),
      widget_(static_cast<QPushButton*>(Widget())) {
  QObject::connect(widget_, &QPushButton::clicked, widget_, [&model, &events] {
    events.Send([&model](Program& program) { program.Click(model); });
  });
}

void ButtonView::FollowValues(bool all) {
  if (!all && seen_ == model_.Caption) return;
  seen_ = model_.Caption;
  widget_->setText(ToQtCaption(seen_));
}

}  // namespace orvane
