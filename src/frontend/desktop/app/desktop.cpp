#include "src/frontend/desktop/app/desktop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QMetaObject>
#include <memory>
#include <utility>

#include "src/frontend/desktop/app/signals.h"
#include "src/frontend/shared/raised.h"
#include "src/frontend/shared/texts/lettered_sheets.h"

namespace orvane {

Desktop::Desktop(Program& program, const Zoom& zoom, Translator& texts)
    : program_(program),
      first_(program.TheStage().Active()),
      zoom_(zoom),
      texts_(texts),
      windows_(program.TheStage(), *this, zoom),
      boxes_(texts,
             [this](BoxAnswer answer) { Send([answer](Program& game) { game.Answer(answer); }); }),
      ticks_(program.TheStage(), *this),
      keys_(*this, [this] { return KeysReachGame(); }),
      pad_(*this, [this] { return KeysReachGame(); }) {
  // A window manager may tell of a state that is not the last one on the way.
  constexpr int settled_ms = 200;
  states_.setSingleShot(true);
  states_.setInterval(settled_ms);
  QObject::connect(&states_, &QTimer::timeout, this, [this] { TakeState(); });
  QCoreApplication::instance()->installEventFilter(this);
  QLocale::setDefault(QLocale(QString::fromStdString(texts_.Language())));
  OnEndSignals([this] { End(); });
  OnCallSignal([this] { ComeToFront(); });
}

Desktop::~Desktop() {
  QCoreApplication::instance()->removeEventFilter(this);
}

int Desktop::Run() {
  // From within the loop, so that the end can leave it.
  QMetaObject::invokeMethod(
      this, [this] { Follow(); }, Qt::QueuedConnection);
  // Pads are looked for when the title stands: finding them takes longer than showing it.
  QTimer::singleShot(500, this, [this] { pad_.Start(OpenPads()); });
  QCoreApplication::exec();
  return program_.ExitStatus();
}

void Desktop::Send(const std::function<void(Program&)>& event) {
  // What widgets report while they are being brought up to date is no event of the player's.
  if (following_ || held_) return;
  if (!program_.HasEnded()) ActOn(program_, event);
  Follow();
}

void Desktop::Painted(const Screen& screen) {
  if (painted_) painted_(screen);
}

void Desktop::Resized(const Screen& screen) {
  windows_.ShareGiven(screen);
  if (!windows_.Suit(zoom_)) RescaleLater();
}

void Desktop::OfferLanguages(const QPoint& at) {
  languages_.clear();
  languages_.setAccessibleName(QString::fromStdString(texts_.Of("言語")));
  for (const std::string& code : texts_.Languages()) {
    QAction* action = languages_.addAction(QString::fromStdString(texts_.NameOf(code)));
    action->setCheckable(true);
    action->setChecked(code == texts_.Language());
    QObject::connect(action, &QAction::triggered, this, [this, code] {
      ShowLanguage(code);
      if (chosen_) chosen_(code);
    });
  }
  languages_.popup(at);
}

void Desktop::ShowLanguage(const std::string& code) {
  texts_.Choose(code);
  // What screen readers are told of the language.
  QLocale::setDefault(QLocale(QString::fromStdString(texts_.Language())));
  const Raised following(following_);
  windows_.Retranslate();
  boxes_.Retranslate(program_.TheStage());
}

void Desktop::Follow() {
  if (IsHeld()) return;
  if (!program_.HasEnded()) {
    LetterSheets(program_.TheStage(), texts_);
    FollowWindows();
    FollowBoxes();
    ticks_.Arm();
    keys_.Follow();
    if (program_.TheStage().Active() != nullptr || program_.TheStage().BoxStands()) return;
  }
  // The game has ended, or has left no window by which the player could end it.
  End();
}

void Desktop::FollowBoxes() {
  const Raised following(following_);
  const Stage& stage = program_.TheStage();
  if (boxes_.Follow(stage, windows_.Active()) && !stage.BoxStands()) windows_.RaiseActive();
}

bool Desktop::IsHeld() {
  const int milliseconds = program_.TheStage().HeldFor();
  if (held_ || milliseconds <= 0) return held_;
  held_ = true;
  ticks_.Stop();
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, this, [this] {
    held_ = false;
    program_.EndHold();
    Follow();
  });
  return true;
}

void Desktop::End() {
  program_.End(0);
  ticks_.Stop();
  boxes_.Follow(program_.TheStage(), nullptr);
  QCoreApplication::exit(program_.ExitStatus());
}

void Desktop::ComeToFront() {
  QWidget* box = QApplication::activeModalWidget();
  QWidget* front = box != nullptr ? box : windows_.Active();
  if (front == nullptr) return;
  front->setWindowState(front->windowState() & ~Qt::WindowMinimized);
  front->raise();
  front->activateWindow();
}

bool Desktop::KeysReachGame() const {
  const Stage& stage = program_.TheStage();
  const ScreenWindow* window = windows_.Of(first_);
  return window != nullptr && stage.Active() == first_ && stage.TakesInput(*first_) &&
         window->isActiveWindow() && QApplication::activePopupWidget() == nullptr;
}

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowActivate:
      if (auto* window = dynamic_cast<ScreenWindow*>(watched)) TakeActivation(*window);
      return false;
    case QEvent::WindowStateChange:
      if (!following_ && dynamic_cast<ScreenWindow*>(watched) != nullptr) states_.start();
      return false;
    case QEvent::Quit:
      // The session ends; the player is not asked.
      End();
      return true;
    case QEvent::KeyPress:
      // Keys come to their window first.
      return watched->isWindowType() && TakeZoomKey(*static_cast<const QKeyEvent*>(event));
    default:
      return false;
  }
}

void Desktop::TakeActivation(ScreenWindow& window) {
  if (held_ || following_ || program_.HasEnded()) return;
  const Stage& stage = program_.TheStage();
  if (!windows_.IsPlayersChoice(window) || stage.Active() == &window.Model()) return;
  if (stage.BoxStands()) return;
  Send([&window](Program& program) { program.Activate(window.Model()); });
}

void Desktop::TakeState() {
  const ScreenWindow* window = windows_.Scene();
  // A window that is away keeps what it was.
  if (window == nullptr || window->isMinimized()) return;
  // The window manager's control for the largest size means the full screen.
  const bool is_largest = window->isMaximized() || window->isFullScreen();
  if (is_largest != zoom_.IsFullScreen()) SetFullScreen(is_largest);
}

bool Desktop::TakeZoomKey(const QKeyEvent& event) {
  const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
  switch (event.key()) {
    case Qt::Key_F11:
      if (!event.isAutoRepeat()) SetFullScreen(!zoom_.IsFullScreen());
      return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:      // the same key without Shift on many keyboards
    case Qt::Key_Semicolon:  // and on Japanese ones
      if (!control) return false;
      zoom_.Enlarge();
      break;
    case Qt::Key_Minus:
      if (!control) return false;
      zoom_.Reduce();
      break;
    case Qt::Key_0:
      if (!control) return false;
      zoom_.Reset();
      break;
    default:
      return false;
  }
  windows_.ForgetGiven();
  RescaleLater();
  return true;
}

void Desktop::SetFullScreen(bool full_screen) {
  zoom_.SetFullScreen(full_screen);
  RescaleLater();
}

void Desktop::RescaleLater() {
  // The event that asks for it may come from a window that is about to be taken down.
  if (std::exchange(rescaling_later_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { Rescale(); }, Qt::QueuedConnection);
}

void Desktop::Rescale() {
  rescaling_later_ = false;
  if (program_.HasEnded() || !CanRescale() || windows_.Suit(zoom_)) return;
  {
    const Raised following(following_);
    windows_.Rescale(zoom_);
  }
  keys_.Follow();
}

// A box belongs to a window that must stay.
bool Desktop::CanRescale() const {
  return !held_ && !program_.TheStage().BoxStands();
}

void Desktop::FollowWindows() {
  // New windows show at once in the size that suits them.
  if (CanRescale() && !windows_.Suit(zoom_)) return RescaleLater();
  const Raised following(following_);
  windows_.Follow();
}

}  // namespace orvane
