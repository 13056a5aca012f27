// What enters a program from outside, as a value, for who watches a play.
#pragma once

#include <string_view>

namespace orvane {

class Control;
class Screen;

// One event: a call of the Program's, with what was given to it.
struct PlayEvent {
  enum class Kind {
    Tick,       // On: the timer
    KeyDown,    // Number: the direction
    KeyUp,      // Number: the direction
    Click,      // On
    ClickItem,  // On
    ClickAt,    // On, X, Y
    Choose,     // On, Number: the row
    SelectTab,  // On, Number: the tab
    EnterText,  // On, Text
    Slide,      // On, Number: the value
    Press,      // Where
    Close,      // Where
    Confirm,    // Where
    GoBack,     // Where
    Activate,   // Where
    Answer,     // Number: the answer
    EndHold,
    End,  // Number: the exit status
  };

  Kind What;
  const Control* On = nullptr;
  const Screen* Where = nullptr;
  int Number = 0;
  double X = 0;
  double Y = 0;
  std::string_view Text{};  // stays while the event is carried out
};

class PlayWatcher {
 public:
  virtual ~PlayWatcher() = default;
  // An event is about to be carried out. What it leads to within the program is no event.
  virtual void Comes(const PlayEvent& event) = 0;
  // It has been carried out, or refused.
  virtual void Went() = 0;
  // Something was done to the program that is no event, as scripts can do.
  virtual void Meddled() = 0;
};

}  // namespace orvane
