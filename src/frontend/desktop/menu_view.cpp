#include "src/frontend/desktop/menu_view.h"

#include "src/frontend/desktop/control_view.h"
#include "src/frontend/desktop/events.h"
#include "src/game/program.h"

namespace orvane {

MenuView::MenuView(Screen& screen, QMenuBar& bar, Events& events) : bar_(bar) {
  for (Control* control : screen.Controls()) {
    if (control->Kind() != ControlKind::Menu) continue;
    auto& item = static_cast<MenuItem&>(*control);
    if (item.Parent() == nullptr) {
      AddTop(item, bar, events);
    } else {
      AddItem(item, events);
    }
  }
  Follow();
}

void MenuView::AddTop(MenuItem& item, QMenuBar& bar, Events& events) {
  QMenu* menu = bar.addMenu(QString());
  entries_.push_back({&item, menu->menuAction()});
  QObject::connect(menu, &QMenu::aboutToShow, menu, [&item, &events] {
    events.Send([&item](Program& program) { program.Click(item); });
  });
}

void MenuView::AddItem(MenuItem& item, Events& events) {
  for (const Entry& entry : entries_) {
    if (entry.Model != item.Parent()) continue;
    QMenu* menu = entry.Action->menu();
    QAction* action = item.IsSeparator() ? menu->addSeparator() : menu->addAction(QString());
    QObject::connect(action, &QAction::triggered, action, [&item, &events] {
      events.Send([&item](Program& program) { program.ClickItem(item); });
    });
    entries_.push_back({&item, action});
    return;
  }
}

void MenuView::Follow() {
  for (const Entry& entry : entries_) {
    // Setting what is set already costs nothing: an action compares.
    entry.Action->setEnabled(entry.Model->Enabled);
    entry.Action->setVisible(entry.Model->Visible);
    if (!entry.Model->IsSeparator()) entry.Action->setText(ToQtCaption(entry.Model->Caption));
  }
}

void MenuView::Open() const {
  for (QAction* menu : bar_.actions()) {
    if (menu->isEnabled() && menu->isVisible()) return bar_.setActiveAction(menu);
  }
}

}  // namespace orvane
