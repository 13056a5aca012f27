// How screen readers see the widgets that the toolkit knows nothing about.
#pragma once

#include <QString>

class QWidget;

namespace orvane {

// A widget that a screen reader can ask for its text, and perhaps press.
class Spoken {
 public:
  virtual ~Spoken() = default;
  // Whether it shows something of its own; a mere background is not announced.
  virtual bool IsPicture() const { return true; }
  // What is written on it now.
  virtual QString Text() const = 0;
  // Whether a click on it can do something in the game.
  virtual bool IsButton() const = 0;
  virtual void Press() = 0;
};

// Lets readers find what is Spoken. Called once the application is there.
void SetUpSpeech();

// Tells readers what is written on a widget when that has changed. Asks nothing and costs nothing
// while no reader listens.
class Announcer {
 public:
  // `widget` is also Spoken.
  void Follow(QWidget& widget);

 private:
  QString told_;
};

}  // namespace orvane
