#include "src/frontend/desktop/windows/screen_window.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <QtMath>
#include <algorithm>
#include <cmath>
#include <map>

#include "src/frontend/desktop/input/keyboard.h"
#include "src/frontend/desktop/views/view_factory.h"
#include "src/frontend/desktop/windows/window_events.h"
#include "src/frontend/desktop/x11/x11.h"
#include "src/game/program.h"

namespace orvane {
namespace {

// By how much a size may differ from what was asked for without being another one: window managers
// round it, and the toolkit counts in units of its own.
constexpr int kRounding = 4;

// What a window shows its screen on: black where the screen leaves it bare.
class Backing : public QWidget {
 public:
  explicit Backing(QWidget* client) : client_(client) {
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(client, 0, 0, Qt::AlignCenter);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    const QSize bare = size() - client_->size();
    const bool is_rounded = bare.width() <= kRounding && bare.height() <= kRounding;
    QPainter(this).fillRect(event->rect(),
                            is_rounded ? palette().color(QPalette::Window) : Qt::black);
  }

 private:
  QWidget* client_;
};

QPointF CentreOf(const QWidget& window) {
  // The window manager may not have told the new size of a window that is to cover the screen.
  if (window.isFullScreen()) return QRectF(window.screen()->geometry()).center();
  return QRectF(window.geometry()).center();
}

}  // namespace

ScreenWindow::ScreenWindow(Screen& screen, WindowEvents& events)
    : screen_(screen), events_(events), client_(new ClientArea(screen, events)) {
  setObjectName(ToQt(screen.Name()));
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                 Qt::WindowCloseButtonHint |
                 (screen.IsScene ? Qt::WindowMaximizeButtonHint : Qt::WindowType(0)));
  const bool has_menu =
      std::any_of(screen.Controls().begin(), screen.Controls().end(),
                  [](const Control* control) { return control->Kind() == ControlKind::Menu; });
  if (has_menu) {
    setMenuBar(new MenuBar);
    menuBar()->setNativeMenuBar(false);  // in the window on every desktop
    menu_ = std::make_unique<MenuView>(screen, *menuBar(), events);
  }
  setCentralWidget(new Backing(client_));
  // A scene's window can be made larger than the scene, which then stands in the middle.
  layout()->setSizeConstraint(screen.IsScene ? QLayout::SetMinimumSize : QLayout::SetFixedSize);
  constexpr int settled_ms = 250;
  resized_.setSingleShot(true);
  resized_.setInterval(settled_ms);
  QObject::connect(&resized_, &QTimer::timeout, this, [this] { MeasureGiven(); });
  MakeViews();
  Retranslate();
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
  keys_to_ = std::make_unique<Focus>(*this, screen_, views_);
}

void ScreenWindow::FollowTitle() {
  const QString title = ToQt(events_.Texts().Of(screen_.Caption));
  if (windowTitle() != title) setWindowTitle(title);
}

void ScreenWindow::Follow() {
  FollowTitle();
  if (menu_ != nullptr) menu_->Follow();
  client_->Follow(false);
  QWidget* before = focusWidget();
  for (const auto& view : views_) view->Follow();
  keys_to_->Follow(before);
}

void ScreenWindow::FollowAll() {
  FollowTitle();
  if (menu_ != nullptr) menu_->Follow();
  client_->Follow(true);
  for (const auto& view : views_) view->FollowAll();
}

void ScreenWindow::Retranslate() {
  if (menu_ != nullptr) menuBar()->setAccessibleName(ToQt(events_.Texts().Of("メニュー")));
  client_->NameForReaders();
  for (const auto& view : views_) NameForReaders(*view, events_.Texts());
  QWidget* before = focusWidget();
  FollowAll();
  keys_to_->Follow(before);
}

void ScreenWindow::Present(ScreenWindow* over, const Setting& setting) {
  // The screen may have been loaded afresh since it was seen last.
  FollowAll();
  owner_ = over;
  Open(setting);
  keys_to_->Begin();
}

void ScreenWindow::Dismiss() {
  // Where it covers the screen it has no place of its own, whatever the window manager has made of
  // it since; and when it has just been made the largest, its place is the one that it had before.
  const bool is_largest = isMaximized() || isFullScreen();
  const QRect place = is_largest ? normalGeometry() : geometry();
  if (isVisible() && !covers_ && place.isValid())
    centre_ = QRectF(place).center() * devicePixelRatio();
  hide();
}

void ScreenWindow::TakeDown() {
  focus_ = focusWidget();
  Dismiss();
  destroy();
}

void ScreenWindow::PutBack(const Setting& setting) {
  Open(setting);
  if (focus_ != nullptr) focus_->setFocus();
}

void ScreenWindow::Open(const Setting& setting) {
  setWindowModality(screen_.IsModal() ? Qt::ApplicationModal : Qt::NonModal);
  covers_ = setting.FullScreen && screen_.IsScene;
  const Qt::WindowState state = covers_ ? Qt::WindowFullScreen : Qt::WindowNoState;
  setWindowState(state);
  winId();  // makes the window, so that it can be tied to the one that it belongs to
  // A window that has been made anew does not know the state of its widget.
  windowHandle()->setWindowState(state);
  Tie(setting.Backdrop);
  if (!covers_) {
    LayGround(*this);
    PutInPlace();
  }
  show();
}

void ScreenWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (screen_.IsScene) resized_.start();
}

void ScreenWindow::MeasureGiven() {
  if (!isVisible() || covers_ || isMinimized() || isMaximized() || isFullScreen()) return;
  const double ratio = devicePixelRatio();
  const auto near = [](double one, double other, double slack) {
    return std::abs(one - other) <= slack;
  };
  const QSize own = sizeHint();
  const Extent size = {width() * ratio, height() * ratio};
  const bool is_own =
      near(width(), own.width(), kRounding) && near(height(), own.height(), kRounding);
  const double slack = kRounding * ratio;
  const bool is_known =
      given_ && near(size.Width, given_->Width, slack) && near(size.Height, given_->Height, slack);
  // What it has been given may also be what it would ask for.
  if (is_own || is_known) return;
  given_ = size;
  events_.Resized(screen_);
}

void ScreenWindow::Tie(QWindow* backdrop) {
  windowHandle()->setTransientParent(backdrop);
  // A window that is about to go is no owner, and a circle of owners would hang the toolkit.
  if (owner_ == nullptr || !owner_->screen_.IsVisible()) return;
  for (const QWindow* each = owner_->windowHandle(); each != nullptr;
       each = each->transientParent()) {
    if (each == windowHandle()) return;
  }
  windowHandle()->setTransientParent(owner_->windowHandle());
}

void ScreenWindow::PutInPlace() {
  const double ratio = devicePixelRatio();
  QSize size = sizeHint();
  if (given_) size = size.expandedTo((QSizeF(given_->Width, given_->Height) / ratio).toSize());
  // The place is that of the window's inside, so room is left above it for the title bar.
  const QRect available =
      screen()->availableGeometry().adjusted(0, qCeil(kTitleHeight / ratio), 0, 0);
  QPointF centre = owner_ != nullptr ? CentreOf(*owner_) : QRectF(available).center();
  if (centre_) centre = *centre_ / ratio;
  const QPoint corner = (centre - QRectF(QPointF(), size).center()).toPoint();
  const QPoint furthest = available.bottomRight() - QPoint(size.width(), size.height());
  const QPoint place(std::max(available.left(), std::min(corner.x(), furthest.x())),
                     std::max(available.top(), std::min(corner.y(), furthest.y())));
  setGeometry(QRect(place, size));
}

Span ScreenWindow::TakenSpan(bool full_screen) const {
  const int menu = menu_ == nullptr ? 0 : menuWidget()->sizeHint().height();
  const bool covers = full_screen && screen_.IsScene;
  return {{double(screen_.Width), double(screen_.Height + menu)},
          covers ? 0 : kTitleHeight,
          full_screen ? std::nullopt : given_};
}

bool ScreenWindow::event(QEvent* event) {
  const bool painting = event->type() == QEvent::UpdateRequest;
  const bool taken = QMainWindow::event(event);
  if (painting) events_.Painted(screen_);
  return taken;
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  // The game decides whether the window goes.
  event->ignore();
  events_.Send([this](Program& program) { program.Close(screen_); });
}

void ScreenWindow::contextMenuEvent(QContextMenuEvent* event) {
  // A press on a film of the screen's own means something else.
  const bool is_mouse = event->reason() == QContextMenuEvent::Mouse;
  if (screen_.OwnSurface != nullptr && is_mouse) return event->ignore();
  events_.OfferLanguages(event->globalPos());
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
  const bool control = (event->modifiers() & Qt::ControlModifier) != 0;
  if (const auto arrow = ArrowKey(event->key())) {
    keys_to_->Move(*arrow);
  } else if (event->key() == Qt::Key_F10 && menu_ != nullptr) {
    menu_->Open();
  } else if (event->key() == Qt::Key_Escape) {
    events_.Send([this](Program& program) { program.GoBack(screen_); });
  } else if (event->key() == Qt::Key_Tab && control) {
    keys_to_->TurnTab(1);
  } else if (event->key() == Qt::Key_Backtab && control) {
    keys_to_->TurnTab(-1);
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace orvane
