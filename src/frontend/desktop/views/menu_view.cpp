#include "src/frontend/desktop/views/menu_view.h"

#include <QMetaObject>
#include <algorithm>

#include "src/frontend/desktop/views/control_view.h"
#include "src/frontend/shared/events.h"
#include "src/game/program.h"

namespace orvane {

void MenuBar::paintEvent(QPaintEvent* event) {
  QMenuBar::paintEvent(event);
  // It is painted whenever a menu closes. While its keys move among the menus one is active.
  const auto let_go = [this] {
    if (window()->focusWidget() == this && activeAction() == nullptr) clearFocus();
  };
  if (window()->focusWidget() == this) {
    QMetaObject::invokeMethod(this, let_go, Qt::QueuedConnection);
  }
}

MenuView::MenuView(Screen& screen, QMenuBar& bar, Events& events) : bar_(bar), events_(events) {
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
    if (entry.Model->IsSeparator()) continue;
    entry.Action->setText(ToQtCaption(events_.Texts().Of(*entry.Model, entry.Model->Caption)));
  }
}

void MenuView::Open() const {
  const auto can_be_used = [](const QAction* action) {
    return action->isEnabled() && action->isVisible() && !action->isSeparator();
  };
  const auto menus = bar_.actions();
  const auto menu = std::find_if(menus.begin(), menus.end(), can_be_used);
  if (menu == menus.end()) return;
  bar_.setActiveAction(*menu);
  // The keys that move on to the next menu highlight its first item; so does the one that opens.
  const auto items = (*menu)->menu()->actions();
  const auto item = std::find_if(items.begin(), items.end(), can_be_used);
  if (item != items.end()) (*menu)->menu()->setActiveAction(*item);
}

}  // namespace orvane
