// The menu bar of a screen.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <vector>

#include "src/ui/controls.h"

namespace orvane {

class Events;

// A menu bar that lets go of the keyboard when its menus close, also where no control takes it: the
// toolkit's own keeps it then, and would have the arrow keys.
class MenuBar : public QMenuBar {
 protected:
  void paintEvent(QPaintEvent* event) override;
};

class MenuView {
 public:
  // Fills the bar with the screen's menus; it stays empty where the screen has none.
  MenuView(Screen& screen, QMenuBar& bar, Events& events);

  void Follow();

  // Opens the first menu that can be opened, with its first item that is on highlighted.
  void Open() const;

 private:
  struct Entry {
    MenuItem* Model;
    QAction* Action;
  };

  void AddTop(MenuItem& item, QMenuBar& bar, Events& events);
  void AddItem(MenuItem& item, Events& events);

  QMenuBar& bar_;
  Events& events_;
  std::vector<Entry> entries_;
};

}  // namespace orvane
