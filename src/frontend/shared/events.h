// The way of every event into the game.
#pragma once

#include <functional>

#include "src/frontend/shared/texts/translator.h"
#include "src/game/program.h"

namespace orvane {

class Events {
 public:
  virtual ~Events() = default;
  // Lets an event act on the game, then brings everything on the screen up to date. Nothing happens
  // once the game has ended, while it is held, or while the windows are being brought up to date.
  virtual void Send(const std::function<void(Program&)>& event) = 0;
  // What texts are shown as: themselves, unless the player has chosen another language.
  virtual const Translator& Texts() const {
    static const Translator own;
    return own;
  }
};

// An arrow key is pressed or let go in the game's window.
void SendArrow(Events& events, Direction direction, bool down);

// Lets an event act on the game. The game itself handles the errors that bad data can lead to. What
// else may come, such as want of memory, must not fly through a toolkit's loop, which cannot stand
// it: the game ends with a box that says it.
void ActOn(Program& program, const std::function<void(Program&)>& event);

}  // namespace orvane
