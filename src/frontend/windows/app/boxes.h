// Message boxes: those that stand on the game's stage, each in a window of its own.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "src/frontend/windows/app/box_window.h"
#include "src/ui/stage.h"

namespace orvane {

class MessageBoxes {
 public:
  // `answer` takes the player's answer to the box in front; `texts` has the language of the boxes,
  // and outlives them.
  MessageBoxes(const Translator& texts, std::function<void(BoxAnswer)> answer)
      : texts_(texts), answer_(std::move(answer)) {}

  // Shows the boxes that have come to stand, in front of `owner`, which may be null, and takes down
  // those that stand no more. The one in front takes input. `enable` lets those input through that
  // lie behind, and is called before a box goes, so that they come to the front and not another
  // program.
  void Follow(const Stage& stage, HWND owner, const std::function<void()>& enable);

  // Shows those that stand anew, in another language.
  void Retranslate() const;

  // The box in front, or null.
  const BoxWindow* Front() const;

 private:
  const Translator& texts_;
  std::function<void(BoxAnswer)> answer_;
  std::map<int, std::unique_ptr<BoxWindow>> shown_;  // by the number on the stage
};

// Shows a sentence in a box of its own, without a game.
void ShowProblem(const std::string& sentence);

}  // namespace orvane
