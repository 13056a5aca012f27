#include "src/frontend/desktop/desktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QMetaObject>
#include <cstdlib>
#include <exception>

#include "src/frontend/desktop/signals.h"

namespace orvane {

Desktop::Desktop(Program& program, MessageBoxes& boxes, DesktopSleeper& sleeper)
    : program_(program),
      boxes_(boxes),
      sleeper_(sleeper),
      first_(program.TheStage().Active()),
      windows_(program.TheStage(), *this),
      ticks_(program.TheStage(), *this),
      keys_(*this, [this] { return KeysReachGame(); }) {
  boxes_.Attach(this);
  sleeper_.Attach([this](int milliseconds) { Sleep(milliseconds); });
  QCoreApplication::instance()->installEventFilter(this);
  OnEndSignals([this] { End(); });
}

Desktop::~Desktop() {
  QCoreApplication::instance()->removeEventFilter(this);
  sleeper_.Attach({});
  boxes_.Attach(nullptr);
}

int Desktop::Run() {
  // From within the loop, so that the end can leave it.
  QMetaObject::invokeMethod(
      this, [this] { Follow(); }, Qt::QueuedConnection);
  QCoreApplication::exec();
  return program_.ExitStatus();
}

void Desktop::Send(const std::function<void(Program&)>& event) {
  // What widgets report while they are being brought up to date is no event of the player's.
  if (following_ || asleep_) return;
  if (!program_.HasEnded()) Try(event);
  Follow();
}

void Desktop::Try(const std::function<void(Program&)>& event) {
  // The game handles the errors that bad data can lead to. What else may come, such as want of
  // memory, must not fly through the toolkit's loop, which cannot stand it.
  try {
    event(program_);
  } catch (const std::exception& failure) {
    program_.TheStage().MarkEnded(EXIT_FAILURE);
    boxes_.ShowError({failure.what(), "Orvane", BoxButtons::Ok});
  }
}

void Desktop::Follow() {
  if (!program_.HasEnded()) {
    following_ = true;
    windows_.Follow();
    following_ = false;
    ticks_.Arm();
    keys_.Follow();
    if (program_.TheStage().Active() != nullptr || program_.TheStage().BoxStands()) return;
  }
  // The game has ended, or has left no window by which anyone could end it.
  End();
}

void Desktop::End() {
  program_.TheStage().MarkEnded(0);
  ticks_.Stop();
  boxes_.CloseAll();
  QCoreApplication::exit(program_.ExitStatus());
}

QWidget* Desktop::BeginBox() {
  Follow();
  return windows_.Active();
}

void Desktop::EndBox() {
  if (!program_.HasEnded()) windows_.RaiseActive();
}

void Desktop::Sleep(int milliseconds) {
  following_ = true;
  windows_.Follow();
  following_ = false;
  asleep_ = true;
  ticks_.Stop();
  windows_.PaintNow();
  QEventLoop loop;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  asleep_ = false;
}

bool Desktop::KeysReachGame() const {
  const Stage& stage = program_.TheStage();
  const ScreenWindow* window = windows_.Of(first_);
  return window != nullptr && stage.Active() == first_ && stage.TakesInput(*first_) &&
         window->isActiveWindow() && QApplication::activePopupWidget() == nullptr;
}

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::WindowActivate || asleep_ || following_) return false;
  auto* window = dynamic_cast<ScreenWindow*>(watched);
  if (window == nullptr || program_.HasEnded()) return false;
  const Stage& stage = program_.TheStage();
  if (!windows_.IsPlayersChoice(*window) || stage.Active() == &window->Model()) return false;
  if (stage.BoxStands()) return false;
  Send([window](Program& program) { program.Activate(window->Model()); });
  return false;
}

}  // namespace orvane
