// Message boxes, as parts of the model: they stand on the stage until they are answered.
#pragma once

#include <functional>
#include <string>

namespace orvane {

enum class BoxButtons { Ok, OkCancel, YesNo };
enum class BoxAnswer { Ok, Cancel, Yes, No };

// A message box.
struct Box {
  std::string Text{};
  std::string Title{};
  BoxButtons Buttons = BoxButtons::Ok;
  std::string Note{};  // what the front end adds to the text of its own accord; mostly nothing
};

// What a player reads in a box: its text and, apart from it, the note.
std::string ShownText(const Box& box);

// What follows the answer to a box; empty where nothing does.
using AnswerHandler = std::function<void(BoxAnswer)>;

// Whether a box with these buttons has that one.
bool Offers(BoxButtons buttons, BoxAnswer answer);

// What closing a box without pressing a button counts as: Cancel, No, or OK where that is all.
BoxAnswer AnswerOfClosing(BoxButtons buttons);

}  // namespace orvane
