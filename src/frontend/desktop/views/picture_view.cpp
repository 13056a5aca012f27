#include "src/frontend/desktop/views/picture_view.h"

#include <QMouseEvent>
#include <QPaintEvent>

#include "src/frontend/desktop/access/spoken.h"
#include "src/frontend/desktop/paint/surface_image.h"
#include "src/frontend/shared/events.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/game/program.h"

namespace orvane {

// Paints a picture within its border and reports clicks on it.
class PictureWidget : public QWidget, public Spoken {
 public:
  PictureWidget(PictureBox& model, QWidget* parent, Events& events)
      : QWidget(parent), model_(model), events_(events) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  void Follow(bool all) {
    const QRect changed = image_.Follow(model_.Picture, all);
    if (!changed.isEmpty()) update(changed.translated(model_.Edge, model_.Edge));
  }

  void Announce() { announcer_.Follow(*this); }

  QString Text() const override { return ToQt(SpokenText(model_, events_.Texts())); }
  bool IsButton() const override { return bool(model_.OnClick); }
  void Press() override {
    events_.Send([this](Program& program) { program.Click(model_); });
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    const int edge = model_.Edge;
    const QRect inside = rect().adjusted(edge, edge, -edge, -edge);
    const QRect picture = QRect(inside.topLeft(), image_.Size()) & inside;
    if (!picture.contains(event->rect())) PaintAround(painter, inside, picture);
    const QRect part = picture & event->rect();
    image_.Paint(painter, inside.topLeft(), part.translated(-inside.topLeft()));
  }

  void mousePressEvent(QMouseEvent* event) override { event->accept(); }
  void mouseReleaseEvent(QMouseEvent* event) override {
    event->accept();
    if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
    const QPointF at = event->position() - QPointF(model_.Edge, model_.Edge);
    events_.Send([this, at](Program& program) { program.ClickAt(model_, at.x(), at.y()); });
  }

 private:
  // The ground that the picture leaves free, and the border, sunken into the window.
  void PaintAround(QPainter& painter, const QRect& inside, const QRect& picture) const {
    painter.setPen(Qt::NoPen);
    const QRegion bare = QRegion(inside) - picture;
    for (const QRect& rest : bare) painter.fillRect(rest, palette().window());
    const QColor colours[][2] = {{QColor(0x80, 0x80, 0x80), QColor(0xFF, 0xFF, 0xFF)},
                                 {QColor(0x40, 0x40, 0x40), QColor(0xD8, 0xD8, 0xD8)}};
    for (int ring = 0; ring < model_.Edge; ++ring) {
      const QRect line = rect().adjusted(ring, ring, -ring, -ring);
      const auto& [dark, light] = colours[ring % 2];
      painter.fillRect(line.left(), line.bottom(), line.width(), 1, light);
      painter.fillRect(line.right(), line.top(), 1, line.height(), light);
      painter.fillRect(line.left(), line.top(), line.width() - 1, 1, dark);
      painter.fillRect(line.left(), line.top(), 1, line.height() - 1, dark);
    }
  }

  PictureBox& model_;
  Events& events_;
  SurfaceImage image_;
  Announcer announcer_;
};

PictureView::PictureView(PictureBox& model, QWidget* parent, Events& events)
    : ControlView(model, new PictureWidget(model, parent, events), events),
      model_(model),
      widget_(static_cast<PictureWidget*>(Widget())) {}

void PictureView::FollowValues(bool all) {
  // A hidden sheet changes nothing on the screen; it is looked at when it comes up.
  if (model_.Visible || all) widget_->Follow(all);
  widget_->Announce();
}

}  // namespace orvane
