#include "src/frontend/desktop/views/frame_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "src/frontend/desktop/paint/text_paint.h"

namespace orvane {
namespace {

// A frame whose line runs through the middle of its title, so that its controls may begin right
// below, where the layouts put them.
class FrameWidget : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr int title_left = 8;
    constexpr int title_gap = 3;
    QPainter painter(this);
    const QFontMetrics metrics(font());
    const int line_height = std::min(metrics.height(), OwnLineHeight(font()));
    const QRect words(title_left, 0, metrics.horizontalAdvance(title()), line_height);
    if (!title().isEmpty()) {
      painter.setClipRegion(QRegion(rect()) - words.adjusted(-title_gap, 0, title_gap, 0));
    }
    // The line is etched: a dark one, and a light one behind it.
    const QRect line = rect().adjusted(0, line_height / 2, -2, -2);
    painter.setPen(palette().color(QPalette::Window).lighter(120));
    painter.drawRect(line.translated(1, 1));
    painter.setPen(palette().color(QPalette::Window).darker(145));
    painter.drawRect(line);
    painter.setClipping(false);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, title());
  }
};

}  // namespace

FrameView::FrameView(Frame& model, QWidget* parent, Events& events)
    : ControlView(model, new FrameWidget(parent), events),
      model_(model),
      widget_(static_cast<QGroupBox*>(Widget())) {}

void FrameView::FollowValues(bool all) {
  if (!all && seen_ == model_.Caption) return;
  seen_ = model_.Caption;
  widget_->setTitle(ToQt(Shown(seen_)));
}

}  // namespace orvane
