// The whole game as one object. Everything enters here: what the player does and the ticks of the
// timers.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "src/base/direction.h"
#include "src/base/error.h"
#include "src/core/state.h"
#include "src/game/play_event.h"
#include "src/platform/services.h"
#include "src/ui/controls.h"
#include "src/ui/stage.h"

namespace orvane {

// What an event came to: empty when it was carried out, otherwise why a player cannot do it now.
using Refusal = std::string;

class Program {
 public:
  // Starts the program, up to the title and the first activation of Main. An error on the way
  // leaves a program of which nothing but the error's box stands. The services must outlive the
  // program.
  explicit Program(const Services& services);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Stage& TheStage();
  State& TheState();

  // Who is told of every event from now on; null for nobody. The watcher outlives the program.
  void SetWatcher(PlayWatcher* watcher) { watcher_ = watcher; }

  // True after quit, game over, the ending or an error. No event does anything from then on.
  bool HasEnded() const;
  // 0 after quit, game over and the ending, 1 after an error.
  int ExitStatus() const;
  // The error that has stopped the program, if one has, and the text of its box. The box stands on
  // the stage; its answer ends the program.
  const std::optional<RunError>& Error() const { return error_; }
  std::string TextOfError() const;

  // What a player can do. Each brings the screen to the front first, if it is visible but not
  // active, and does nothing but say why when a player could not do it.

  // A click on a button, a picture (where nothing on it is in the way), a menu, or an item of a
  // menu, which opens its menu first and so runs the menu's own click.
  Refusal Click(Control& control);
  // The same for an item whose menu is open already.
  Refusal ClickItem(MenuItem& item);
  // A click at a point inside the control's border: the frontmost control there takes it.
  Refusal ClickAt(Control& control, double x, double y);
  // A click on a row of a list or a file list, from 0, also on the selected one.
  Refusal Choose(Control& list, int row);
  // A click on the header of a tab.
  Refusal SelectTab(TabStrip& tabs, int tab);
  // Replaces the text of a field.
  Refusal EnterText(TextBox& field, const std::string& text);
  // Moves a slider; values outside its range are refused.
  Refusal Slide(Slider& slider, int value);
  // A mouse press on the bare surface of a screen.
  Refusal Press(Screen& screen);
  // The window's own close control.
  Refusal Close(Screen& screen);
  // Enter in a text field of a screen: presses its EnterButton.
  Refusal Confirm(Screen& screen);
  // Escape: chooses the way back of the list in front, or presses one of the BackButtons.
  Refusal GoBack(Screen& screen);
  // Brings a visible screen to the front.
  Refusal Activate(Screen& screen);
  // Arrow keys go to Main while it is the active screen, and are lost otherwise.
  void KeyDown(Direction key);
  void KeyUp(Direction key);

  // Answers the box in front, and so runs what follows.
  Refusal Answer(BoxAnswer answer);

  // Runs code as an event does, for who does more than a player can: no other handler is running
  // then, and a run-time error in it stops the program with its box.
  void Enter(const Handler& handler);

  // One tick of a timer; nothing when it is off, its last tick has not come to its end, or time
  // stands. A front end asks a TimerQueue which timer is due.
  void Tick(Timer& timer);

  // The hold that the last handler has asked for (Stage::HeldFor) is over.
  void EndHold();

  // Stops the program with a box that says what has gone wrong outside of the game's own rules, as
  // want of memory does.
  void Break(const std::string& what);

  // Ends the program from outside, as the end of a session does, with this exit status.
  void End(int status);

 private:
  struct Parts;
  class Told;

  // Runs a part of an event.
  void Run(const Handler& handler);
  // Brings the screen to the front; says why not.
  Refusal Reach(Screen& screen);
  // The same, and the control can be used.
  Refusal Reach(Control& control);
  bool KeysReachMain();
  // Stops the program with the box of an error.
  void Fail(const RunError& error);

  std::optional<RunError> error_;
  std::unique_ptr<Parts> parts_;
  bool entered_ = false;  // a handler runs
  PlayWatcher* watcher_ = nullptr;
  int told_ = 0;  // events that run, one within another
};

}  // namespace orvane
