// Every control that a player can use or should know of has a name for screen readers.
#include <QtGui/private/qguiapplication_p.h>
#include <gtest/gtest.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>
#include <QTabBar>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "src/frontend/desktop/windows/windows.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/game/program.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

class SpokenTest : public testing::Test {
 protected:
  SpokenTest()
      : program_(quiet_.All()),
        events_(program_),
        windows_(program_.TheStage(), events_, Zoom({{1280, 1024}, {1280, 1024}}, 1, {})) {}

  Control& Of(const char* screen, const char* name) {
    return *program_.TheStage().Find(screen)->Find(name);
  }
  QWidget* WidgetOf(const Control& control) {
    return windows_.Of(&control.Owner())
        ->findChild<QWidget*>(QString::fromStdString(control.Name()));
  }
  void StartOpening() {
    program_.TheState().GameStarted = kTrue;
    program_.Enter([this] {
      program_.TheStage().Show(*program_.TheStage().Find("Version"));
      program_.TheStage().Unload(*program_.TheStage().Find("Version"));
    });
    program_.Tick(static_cast<Timer&>(Of("Main", "Timer3")));
    windows_.Follow();
  }

  TestServices quiet_;
  Program program_;
  ToProgram events_;
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

TEST_F(SpokenTest, ListsFieldsAndSlidersHaveNamesAndRoles) {
  int count = 0;
  for (const Screen* screen : program_.TheStage().Screens()) {
    const ScreenWindow& window = *windows_.Of(screen);
    count += ExpectNames<QListWidget>(window, QAccessible::List);
    count += ExpectNames<QLineEdit>(window, QAccessible::EditableText);
    count += ExpectNames<QSlider>(window, QAccessible::Slider);
  }
  EXPECT_EQ(count, 8 + 4 + 1);
}

TEST_F(SpokenTest, TabsAreCalledByTheOpenOne) {
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

// Sheets that are only read stand out of sight, below the window.
bool CanBeSeen(const Control& control) {
  return control.Kind() != ControlKind::Timer && control.Top() <= control.Owner().Height;
}

TEST_F(SpokenTest, EveryControlThatCanBeSeenHasAName) {
  program_.TheState().HeroName[0] = "カイ";
  program_.TheState().HeroName[1] = "リナ";
  int count = 0;
  for (Screen* screen : program_.TheStage().Screens()) {
    program_.Enter([&] { program_.TheStage().Show(*screen); });
    windows_.Follow();
    for (const Control* control : screen->Controls()) {
      // Fixed texts have no name in the game; like all texts they are read as they stand.
      if (!CanBeSeen(*control) || control->Name().empty()) continue;
      if (control->Kind() == ControlKind::Menu) continue;
      QWidget* widget = WidgetOf(*control);
      ASSERT_NE(widget, nullptr) << screen->Name() << "." << control->Name();
      if (auto* label = qobject_cast<QLabel*>(widget)) {
        EXPECT_EQ(NameOf(label), label->text()) << screen->Name() << "." << control->Name();
      } else {
        EXPECT_FALSE(NameOf(widget).isEmpty()) << screen->Name() << "." << control->Name();
      }
      ++count;
    }
  }
  EXPECT_GT(count, 200);
}

TEST_F(SpokenTest, MenusHaveTheirCaptions) {
  windows_.Follow();
  auto* bar = windows_.Of(program_.TheStage().Find("Main"))->findChild<QMenuBar*>();
  ASSERT_NE(bar, nullptr);
  EXPECT_EQ(NameOf(bar), "メニュー");
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(bar);
  ASSERT_EQ(spoken->childCount(), 3);
  EXPECT_EQ(spoken->child(1)->text(QAccessible::Name), "アイテム");
}

TEST_F(SpokenTest, APictureThatTakesClicksIsAButton) {
  int buttons = 0;
  for (const Screen* screen : program_.TheStage().Screens()) {
    for (const Control* control : screen->Controls()) {
      if (control->Kind() != ControlKind::Picture || !CanBeSeen(*control)) continue;
      const bool clicks = bool(static_cast<const PictureBox*>(control)->OnClick);
      QWidget* widget = WidgetOf(*control);
      EXPECT_EQ(RoleOf(widget), clicks ? QAccessible::Button : QAccessible::Graphic)
          << screen->Name() << "." << control->Name();
      auto* actions = QAccessible::queryAccessibleInterface(widget)->actionInterface();
      ASSERT_NE(actions, nullptr);
      EXPECT_EQ(actions->actionNames().contains(QAccessibleActionInterface::pressAction()), clicks);
      buttons += clicks ? 1 : 0;
    }
  }
  EXPECT_EQ(buttons, 2) << "the field and the battle's scene";
}

TEST_F(SpokenTest, PressingTheFieldLeadsOnInTheStory) {
  StartOpening();
  const auto line = program_.TheState().StoryNo;
  QWidget* field = WidgetOf(Of("Main", "Picture1"));
  QAccessible::queryAccessibleInterface(field)->actionInterface()->doAction(
      QAccessibleActionInterface::pressAction());
  EXPECT_EQ(program_.TheState().StoryNo, line + 1);
}

TEST_F(SpokenTest, AMessageIsReadOnItsWindow) {
  StartOpening();
  QWidget* window = WidgetOf(Of("Main", "Picture5"));
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(window);
  EXPECT_EQ(spoken->text(QAccessible::Name), "メッセージ");
  static_cast<Label&>(Of("Main", "Label7")).Visible = true;  // the arrow
  EXPECT_EQ(spoken->text(QAccessible::Description),
            QString::fromStdString(program_.TheState().StoryText[program_.TheState().StoryNo]));
}

TEST_F(SpokenTest, NumbersOfABattleAreReadWithWhoseTheyAre) {
  program_.Enter([this] { program_.TheStage().Show(*program_.TheStage().Find("Battle")); });
  windows_.Follow();
  QWidget* scene = WidgetOf(Of("Battle", "Picture1"));
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(scene);
  EXPECT_EQ(spoken->text(QAccessible::Description), "");
  auto& on_enemy = static_cast<Label&>(Of("Battle", "Label15(1)"));
  auto& on_hero = static_cast<Label&>(Of("Battle", "Label16(0)"));
  on_enemy.Caption = "120";
  on_enemy.Visible = true;
  on_hero.Caption = "35";
  EXPECT_EQ(spoken->text(QAccessible::Description), "敵２：120");
  on_hero.Visible = true;
  EXPECT_EQ(spoken->text(QAccessible::Description), "敵２：120\n主人公（男）：35");
  const QWidget* life = WidgetOf(Of("Battle", "Label3(0)"));
  EXPECT_EQ(life->accessibleDescription(), "HP ：");
}

TEST_F(SpokenTest, TheCreditsAreReadUntilTheLastCardStands) {
  Screen& ending = *program_.TheStage().Find("Ending");
  program_.Enter([&] { program_.TheStage().Show(ending); });
  windows_.Follow();
  QWidget* ground = windows_.Of(&ending)->findChild<QWidget*>("Label1")->parentWidget();
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(ground);
  EXPECT_EQ(spoken->role(), QAccessible::Button);
  EXPECT_EQ(spoken->text(QAccessible::Name), "ENDING");
  EXPECT_TRUE(spoken->text(QAccessible::Description).startsWith("STAFF\n"));
  for (const char* name : {"Label2(0)", "Label2(1)"}) Of("Ending", name).Visible = true;
  EXPECT_EQ(spoken->text(QAccessible::Description), "Thank you for playing\nTo be continue...?");
}

// What readers are told, while this stands.
class Listener {
 public:
  explicit Listener(bool listens) {
    Heard().clear();
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
      Heard().emplace_back(event->type(), event->object()->objectName().toStdString());
    });
    SetActive(listens);
  }
  ~Listener() {
    SetActive(false);
    QAccessible::installUpdateHandler(nullptr);
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  static long Count(QAccessible::Event type, const std::string& name) {
    return std::count(Heard().begin(), Heard().end(), std::pair(type, name));
  }
  static size_t All() { return Heard().size(); }

 private:
  // As if a reader had come or gone; the toolkit's public ways only tell of it.
  static void SetActive(bool active) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
  }
  static std::vector<std::pair<QAccessible::Event, std::string>>& Heard() {
    static std::vector<std::pair<QAccessible::Event, std::string>> heard;
    return heard;
  }
};

TEST_F(SpokenTest, ReadersAreToldOnceOfEachText) {
  StartOpening();
  const Listener listener(true);
  ASSERT_TRUE(QAccessible::isActive());
  windows_.Follow();
  windows_.Follow();
  EXPECT_EQ(Listener::Count(QAccessible::Alert, "Picture5"), 1);
  EXPECT_EQ(Listener::Count(QAccessible::DescriptionChanged, "Picture5"), 1);
  program_.Enter([this] { static_cast<PictureBox&>(Of("Main", "Picture1")).OnClick(); });
  program_.Tick(static_cast<Timer&>(Of("Main", "Timer3")));
  windows_.Follow();
  EXPECT_EQ(Listener::Count(QAccessible::Alert, "Picture5"), 2);
  Of("Main", "Picture5").Visible = false;
  windows_.Follow();
  EXPECT_EQ(Listener::Count(QAccessible::Alert, "Picture5"), 2) << "that it has gone is no alert";
  EXPECT_EQ(Listener::Count(QAccessible::DescriptionChanged, "Picture5"), 3);
}

TEST_F(SpokenTest, NothingIsToldWhileNobodyListens) {
  StartOpening();
  const Listener listener(false);
  program_.Enter([this] { static_cast<PictureBox&>(Of("Main", "Picture1")).OnClick(); });
  program_.Tick(static_cast<Timer&>(Of("Main", "Timer3")));
  windows_.Follow();
  EXPECT_EQ(Listener::All(), 0);
}

TEST_F(SpokenTest, CaptionsAndTextsAreReadAsTheyStand) {
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
