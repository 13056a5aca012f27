// The ground of a screen: grey, or the surface that the screen itself is drawn on.
#pragma once

#include <QWidget>

#include "src/frontend/desktop/access/spoken.h"
#include "src/frontend/desktop/paint/surface_image.h"
#include "src/ui/screen.h"

namespace orvane {

class WindowEvents;

class ClientArea : public QWidget, public Spoken {
 public:
  ClientArea(Screen& screen, WindowEvents& events);

  // Brings the surface up to date; `all` when it may have been made afresh.
  void Follow(bool all);

  // Tells screen readers what it is called, in the language that is shown.
  void NameForReaders();

  bool IsPicture() const override { return screen_.OwnSurface != nullptr; }
  QString Text() const override;
  bool IsButton() const override { return IsPicture(); }
  void Press() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  Screen& screen_;
  WindowEvents& events_;
  SurfaceImage image_;
  Announcer announcer_;
};

}  // namespace orvane
