#include "src/frontend/desktop/windows/client_area.h"

#include <QMouseEvent>
#include <QPaintEvent>

#include "src/frontend/desktop/views/control_view.h"
#include "src/frontend/desktop/windows/window_events.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/game/program.h"
#include "src/ui/reach.h"

namespace orvane {

ClientArea::ClientArea(Screen& screen, WindowEvents& events) : screen_(screen), events_(events) {
  setFixedSize(screen.Width, screen.Height);
  setAutoFillBackground(true);
  NameForReaders();
}

void ClientArea::Follow(bool all) {
  if (screen_.OwnSurface == nullptr) return;
  const QRect changed = image_.Follow(*screen_.OwnSurface, all);
  if (!changed.isEmpty()) update(changed);
  announcer_.Follow(*this);
}

QString ClientArea::Text() const {
  return ToQt(SpokenText(screen_, events_.Texts()));
}

void ClientArea::NameForReaders() {
  setAccessibleName(ToQt(events_.Texts().Of(screen_.Caption)));
}

void ClientArea::Press() {
  events_.Send([this](Program& program) { program.Press(screen_); });
}

void ClientArea::paintEvent(QPaintEvent* event) {
  if (screen_.OwnSurface == nullptr) return;
  QPainter painter(this);
  image_.Paint(painter, {0, 0}, event->rect());
}

void ClientArea::mousePressEvent(QMouseEvent* event) {
  // Any button will do.
  const QPointF at = event->position();
  if (IsBare(screen_, {at.x(), at.y()})) Press();
}

}  // namespace orvane
