#include "tests/windows/session.h"

#include <qpa/qwindowsysteminterface.h>

#include <QApplication>
#include <QBackingStore>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTabBar>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <stdexcept>
#include <utility>

namespace orvane::test {
namespace {

[[noreturn]] void GiveUp(const std::string& why) {
  throw std::runtime_error(why);
}

std::pair<std::string, std::string> Parts(const std::string& name) {
  const size_t dot = name.find('.');
  if (dot == std::string::npos) GiveUp(name + " is no control's name");
  return {name.substr(0, dot), name.substr(dot + 1)};
}

QWindow& KeyWindow() {
  QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr) GiveUp("no window has the keyboard");
  return *window;
}

// A number as a keyboard has it for each key: the game tells keys apart by theirs.
quint32 CodeOf(Qt::Key key) {
  static QMap<int, quint32> codes = {
      {Qt::Key_Left, 113}, {Qt::Key_Up, 111}, {Qt::Key_Right, 114}, {Qt::Key_Down, 116}};
  if (!codes.contains(key)) codes[key] = static_cast<quint32>(120 + codes.size());
  return codes[key];
}

void SendKey(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text,
             bool repeats) {
  QWindowSystemInterface::handleExtendedKeyEvent(&KeyWindow(), type, key, modifiers,
                                                 CodeOf(Qt::Key(key)), 0, 0, text, repeats);
  Session::Settle();
}

// What a key types by itself, as far as the tests need it.
QString TextOf(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  if ((modifiers & Qt::ControlModifier) != 0) return {};
  if (key == Qt::Key_Space) return " ";
  if (key == Qt::Key_Return) return "\r";
  return {};
}

const QAction* FindAction(const QList<QAction*>& actions, const std::string& own) {
  const std::string caption = orvane::test::Shown(own);
  for (const QAction* action : actions) {
    if (action->text() == QString::fromStdString(caption)) return action;
  }
  return nullptr;
}

}  // namespace

Session::Session(const Opening& opening) : front_end_(opening) {
  Opens("Main");
}

void Session::Send(const std::function<void(Program&)>& event) {
  front_end_.Send(event);
  Settle();
}

Screen& Session::Model(const std::string& screen) {
  Screen* found = Running().TheStage().Find(screen);
  if (found == nullptr) GiveUp("there is no screen " + screen);
  return *found;
}

Control& Session::ControlNamed(const std::string& control) {
  const auto [screen, name] = Parts(control);
  Control* found = Model(screen).Find(name);
  if (found == nullptr) GiveUp("there is no control " + control);
  return *found;
}

QWidget& Session::Window(const std::string& screen) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QString::fromStdString(screen)) return *window;
  }
  GiveUp("there is no window " + screen);
}

QWidget& Session::Widget(const std::string& control) {
  const auto [screen, name] = Parts(control);
  auto* widget = Window(screen).findChild<QWidget*>(QString::fromStdString(name));
  if (widget == nullptr) GiveUp("there is no widget " + control);
  return *widget;
}

std::string Session::KeysAt(const std::string& screen) {
  const QWidget* at = Window(screen).focusWidget();
  if (at == nullptr) return {};
  if (qobject_cast<const QTabBar*>(at) != nullptr) at = at->parentWidget();
  return at->objectName().toStdString();
}

bool Session::CanBeUsed(const std::string& control) {
  const QWidget& widget = Widget(control);
  return widget.isVisible() && widget.isEnabled();
}

bool Session::MenuIsOn(const std::string& item) {
  const auto& model = As<MenuItem>(item);
  const auto* bar = static_cast<QMainWindow&>(Window(Parts(item).first)).menuBar();
  const auto* top = static_cast<const MenuItem*>(model.Parent());
  const QAction* action = FindAction(bar->actions(), top == nullptr ? model.Caption : top->Caption);
  if (action != nullptr && top != nullptr) {
    if (!action->isEnabled()) return false;
    action = FindAction(action->menu()->actions(), model.Caption);
  }
  if (action == nullptr) GiveUp("there is no menu " + item);
  return action->isEnabled() && action->isVisible();
}

void Session::Settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

void Session::Until(const std::string& what, const std::function<bool()>& condition, int limit) {
  QElapsedTimer clock;
  clock.start();
  while (!condition()) {
    if (clock.elapsed() > limit) GiveUp(what + " did not come");
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1);
  }
}

void Session::Opens(const std::string& screen) {
  Until("the window " + screen, [&] { return Shows(screen); });
  Until("the keyboard in the window " + screen, [&] { return HasKeys(screen); });
  Settle();
}

void Session::Closes(const std::string& screen) {
  Until("the end of the window " + screen, [&] { return !Shows(screen); });
  Settle();
}

QWidget& Session::Usable(const std::string& control) {
  if (!CanBeUsed(control)) GiveUp(control + " cannot be used");
  return Widget(control);
}

void Session::ClickWidget(QWidget& widget, QPoint at) {
  QWidget& window = *widget.window();
  const QPoint place = widget.mapTo(&window, at);
  QTest::mouseMove(window.windowHandle(), place);
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
  Settle();
}

void Session::Click(const std::string& control) {
  QWidget& widget = Usable(control);
  const Control& model = ControlNamed(control);
  if (model.Kind() != ControlKind::Picture) return ClickWidget(widget, widget.rect().center());
  const auto free = FreePoint(model);
  if (!free) GiveUp("nothing of " + control + " is free");
  const Place place = PlaceOnScreen(model);
  ClickWidget(widget, QPointF(free->X - place.Left, free->Y - place.Top).toPoint());
}

void Session::ClickAt(const std::string& control, QPoint at) {
  const int border = ControlNamed(control).Border();
  ClickWidget(Usable(control), at + QPoint(border, border));
}

void Session::ClickSurface(const std::string& screen, QPoint at) {
  QWidget& client = *Widget(screen + "." + Model(screen).Controls().front()->Name()).parentWidget();
  ClickWidget(client, at);
}

void Session::ChooseRow(const std::string& list, int row) {
  auto& widget = dynamic_cast<QListWidget&>(Usable(list));
  QListWidgetItem* item = widget.item(row);
  if (item == nullptr) GiveUp(list + " has no row " + std::to_string(row));
  widget.scrollToItem(item);
  Settle();
  ClickWidget(*widget.viewport(), widget.visualItemRect(item).center());
}

void Session::OpenTab(const std::string& tabs, int tab) {
  auto* bar = Usable(tabs).findChild<QTabBar*>();
  if (bar == nullptr || !bar->isTabEnabled(tab)) GiveUp(tabs + " has no such tab now");
  ClickWidget(*bar, bar->tabRect(tab).center());
}

void Session::ChooseItem(const std::string& item) {
  if (!MenuIsOn(item)) GiveUp(item + " cannot be used");
  const auto& model = As<MenuItem>(item);
  auto* bar = static_cast<QMainWindow&>(Window(Parts(item).first)).menuBar();
  const auto& top = static_cast<const MenuItem&>(*model.Parent());
  QAction* menu = const_cast<QAction*>(FindAction(bar->actions(), top.Caption));
  ClickWidget(*bar, bar->actionGeometry(menu).center());
  QMenu* open = menu->menu();
  Until("the menu " + top.Caption, [open] { return open->isVisible(); });
  QAction* action = const_cast<QAction*>(FindAction(open->actions(), model.Caption));
  ClickWidget(*open, open->actionGeometry(action).center());
}

void Session::KeyDown(Qt::Key key, Qt::KeyboardModifiers modifiers, bool repeats) {
  SendKey(QEvent::KeyPress, key, modifiers, TextOf(key, modifiers), repeats);
}

void Session::KeyUp(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  SendKey(QEvent::KeyRelease, key, modifiers, TextOf(key, modifiers), false);
}

void Session::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  KeyDown(key, modifiers);
  // The press may have taken the last window away.
  if (QGuiApplication::focusWindow() != nullptr) KeyUp(key, modifiers);
}

void Session::PressAll(std::initializer_list<Qt::Key> keys) {
  for (const Qt::Key key : keys) Press(key);
}

void Session::Type(const QString& text) {
  for (const QChar letter : text) {
    const int key = letter.toUpper().unicode();
    SendKey(QEvent::KeyPress, key, Qt::NoModifier, letter, false);
    SendKey(QEvent::KeyRelease, key, Qt::NoModifier, letter, false);
  }
}

void Session::CloseWindow(const std::string& screen) {
  QWindowSystemInterface::handleCloseEvent(Window(screen).windowHandle());
  Settle();
}

void Session::Answer(const QString& own, const std::function<void(QMessageBox&)>& reply) {
  const QString title = QString::fromStdString(orvane::test::Shown(own.toStdString()));
  QPointer<QMessageBox> box;
  Until("the box " + title.toStdString(), [&] {
    box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return box != nullptr && box->windowTitle() == title && box->isActiveWindow();
  });
  Settle();
  reply(*box);
  Until("the end of the box " + title.toStdString(), [&] { return !box || !box->isVisible(); });
  Settle();
}

void Session::Answer(const QString& title, Qt::Key key) {
  Answer(title, [key](QMessageBox&) { Press(key); });
}

void Session::Run(const std::string& timer, const std::function<bool()>& until) {
  constexpr int most = 100000;
  auto& model = As<Timer>(timer);
  int ticks = 0;
  front_end_.Send([&](Program& program) {
    while (model.IsEnabled() && !until() && ++ticks < most) program.Tick(model);
  });
  if (ticks == most) GiveUp(timer + " does not come to an end");
  Settle();
}

QImage Session::Shown(QWidget& window) {
  // The platform's own picture of a window ends where its size in pixels of the game does.
  const auto* painted = dynamic_cast<const QImage*>(window.backingStore()->paintDevice());
  if (painted == nullptr) GiveUp("a window that is not painted");
  QImage shown = painted->copy().convertToFormat(QImage::Format_RGB32);
  shown.setDevicePixelRatio(1);
  return shown;
}

}  // namespace orvane::test
