// The keyboard's way into the game.
#pragma once

#include <QObject>
#include <functional>

#include "src/frontend/shared/walking_keys.h"

class QKeyEvent;

namespace orvane {

class Events;

// Watches the keys of the whole application for WalkingKeys.
class Keys : public QObject {
 public:
  // `reaches` tells whether keys reach the game's window now.
  Keys(Events& events, std::function<bool()> reaches);

  // Hands in what is outstanding if keys have begun to reach the window. Called after every event
  // in the game.
  void Follow() { walking_.Follow(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& event, const QObject& window);
  void SettleLater();

  WalkingKeys walking_;
  bool settling_later_ = false;
};

}  // namespace orvane
