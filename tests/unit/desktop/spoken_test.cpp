// Every control that a player can use or should know of has a name for screen readers.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabBar>

#include "src/frontend/desktop/spoken_names.h"
#include "src/frontend/desktop/windows.h"
#include "src/game/program.h"
#include "tests/unit/desktop/quiet_services.h"

namespace orvane {
namespace {

class SpokenTest : public testing::Test {
 protected:
  SpokenTest()
      : program_(ORVANE_GAME_FOLDER, quiet_.All()),
        windows_(program_.TheStage(), events_, Zoom({{1280, 1024}, {1280, 1024}}, 1, {})) {}

  QuietServices quiet_;
  NoEvents events_;
  Program program_;
  Windows windows_;
};

QString NameOf(QWidget* widget) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
  return spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
}

QAccessible::Role RoleOf(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget)->role();
}

std::string Where(const ScreenWindow& window, const QWidget& widget) {
  return window.Model().Name() + "." + widget.objectName().toStdString();
}

template <class Kind>
int ExpectNames(const ScreenWindow& window, QAccessible::Role role) {
  const auto all = window.findChildren<Kind*>();
  for (Kind* widget : all) {
    if (widget->objectName().startsWith("qt_")) continue;
    EXPECT_FALSE(NameOf(widget).isEmpty()) << Where(window, *widget);
    EXPECT_EQ(RoleOf(widget), role) << Where(window, *widget);
  }
  return static_cast<int>(all.size());
}

TEST_F(SpokenTest, lists_fields_and_sliders_have_names_and_roles) {
  int count = 0;
  for (const Screen* screen : program_.TheStage().Screens()) {
    const ScreenWindow& window = *windows_.Of(screen);
    count += ExpectNames<QListWidget>(window, QAccessible::List);
    count += ExpectNames<QLineEdit>(window, QAccessible::EditableText);
    count += ExpectNames<QSlider>(window, QAccessible::Slider);
  }
  EXPECT_EQ(count, 8 + 4 + 1);
}

TEST_F(SpokenTest, tabs_are_called_by_the_open_one) {
  int count = 0;
  for (const Screen* screen : program_.TheStage().Screens()) {
    for (QTabBar* bar : windows_.Of(screen)->findChildren<QTabBar*>()) {
      bar->setTabText(bar->currentIndex(), "カイ");
      EXPECT_EQ(NameOf(bar), "カイ") << screen->Name();
      EXPECT_EQ(RoleOf(bar), QAccessible::PageTabList) << screen->Name();
      ++count;
    }
  }
  EXPECT_EQ(count, 3);
}

TEST_F(SpokenTest, every_picture_that_is_shown_has_a_name) {
  for (const Screen* screen : program_.TheStage().Screens()) {
    for (const Control* control : screen->Controls()) {
      // Sheets that are only read stand out of sight, below the window.
      if (control->Kind() != ControlKind::Picture || control->Top() > screen->Height) continue;
      EXPECT_FALSE(SpokenName(*control).isEmpty()) << screen->Name() << "." << control->Name();
    }
  }
}

TEST_F(SpokenTest, captions_and_texts_are_read_as_they_stand) {
  windows_.Follow();
  const ScreenWindow* main = windows_.Of(program_.TheStage().Find("Main"));
  auto* button = main->findChild<QPushButton*>("Command1");
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(NameOf(button), "始めから");
  EXPECT_EQ(RoleOf(button), QAccessible::Button);
  auto* label = main->findChild<QLabel*>("Label1");
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(NameOf(label), "Orvane");
  EXPECT_EQ(RoleOf(label), QAccessible::StaticText);
}

}  // namespace
}  // namespace orvane
