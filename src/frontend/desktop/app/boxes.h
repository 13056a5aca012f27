// Message boxes: those that stand on the game's stage, each in a window of its own.
#pragma once

#include <QMessageBox>
#include <QPointer>
#include <functional>
#include <map>
#include <string>

#include "src/frontend/shared/texts/translator.h"
#include "src/ui/stage.h"

namespace orvane {

class MessageBoxes {
 public:
  // `answer` takes the player's answer to the box in front.
  MessageBoxes(const Translator& texts, std::function<void(BoxAnswer)> answer)
      : texts_(texts), answer_(std::move(answer)) {}
  ~MessageBoxes();
  MessageBoxes(const MessageBoxes&) = delete;
  MessageBoxes& operator=(const MessageBoxes&) = delete;

  // Shows the boxes that have come to stand, in front of `parent`, which may be null, and takes
  // down those that stand no more. Returns whether one has been taken down.
  bool Follow(const Stage& stage, QWidget* parent);
  // Gives the boxes that stand their texts anew: the language has changed.
  void Retranslate(const Stage& stage);

 private:
  QMessageBox* Open(const StandingBox& box, QWidget* parent);

  const Translator& texts_;
  std::function<void(BoxAnswer)> answer_;
  std::map<int, QPointer<QMessageBox>> shown_;  // by the number on the stage
};

// Shows a sentence in a box of its own, without a game, until it is answered or the application is
// told to quit.
void ShowProblem(const std::string& sentence);

}  // namespace orvane
