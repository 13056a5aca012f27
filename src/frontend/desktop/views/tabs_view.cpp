#include "src/frontend/desktop/views/tabs_view.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionTabWidgetFrame>

#include "src/frontend/shared/events.h"
#include "src/frontend/shared/focus_order.h"
#include "src/game/program.h"

namespace orvane {
namespace {

// The frame around the open pane, with tabs and panes as children that take its size.
class TabsWidget : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const QRect frame = rect().adjusted(0, kTabHeight - 1, -1, -1);
    painter.fillRect(frame, palette().color(QPalette::Window).lighter(104));
    painter.setPen(palette().color(QPalette::Window).darker(145));
    painter.drawRect(frame);
  }

  void resizeEvent(QResizeEvent* /*event*/) override {
    for (QObject* child : children()) {
      auto* widget = qobject_cast<QWidget*>(child);
      if (widget == nullptr) continue;
      const bool is_bar = qobject_cast<QTabBar*>(child) != nullptr;
      widget->setGeometry(0, 0, width(), is_bar ? kTabHeight : height());
    }
  }
};

}  // namespace

TabsView::TabsView(TabStrip& model, QWidget* parent, Events& events)
    : ControlView(model, new TabsWidget(parent), events), model_(model) {
  for (int pane = 0; pane < model.TabCount(); ++pane) panes_.push_back(new QWidget(Widget()));
  bar_ = new QTabBar(Widget());
  bar_->setDrawBase(false);
  bar_->setExpanding(true);
  bar_->setUsesScrollButtons(false);
  bar_->setElideMode(Qt::ElideNone);
  for (int tab = 0; tab < model.TabCount(); ++tab) bar_->addTab(QString());
  QObject::connect(bar_, &QTabBar::currentChanged, bar_, [&model, &events](int tab) {
    events.Send([&model, tab](Program& program) { program.SelectTab(model, tab); });
  });
}

QWidget* TabsView::Ground(int pane) const {
  const auto index = static_cast<size_t>(pane);
  return index < panes_.size() ? panes_[index] : Widget();
}

void TabsView::FollowValues(bool /*all*/) {
  const QSignalBlocker quiet(bar_);
  for (int tab = 0; tab < bar_->count(); ++tab) {
    const std::string text = Shown(model_.TabCaption(tab));
    const QString caption = ToQtCaption(text);
    if (bar_->tabText(tab) != caption) {
      bar_->setTabText(tab, caption);
      panes_[static_cast<size_t>(tab)]->setAccessibleName(ToQt(text));
    }
    if (bar_->isTabEnabled(tab) != model_.TabEnabled(tab)) {
      bar_->setTabEnabled(tab, model_.TabEnabled(tab));
    }
  }
  // Last, since a tab bar moves on by itself from a tab that is disabled.
  if (bar_->currentIndex() != model_.Tab()) bar_->setCurrentIndex(model_.Tab());
  for (size_t pane = 0; pane < panes_.size(); ++pane) {
    const bool open = static_cast<int>(pane) == model_.Tab();
    if (panes_[pane]->isVisibleTo(Widget()) != open) panes_[pane]->setVisible(open);
  }
}

}  // namespace orvane
