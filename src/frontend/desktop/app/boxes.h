// Message boxes.
#pragma once

#include <vector>

#include "src/platform/services.h"

class QMessageBox;
class QWidget;

namespace orvane {

// What stands around a box while it waits for its answer.
class BoxHost {
 public:
  virtual ~BoxHost() = default;
  // Shows all that the game has done so far and returns the window that the box belongs to.
  virtual QWidget* BeginBox() = 0;
  virtual void EndBox() = 0;
};

class MessageBoxes : public BoxKeeper {
 public:
  // Until there is a host, an error box is kept for later and other boxes count as cancelled.
  void Attach(BoxHost* host) { host_ = host; }

  BoxAnswer Show(const Box& box) override;
  void ShowError(const Box& box) override;

  // Shows the error box that was kept, if there is one.
  void ShowKeptError();
  // Closes the boxes that stand, as cancelled.
  void CloseAll();

 private:
  BoxAnswer Run(const Box& box, QWidget* parent);

  BoxHost* host_ = nullptr;
  std::vector<Box> kept_errors_;
  std::vector<QMessageBox*> standing_;
};

}  // namespace orvane
