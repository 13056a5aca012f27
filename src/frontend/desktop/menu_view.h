// The menu bar of a screen.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <vector>

#include "src/platform/controls.h"

namespace orvane {

class Events;

class MenuView {
 public:
  // Fills the bar with the screen's menus; it stays empty where the screen has none.
  MenuView(Screen& screen, QMenuBar& bar, Events& events);

  void Follow();

  // Opens the first menu that can be opened.
  void Open() const;

 private:
  struct Entry {
    MenuItem* Model;
    QAction* Action;
  };

  void AddTop(MenuItem& item, QMenuBar& bar, Events& events);
  void AddItem(MenuItem& item, Events& events);

  QMenuBar& bar_;
  std::vector<Entry> entries_;
};

}  // namespace orvane
