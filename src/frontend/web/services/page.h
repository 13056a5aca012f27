// What the game asks of the page around it.
#pragma once

#include <string>

#include "src/base/direction.h"

namespace orvane {

class Page {
 public:
  virtual ~Page() = default;

  // The time in ms. It stands while the page is not seen.
  virtual double Now() = 0;

  // Keeps a file for good. The page answers by WebGame::Kept, with the same number.
  virtual void Keep(int number, const std::string& name, const std::string& bytes) = 0;

  // A sound file will be wanted soon; it will not be wanted any more.
  virtual void LoadSound(const std::string& alias, const std::string& file) = 0;
  virtual void DropSound(const std::string& alias) = 0;
  // Lets it be heard from its beginning, in so many ms. What the channel plays goes on to its end
  // if it ends just then, and otherwise breaks off.
  virtual void StartSound(const std::string& alias, double delay) = 0;

  // What a game pad does elsewhere than on the field.
  virtual void MoveByPad(Direction direction) = 0;
  virtual void AcceptByPad() = 0;
  virtual void GoBackByPad() = 0;
  virtual void OpenMenusByPad() = 0;
  virtual void TurnByPad(int step) = 0;
};

}  // namespace orvane
