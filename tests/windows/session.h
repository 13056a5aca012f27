// A game in its windows, and a player's hands on it. Controls go by the names that the game's logic
// has for them, "Battle.Command1", which are those of their widgets. Every event takes the way of a
// real one: it goes to a window, and the toolkit finds the widget.
#pragma once

#include <QImage>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <string>

#include "tests/windows/front_end.h"

class QMessageBox;

namespace orvane::test {

// What can be waited for at the longest, in ms.
constexpr int kPatience = 10000;

class Session {
 public:
  explicit Session(const Opening& opening = {});
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  Program& Running() { return front_end_.Running(); }
  Desktop& TheDesktop() { return front_end_.TheDesktop(); }
  State& Facts() { return Running().TheState(); }

  // An event that no player makes, after which the windows are brought up to date.
  void Send(const std::function<void(Program&)>& event);

  // The models, by name. Whatever is not there throws.
  Screen& Model(const std::string& screen);
  Control& ControlNamed(const std::string& control);
  template <class Kind>
  Kind& As(const std::string& control) {
    return dynamic_cast<Kind&>(ControlNamed(control));
  }

  // The window of a screen, on the display or not; throws where there is none of that name.
  QWidget& Window(const std::string& screen);
  // The widget of a control.
  QWidget& Widget(const std::string& control);
  bool Shows(const std::string& screen) { return Window(screen).isVisible(); }
  bool HasKeys(const std::string& screen) { return Window(screen).isActiveWindow(); }
  // The name of the control that has the keyboard in a window, or nothing.
  std::string KeysAt(const std::string& screen);
  // Whether the widget can be seen and used.
  bool CanBeUsed(const std::string& control);
  // Whether the menu or its item can be used.
  bool MenuIsOn(const std::string& item);

  // Lets all that is under way come to its end.
  static void Settle();
  // Waits until the condition holds; throws after `limit` ms, naming `what`.
  static void Until(const std::string& what, const std::function<bool()>& condition,
                    int limit = kPatience);
  // Waits for a screen that is shown and has the keyboard, or is not shown any more.
  void Opens(const std::string& screen);
  void Closes(const std::string& screen);

  // Clicks on a control: on a picture where nothing lies before it, on others in the middle. Throws
  // where it cannot be used.
  void Click(const std::string& control);
  // The same at a point inside a picture, in pixels of the game.
  void ClickAt(const std::string& control, QPoint at);
  // A press on a point of a screen's own surface.
  void ClickSurface(const std::string& screen, QPoint at);
  // Clicks on a row of a list, counted from 0, which is scrolled to first.
  void ChooseRow(const std::string& list, int row);
  void OpenTab(const std::string& tabs, int tab);
  // Opens a menu by a click and clicks on its item.
  void ChooseItem(const std::string& item);

  // A key goes to the window that has the keyboard.
  static void KeyDown(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                      bool repeats = false);
  static void KeyUp(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void PressAll(std::initializer_list<Qt::Key> keys);
  static void Type(const QString& text);
  // The window's own close control.
  void CloseWindow(const std::string& screen);

  // Waits for a message box with this title, in the game's own language, which `reply` answers by
  // its keys or its buttons, and for its end.
  static void Answer(const QString& title, const std::function<void(QMessageBox&)>& reply);
  static void Answer(const QString& title, Qt::Key key);

  // One tick after another of a timer, all within one event, until the condition holds or the timer
  // is off. Throws after 100000.
  void Run(const std::string& timer, const std::function<bool()>& until);

  // What a window shows, in pixels of the screen.
  static QImage Shown(QWidget& window);
  QImage Shown(const std::string& screen) { return Shown(Window(screen)); }

 private:
  // The widget of a control that can be used.
  QWidget& Usable(const std::string& control);
  void ClickWidget(QWidget& widget, QPoint at);

  FrontEnd front_end_;
};

}  // namespace orvane::test
