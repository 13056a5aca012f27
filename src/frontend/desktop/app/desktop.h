// The game on a desktop: the program, its windows, its time.
#pragma once

#include <QMenu>
#include <QObject>
#include <QTimer>
#include <functional>
#include <string>

#include "src/frontend/desktop/app/boxes.h"
#include "src/frontend/desktop/app/tick_server.h"
#include "src/frontend/desktop/input/keys.h"
#include "src/frontend/desktop/input/pad.h"
#include "src/frontend/desktop/windows/window_events.h"
#include "src/frontend/desktop/windows/windows.h"
#include "src/frontend/shared/zoom.h"
#include "src/game/program.h"

class QKeyEvent;

namespace orvane {

class Desktop : public QObject, public WindowEvents {
 public:
  // Opens the windows of a program, which must outlive it, with the scale of `zoom`, which is set,
  // and with the texts that `texts` gives.
  Desktop(Program& program, const Zoom& zoom, Translator& texts);
  ~Desktop() override;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // Runs the game to its end and returns its exit status.
  int Run();

  // Calls `tell` with every screen that has been painted.
  void TellOfPainting(std::function<void(const Screen&)> tell) { painted_ = std::move(tell); }

  // Calls `tell` with the code of the language that the player has chosen.
  void TellOfLanguage(std::function<void(const std::string&)> tell) { chosen_ = std::move(tell); }
  // Shows everything in another language, at once.
  void ShowLanguage(const std::string& code);

  void Send(const std::function<void(Program&)>& event) override;
  void Painted(const Screen& screen) override;
  void Resized(const Screen& screen) override;
  const Translator& Texts() const override { return texts_; }
  void OfferLanguages(const QPoint& at) override;

 protected:
  // Watches the windows for what the window manager does to them, and the keys that change their
  // size.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Follow();
  void FollowBoxes();
  // Whether the game is held; sees to the end of a hold that has just been asked for.
  bool IsHeld();
  void End();
  void ComeToFront();
  bool KeysReachGame() const;
  void TakeActivation(ScreenWindow& window);
  void TakeState();
  bool TakeZoomKey(const QKeyEvent& event);
  void SetFullScreen(bool full_screen);
  void RescaleLater();
  void Rescale();
  bool CanRescale() const;
  void FollowWindows();

  Program& program_;
  const Screen* first_;  // the screen that the game opens with, which the keys belong to
  Zoom zoom_;
  Translator& texts_;
  Windows windows_;
  MessageBoxes boxes_;
  TickServer ticks_;
  Keys keys_;
  Pad pad_;
  std::function<void(const Screen&)> painted_;
  std::function<void(const std::string&)> chosen_;
  QMenu languages_;
  QTimer states_;  // runs while a window's state may still change
  bool following_ = false;
  bool held_ = false;
  bool rescaling_later_ = false;
};

}  // namespace orvane
