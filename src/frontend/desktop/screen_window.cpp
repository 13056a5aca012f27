#include "src/frontend/desktop/screen_window.h"

#include <QCloseEvent>
#include <QLayout>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <map>

#include "src/frontend/desktop/events.h"
#include "src/frontend/desktop/view_factory.h"
#include "src/game/program.h"

namespace orvane {
namespace {

// Room for what the window manager adds above a window.
constexpr int TitleBar = 28;

}  // namespace

ScreenWindow::ScreenWindow(Screen& screen, Events& events)
    : screen_(screen), events_(events), client_(new ClientArea(screen, events)) {
  setObjectName(ToQt(screen.Name()));
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                 Qt::WindowCloseButtonHint);
  const bool has_menu =
      std::any_of(screen.Controls().begin(), screen.Controls().end(),
                  [](const Control* control) { return control->Kind() == ControlKind::Menu; });
  if (has_menu) {
    menuBar()->setNativeMenuBar(false);  // in the window on every desktop
    menu_ = std::make_unique<MenuView>(screen, *menuBar(), events);
  }
  setContextMenuPolicy(Qt::NoContextMenu);
  setCentralWidget(client_);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  MakeViews();
}

void ScreenWindow::MakeViews() {
  std::map<const Control*, ControlView*> made;
  for (Control* control : screen_.Controls()) {
    const auto holder = made.find(control->Parent());
    QWidget* parent = holder == made.end() ? client_ : holder->second->Ground(control->Pane());
    auto view = MakeView(*control, parent, events_);
    if (view == nullptr) continue;
    made[control] = view.get();
    views_.push_back(std::move(view));
  }
  // Later widgets lie in front of earlier ones, but texts lie behind everything beside them.
  const auto lower_if_text = [](const auto& view) {
    if (view->Model().Kind() == ControlKind::Label) view->Widget()->lower();
  };
  std::for_each(views_.rbegin(), views_.rend(), lower_if_text);
}

void ScreenWindow::FollowTitle() {
  const QString title = ToQt(screen_.Caption);
  if (windowTitle() != title) setWindowTitle(title);
}

void ScreenWindow::Follow() {
  FollowTitle();
  if (menu_ != nullptr) menu_->Follow();
  client_->Follow(false);
  const QWidget* before = focusWidget();
  for (const auto& view : views_) view->Follow();
  // Keys go on to what has come in place of the control that had them.
  if (before != nullptr && !(before->isVisible() && before->isEnabled())) FocusFirst();
}

void ScreenWindow::FollowAll() {
  FollowTitle();
  if (menu_ != nullptr) menu_->Follow();
  client_->Follow(true);
  for (const auto& view : views_) view->FollowAll();
}

void ScreenWindow::Present(const ScreenWindow* over) {
  // The screen may have been loaded afresh since it was seen last.
  FollowAll();
  setWindowModality(screen_.IsModal() ? Qt::ApplicationModal : Qt::NonModal);
  winId();  // makes the window, so that it can be tied to the one that it belongs to
  TieTo(over);
  PutOver(over);
  show();
  FocusFirst();
}

void ScreenWindow::TieTo(const ScreenWindow* over) {
  windowHandle()->setTransientParent(nullptr);
  // A window that is about to go is no owner, and a circle of owners would hang the toolkit.
  if (over == nullptr || !over->screen_.IsVisible()) return;
  for (const QWindow* each = over->windowHandle(); each != nullptr;
       each = each->transientParent()) {
    if (each == windowHandle()) return;
  }
  windowHandle()->setTransientParent(over->windowHandle());
}

void ScreenWindow::PutOver(const ScreenWindow* over) {
  if (placed_) return move(pos());  // says that the place is meant, lest the window manager choose
  placed_ = true;
  // The place is that of the window's inside, so room is left above it for the title bar.
  const QSize size = sizeHint();
  const QRect available = screen()->availableGeometry().adjusted(0, TitleBar, 0, 0);
  const QPoint centre = over != nullptr ? over->geometry().center() : available.center();
  const QPoint furthest = available.bottomRight() - QPoint(size.width(), size.height());
  const QPoint corner = centre - QPoint(size.width() / 2, size.height() / 2);
  move(std::max(available.left(), std::min(corner.x(), furthest.x())),
       std::max(available.top(), std::min(corner.y(), furthest.y())));
}

void ScreenWindow::FocusFirst() {
  const auto takes_keys = [](const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus && widget.isVisible() && widget.isEnabled();
  };
  // Lists and fields are there to be answered; otherwise keys go to the first that takes them.
  QWidget* first = nullptr;
  for (const auto& view : views_) {
    if (!takes_keys(*view->Widget())) continue;
    const ControlKind kind = view->Model().Kind();
    if (kind == ControlKind::Field || kind == ControlKind::List) return view->Widget()->setFocus();
    if (first == nullptr) first = view->Widget();
  }
  if (first != nullptr) first->setFocus();
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  // The game decides whether the window goes.
  event->ignore();
  events_.Send([this](Program& program) { program.Close(screen_); });
}

}  // namespace orvane
