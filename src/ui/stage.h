// All screens of a program: which are loaded, visible and active, and what stands in the way of
// input.
#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "src/ui/box.h"
#include "src/ui/screen.h"
#include "src/ui/timer.h"

namespace orvane {

// A box on the stage.
struct StandingBox {
  Box Shown;
  int Number = 0;  // counts the boxes of a program from 1 on, and tells two of one text apart
  AnswerHandler Then;
  Timer* Asker = nullptr;  // the timer whose tick asked, or null
};

class Stage {
 public:
  Stage() = default;
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  // All screens, in the order in which they were made.
  const std::vector<Screen*>& Screens() const { return screens_; }
  Screen* Find(const std::string& name) const;

  // Takes the present properties of all controls as their design; called once, when all screens
  // stand.
  void KeepDesigns();

  // Brings a screen into being, hidden: its controls as designed, then its load step. Nothing if it
  // is.
  void Load(Screen& screen);
  // Shows a screen, loading it first if need be, and makes it the active one before this returns.
  void Show(Screen& screen);
  // The same; until the screen goes, no other screen takes input.
  void ShowModal(Screen& screen);
  // Takes a screen away but keeps it as it is.
  void Hide(Screen& screen);
  // Ends a screen: its unload step, then it is neither visible nor loaded.
  void Unload(Screen& screen);
  // Makes a visible screen the active one. Nothing if it is, or is not visible.
  void Activate(Screen& screen);
  // The player uses the window's own close control.
  void Close(Screen& screen) { screen.OnClose(); }
  // The player presses the mouse on the bare surface of a screen.
  void Press(Screen& screen) { screen.OnPress(); }

  // The active screen, or null when none is visible.
  Screen* Active() const { return active_order_.empty() ? nullptr : active_order_.back(); }

  // Puts a message box on the stage, in front of those that stand there, and returns at once;
  // `then` follows its answer. While it stands no screen takes input, and a timer whose tick asked
  // does not tick again before what follows the answer has run. Nothing once the program has ended.
  void Ask(Box box, AnswerHandler then = {});
  // The boxes that stand, oldest first. The last one is in front and is answered first.
  const std::vector<StandingBox>& Boxes() const { return boxes_; }
  int BoxCount() const { return static_cast<int>(boxes_.size()); }
  bool BoxStands() const { return !boxes_.empty(); }
  // Adds a note to the box in front; nothing where none stands.
  void AddNote(const std::string& note);
  // Takes the box in front away and runs what follows its answer; nothing where none stands.
  void Answer(BoxAnswer answer);

  // Asks that nothing ticks, no input is taken and nothing that the running handler changes is
  // seen, for so many milliseconds from the end of the handler on. Holds of one handler add up.
  void Hold(int milliseconds) { held_ += milliseconds; }
  // How long is to be held, until EndHold says that it is over.
  int HeldFor() const { return held_; }
  void EndHold() { held_ = 0; }

  // Something outside has been asked that may take its time: until Resume nothing ticks and no
  // input is taken.
  void Await() { ++awaited_; }
  // The answer has come, within the handler that asked or later; `follow` runs once no handler
  // does.
  void Resume(Handler follow);
  // Who is told that something is to be run by RunDue.
  void OnResume(Handler wake) { wake_ = std::move(wake); }
  // Runs what has come due by Resume.
  void RunDue();

  // Runs one tick of a timer, which the caller has found to be due.
  void Tick(Timer& timer);

  // True while timers tick: the program goes on, nothing is held and nothing awaited.
  bool TimeRuns() const { return IsRunning() && held_ == 0 && awaited_ == 0; }

  // Ends the program with this exit status: its boxes vanish, and what would have followed them
  // never runs. What the running handler has still to do is up to it.
  void EndProgram(int status);
  // Stops the program with a box of which the answer ends it. Nothing else happens any more.
  void EndWithBox(Box box, int status);
  // No last box stands, and the program has not ended.
  bool IsRunning() const { return !ended_ && !stopped_; }
  bool HasEnded() const { return ended_; }
  int ExitStatus() const { return exit_status_; }

  // Whether input can reach a screen: it is visible, time runs, no box stands, and no other screen
  // is modal.
  bool TakesInput(const Screen& screen) const;

 private:
  friend class Screen;

  void Leave(Screen& screen);
  void Enter(Screen& screen, bool entered);

  // Runs a part of a timer's tick; null for what is no tick's.
  void RunFor(Timer* timer, const Handler& handler);
  bool IsAwaitedBy(const Timer& timer) const;

  std::vector<Screen*> screens_;
  std::vector<Screen*> active_order_;  // visible screens, the active one last
  std::vector<StandingBox> boxes_;
  int boxes_asked_ = 0;
  Timer* ticking_ = nullptr;  // whose tick runs, or what follows one of its boxes
  int held_ = 0;              // milliseconds
  int awaited_ = 0;
  std::deque<Handler> due_;
  Handler wake_;
  bool stopped_ = false;  // the last box stands
  bool ended_ = false;
  int exit_status_ = 0;
};

}  // namespace orvane
