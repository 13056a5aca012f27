#include "src/frontend/desktop/views/label_view.h"

#include <QAccessible>
#include <QLabel>
#include <QPainter>

#include "src/frontend/desktop/paint/fonts.h"
#include "src/frontend/desktop/paint/text_paint.h"
#include "src/frontend/shared/text_fit.h"

namespace orvane {
namespace {

int AlignmentFlag(Align alignment) {
  switch (alignment) {
    case Align::Centre:
      return Qt::AlignHCenter;
    case Align::Right:
      return Qt::AlignRight;
    case Align::Left:
      break;
  }
  return Qt::AlignLeft;
}

bool Same(const LabelValues& one, const LabelValues& other) {
  return one.Caption == other.Caption && one.ForeColor == other.ForeColor &&
         one.Face.Name == other.Face.Name && one.Face.Size == other.Face.Size &&
         one.Face.Bold == other.Face.Bold && one.Alignment == other.Alignment;
}

}  // namespace

// Draws a text without a ground of its own. It is a QLabel for the sake of screen readers.
class LabelWidget : public QLabel {
 public:
  explicit LabelWidget(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    // A click on a text is the business of what it lies on, which asks the model.
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

  void Show(const LabelValues& values, const QString& text) {
    colour_ = QColor::fromRgb(values.ForeColor);
    alignment_ = AlignmentFlag(values.Alignment);
    setFont(DesktopFont(values.Face));
    if (this->text() != text) {
      setText(text);
      TellReaders();
    }
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    if (text().isEmpty()) return;
    QPainter painter(this);
    painter.setPen(colour_);
    PaintText(painter, QRectF(rect()).adjusted(0, kHeadroom, 0, 0), text(), alignment_);
  }

 private:
  // The game speaks and counts in labels that change where they stand.
  void TellReaders() {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
  }

  QColor colour_;
  int alignment_ = Qt::AlignLeft;
};

LabelView::LabelView(Label& model, QWidget* parent, Events& events)
    : ControlView(model, new LabelWidget(parent), events),
      model_(model),
      widget_(static_cast<LabelWidget*>(Widget())) {}

void LabelView::FollowValues(bool all) {
  if (!all && Same(seen_, model_)) return;
  seen_ = model_;
  widget_->Show(seen_, ToQt(Shown(seen_.Caption)));
}

QRect LabelView::Box(const Place& place) const {
  return ControlView::Box(place).adjusted(0, -kHeadroom, 0, 0);
}

}  // namespace orvane
