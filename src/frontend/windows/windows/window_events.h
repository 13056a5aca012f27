// What windows report beside the player's events.
#pragma once

#include <string>

#include "src/frontend/shared/events.h"

namespace orvane {

class WindowEvents : public Events {
 public:
  // The system has made a window of the game's the active one.
  virtual void Activated(Screen& screen) = 0;
  // This program has become the one that the player works with, or another one.
  virtual void ProgramActivated(bool active) = 0;
  // The system runs a loop of its own that gets all keys: a menu is open, or a window is dragged.
  virtual void SystemLoops(bool begins) = 0;
  // A window stands on a display of other properties, or the display has got them.
  virtual void DisplayChanged() = 0;
  // The same, and the frame of a window has got another size with it.
  virtual void DotsChanged() = 0;
  // The player wishes for the full screen.
  virtual void WantsFullScreen() = 0;
  // The player wishes for another language, by its code.
  virtual void ChooseLanguage(const std::string& code) = 0;
  // The session ends.
  virtual void SessionEnds() = 0;
};

}  // namespace orvane
