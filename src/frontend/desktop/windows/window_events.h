// What windows report beside the player's events.
#pragma once

#include "src/frontend/shared/events.h"

class QPoint;

namespace orvane {

class WindowEvents : public Events {
 public:
  // What has changed of a screen has just been painted and given to the display.
  virtual void Painted(const Screen& /*screen*/) {}
  // The window manager has given a screen's window another size than it asked for.
  virtual void Resized(const Screen& /*screen*/) {}
  // The player asks for the choice of languages, at a point of the display.
  virtual void OfferLanguages(const QPoint& /*at*/) {}
};

}  // namespace orvane
