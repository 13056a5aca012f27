// The way of every event into the game.
#pragma once

#include <functional>

namespace orvane {

class Program;
class Screen;

class Events {
 public:
  virtual ~Events() = default;
  // Lets an event act on the game, then brings everything on the screen up to date. Nothing happens
  // once the game has ended, while it is held, or while the windows are being brought up to date.
  virtual void Send(const std::function<void(Program&)>& event) = 0;
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
  // The session ends.
  virtual void SessionEnds() = 0;
};

}  // namespace orvane
