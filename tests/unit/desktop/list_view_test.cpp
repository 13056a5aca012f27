// The rows of a list, whatever the face.
#include "src/frontend/desktop/views/list_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QListWidget>

#include "src/frontend/desktop/paint/text_paint.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

class Listing : public Screen {
 public:
  explicit Listing(Stage& stage) : Screen(stage, "Listing", "Listing", 200, 100) {}

  ListBox Rows{*this, "List1", {0, 0, 120, 60}};

 protected:
  void OnLoad() override {}
};

class ListViewTest : public testing::Test {
 protected:
  QImage Painted(const std::string& row) {
    screen_.Rows.Rows = {row};
    view_.FollowAll();
    auto* list = static_cast<QListWidget*>(view_.Widget());
    QImage image(list->size(), QImage::Format_RGB32);
    list->render(&image);
    return image;
  }

  Stage stage_;
  Listing screen_{stage_};
  NoEvents events_;
  QWidget window_;
  ListView view_{screen_.Rows, screen_.Rows, &window_, events_};
};

TEST_F(ListViewTest, RowsAreNoHigherThanTheLettersNeed) {
  screen_.Rows.Rows = {"one", "two"};
  view_.FollowAll();
  auto* list = static_cast<QListWidget*>(view_.Widget());
  QFont tall = list->font();
  tall.setPixelSize(12);
  list->setFont(tall);
  EXPECT_GT(list->sizeHintForRow(0), 0);
  EXPECT_LE(list->sizeHintForRow(0), 13);
}

// An elided text would end with the same dots, whatever follows.
TEST_F(ListViewTest, TheEndOfAWideRowCanStillBeRead) {
  auto* list = static_cast<QListWidget*>(view_.Widget());
  QString text;
  while (list->fontMetrics().horizontalAdvance(text) < 130) text += 'i';
  const std::string wide = text.toStdString();
  EXPECT_NE(Painted(wide + "1"), Painted(wide + "7"));
}

}  // namespace
}  // namespace orvane
