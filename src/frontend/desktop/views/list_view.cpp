#include "src/frontend/desktop/views/list_view.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "src/frontend/desktop/paint/text_paint.h"
#include "src/frontend/shared/events.h"
#include "src/game/program.h"

namespace orvane {
namespace {

// Rows no higher than the letters need, however much room between lines a face asks for: the lists
// show the rows that their layouts count on. A text too wide for its row is made narrower.
class CloseRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index)
        .boundedTo({QWIDGETSIZE_MAX, OwnLineHeight(option.font)});
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    constexpr int narrowest = 70;  // per cent
    constexpr int step = 2;
    constexpr int margins = 8;
    QStyledItemDelegate::initStyleOption(option, index);
    const int room = option->rect.width() - margins;
    // Small letters take whole pixels, so that only trying tells how wide a text becomes.
    for (int stretch = 100 - step; room > 0 && stretch >= narrowest; stretch -= step) {
      if (option->fontMetrics.horizontalAdvance(option->text) <= room) break;
      option->font.setStretch(stretch);
      option->fontMetrics = QFontMetrics(option->font);
    }
  }
};

}  // namespace

// A list of which a row is chosen by a click or by Enter; the other keys only move the highlight.
class ListWidget : public QListWidget {
 public:
  ListWidget(QWidget* parent, Control& model, Events& events)
      : QListWidget(parent), model_(model), events_(events) {
    setUniformItemSizes(true);
    setItemDelegate(new CloseRows(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
  }

  // The highlight may have left the row that the game knows.
  bool TakeStale() { return std::exchange(stale_, false); }

  void Select(int row) {
    if (row >= 0 && row < count()) return setCurrentRow(row);
    setCurrentRow(-1);
    clearSelection();
  }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    QListWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton) return;
    Choose(row(itemAt(event->position().toPoint())));
  }

  // The toolkit would mark the first row of a list without a selection as if it were selected.
  void focusInEvent(QFocusEvent* event) override {
    const bool none = !currentIndex().isValid();
    QListWidget::focusInEvent(event);
    if (none) Select(-1);
    update();  // the frame shows where the keys go
  }

  void focusOutEvent(QFocusEvent* event) override {
    QListWidget::focusOutEvent(event);
    update();
  }

  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) {
      if (!currentIndex().isValid()) SetOut(event->key());
      QListWidget::keyPressEvent(event);
      // At its end a list keeps the keys that go along it.
      if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) event->accept();
      return;
    }
    if (!event->isAutoRepeat()) Choose(currentRow());
  }

 private:
  // Where a key that goes along the list starts from when no row has the highlight. By itself the
  // toolkit would go to the first row, whatever the key.
  void SetOut(int key) {
    if (key == Qt::Key_End) setCurrentRow(count() - 1);
    if (key == Qt::Key_PageDown || key == Qt::Key_PageUp) {
      setCurrentRow(row(itemAt(viewport()->rect().topLeft())));
    }
  }

  void Choose(int chosen) {
    stale_ = true;
    events_.Send([this, chosen](Program& program) {
      if (chosen >= 0) program.Choose(model_, chosen);
    });
  }

  Control& model_;
  Events& events_;
  bool stale_ = false;
};

ListView::ListView(Control& model, ListValues& values, QWidget* parent, Events& events)
    : ControlView(model, new ListWidget(parent, model, events), events),
      values_(values),
      widget_(static_cast<ListWidget*>(Widget())) {}

void ListView::FollowValues(bool all) {
  const bool rows_changed = all || seen_.Rows != values_.Rows;
  if (rows_changed) {
    widget_->clear();
    for (const std::string& row : values_.Rows) widget_->addItem(ToQt(Shown(row)));
  }
  const bool stale = widget_->TakeStale();
  if (rows_changed || stale || seen_.ListIndex != values_.ListIndex) {
    widget_->Select(values_.ListIndex);
  }
  if (rows_changed) seen_.Rows = values_.Rows;
  seen_.ListIndex = values_.ListIndex;
}

}  // namespace orvane
