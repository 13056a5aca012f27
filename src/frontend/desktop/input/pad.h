// A game pad's way into the game.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <memory>

#include "src/frontend/shared/pad_rules.h"

namespace orvane {

class Events;

// Reads a pad, and does by keys and windows what its buttons come to.
class Pad : public QObject, private PadHands {
 public:
  // `reaches` tells whether keys reach the game's window now. Nothing is looked for before Start.
  Pad(Events& events, std::function<bool()> reaches);

  // Reads the source from now on: often while there is a pad and the program is in front.
  void Start(std::unique_ptr<PadSource> source);
  // Reads it once.
  void Look();

 private:
  bool ReachesGame() const override;
  bool ReachesWindow() const override { return reaches_(); }
  void Walk(Direction direction, bool down) override;
  void Move(Direction direction) override;
  void Accept() override;
  void Back() override;
  void OpenMenus() override;
  void Turn(int step) override;

  Events& events_;
  std::function<bool()> reaches_;
  std::unique_ptr<PadSource> source_;
  QTimer timer_;
  QElapsedTimer clock_;
  PadRules rules_{*this};
};

}  // namespace orvane
