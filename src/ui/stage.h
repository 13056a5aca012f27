// All screens of a program: which are loaded, visible and active, and what stands in the way of
// input.
#pragma once

#include <string>
#include <vector>

#include "src/platform/services.h"
#include "src/ui/screen.h"
#include "src/ui/timer.h"

namespace orvane {

class Stage {
 public:
  explicit Stage(Services& services) : services_(services) {}
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

  // Shows a message box and returns the answer; timers go on meanwhile.
  BoxAnswer ShowBox(const std::string& text, const std::string& title, BoxButtons buttons);
  bool BoxStands() const { return boxes_standing_ > 0; }

  // Ends the program with this exit status: leaves every running handler.
  [[noreturn]] void EndProgram(int status);
  // The same without leaving, for the place where a run-time error arrives.
  void MarkEnded(int status);
  bool HasEnded() const { return ended_; }
  int ExitStatus() const { return exit_status_; }

  // Whether input can reach a screen: it is visible, the program runs, no box stands, and no other
  // screen is modal.
  bool TakesInput(const Screen& screen) const;

 private:
  friend class Screen;

  void Leave(Screen& screen);
  void Enter(Screen& screen, bool entered);

  Services& services_;
  std::vector<Screen*> screens_;
  std::vector<Screen*> active_order_;  // visible screens, the active one last
  int boxes_standing_ = 0;
  bool ended_ = false;
  int exit_status_ = 0;
};

}  // namespace orvane
