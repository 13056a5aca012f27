// The way of every event into the game.
#pragma once

#include <functional>

#include "src/frontend/shared/texts/translator.h"

class QPoint;

namespace orvane {

class Program;
class Screen;

class Events {
 public:
  virtual ~Events() = default;
  // Lets an event act on the game, then brings everything on the screen up to date. Nothing happens
  // once the game has ended, or while it sleeps.
  virtual void Send(const std::function<void(Program&)>& event) = 0;
  // What has changed of a screen has just been painted and given to the display.
  virtual void Painted(const Screen& /*screen*/) {}
  // The window manager has given a screen's window another size than it asked for.
  virtual void Resized(const Screen& /*screen*/) {}
  // What texts are shown as: themselves, unless the player has chosen another language.
  virtual const Translator& Texts() const {
    static const Translator own;
    return own;
  }
  // The player asks for the choice of languages, at a point of the display.
  virtual void OfferLanguages(const QPoint& /*at*/) {}
};

}  // namespace orvane
