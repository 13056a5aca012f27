// The game on Windows: the program, its windows, its time.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "src/frontend/shared/tick_times.h"
#include "src/frontend/shared/zoom.h"
#include "src/frontend/windows/app/alarm.h"
#include "src/frontend/windows/app/boxes.h"
#include "src/frontend/windows/app/message_window.h"
#include "src/frontend/windows/input/keys.h"
#include "src/frontend/windows/input/pad.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/frontend/windows/windows/windows.h"
#include "src/game/program.h"

namespace orvane {

class Front : public WindowEvents {
 public:
  // Opens the windows of a program in this scale or the one that suits the display, and in the
  // language of `texts`. Program and texts must outlive it. `name` is what a second start calls it
  // by.
  Front(Program& program, Translator& texts, std::optional<double> scale, const std::wstring& name);
  ~Front() override = default;
  Front(const Front&) = delete;
  Front& operator=(const Front&) = delete;

  // Runs the game to its end and returns its exit status.
  int Run();

  // Calls `tell` with every screen that has been painted.
  void TellOfPainting(std::function<void(const Screen&)> tell) { painted_ = std::move(tell); }

  // Calls `tell` with the language that the player chooses.
  void TellOfLanguage(std::function<void(const std::string&)> tell) { chosen_ = std::move(tell); }

  void Send(const std::function<void(Program&)>& event) override;
  const Translator& Texts() const override { return texts_; }
  void ChooseLanguage(const std::string& code) override;
  void Activated(Screen& screen) override;
  void ProgramActivated(bool active) override;
  void SystemLoops(bool begins) override;
  void DisplayChanged() override;
  void DotsChanged() override;
  void WantsFullScreen() override;
  void SessionEnds() override { End(); }

 private:
  void Take(UINT message);
  void Follow();
  void FollowWindows();
  void LeaveSystemLoop();
  // Whether the game is held; sees to the end of a hold that has just been asked for.
  bool IsHeld();
  void Ring();
  void Arm();
  void End();
  void ComeToFront() const;
  bool KeysReachGame() const;
  double Now() const;  // ms of the real clock
  Zoom MakeZoom(HWND window) const;
  void FitDisplay();

  bool TakeKey(const MSG& message);
  bool TakeZoomKey(const MSG& message);
  void SetFullScreen(bool full_screen);
  // Presses a key in whatever has the keyboard.
  void Type(WPARAM key);
  PadSurroundings AroundPad();

  Program& program_;
  Translator& texts_;
  const Screen* first_;          // the screen that the game opens with, which the keys belong to
  std::optional<double> scale_;  // as the command line has it
  const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  Fonts fonts_;
  Speech speech_;
  Setting setting_{*this, fonts_, speech_};
  Zoom zoom_;
  Windows windows_;
  MessageBoxes boxes_;
  MessageWindow messages_;
  Alarm alarm_;
  TickTimes times_;
  Keys keys_;
  Pad pad_;
  std::function<void(const Screen&)> painted_;
  std::function<void(const std::string&)> chosen_;
  std::optional<double> held_until_;  // by Now
  const Screen* looped_ = nullptr;    // the active screen when the system's own loop began
  bool system_loops_ = false;
  bool display_changed_ = false;
  bool dots_changed_ = false;
  bool language_changed_ = false;
  bool following_ = false;
};

}  // namespace orvane
