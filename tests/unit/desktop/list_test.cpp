// The keys that go along a list, and which row they start from.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>

#include "src/frontend/desktop/windows/windows.h"
#include "src/game/program.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

constexpr int kLastRow = 19;

class ListTest : public testing::Test {
 protected:
  ListTest()
      : program_(quiet_.All()),
        events_(program_),
        windows_(program_.TheStage(), events_, Zoom({{1280, 1024}, {1280, 1024}}, 1, {})) {
    program_.TheState().GameStarted = kTrue;
    program_.TheState().OpeningDone = kTrue;
    Screen& bag = *program_.TheStage().Find("Item");
    program_.Enter([&] { program_.TheStage().Show(bag); });
    windows_.Follow();
    QApplication::processEvents();
    model_ = static_cast<ListBox*>(bag.Find("List1"));
    list_ = windows_.Of(&bag)->findChild<QListWidget*>("List1");
  }

  void Type(Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(list_, &event);
    windows_.Follow();
    EXPECT_EQ(model_->ListIndex, -1) << "a highlight that moves chooses nothing";
  }

  // The row that the highlight stands on; it is only there when it can be seen.
  int Row() const { return list_->selectedItems().isEmpty() ? -1 : list_->currentRow(); }
  int RowAt(const QPoint& place) const { return list_->row(list_->itemAt(place)); }
  int FirstSeen() const { return RowAt(list_->viewport()->rect().topLeft()); }
  int LastSeen() const { return RowAt(list_->viewport()->rect().bottomLeft()); }

  TestServices quiet_;
  Program program_;
  ToProgram events_;
  Windows windows_;
  ListBox* model_ = nullptr;
  QListWidget* list_ = nullptr;
};

TEST_F(ListTest, StartsWithoutAHighlightAndHigherThanItShows) {
  ASSERT_EQ(list_->count(), kLastRow + 1);
  EXPECT_EQ(Row(), -1);
  EXPECT_EQ(FirstSeen(), 0);
  EXPECT_LT(LastSeen(), kLastRow);
}

TEST_F(ListTest, DownUpAndHomeStartWithTheFirstRow) {
  for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home}) {
    list_->setCurrentRow(-1);
    Type(key);
    EXPECT_EQ(Row(), 0) << key;
  }
}

TEST_F(ListTest, EndGoesToTheLastRowWithAHighlightOrWithout) {
  Type(Qt::Key_End);
  EXPECT_EQ(Row(), kLastRow);
  Type(Qt::Key_Home);
  EXPECT_EQ(Row(), 0);
  Type(Qt::Key_End);
  EXPECT_EQ(Row(), kLastRow);
}

TEST_F(ListTest, APageStartsWithWhatIsSeen) {
  const int last_seen = LastSeen();
  Type(Qt::Key_PageDown);
  EXPECT_GE(Row(), last_seen - 1);
  EXPECT_LE(Row(), last_seen);
  list_->scrollToBottom();
  list_->setCurrentRow(-1);
  const int first_seen = FirstSeen();
  ASSERT_GT(first_seen, kLastRow / 2 - 1);
  Type(Qt::Key_PageUp);
  EXPECT_GT(Row(), -1);
  EXPECT_LT(Row(), first_seen) << "a page further up, not the list's beginning by chance";
}

}  // namespace
}  // namespace orvane
