// Message boxes that a script answers.
#pragma once

#include <deque>
#include <lua.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "src/ui/box.h"

namespace orvane {

class ScriptBoxes {
 public:
  explicit ScriptBoxes(lua_State* lua) : lua_(lua) {}
  ~ScriptBoxes() { ClearAnswers(); }
  ScriptBoxes(const ScriptBoxes&) = delete;
  ScriptBoxes& operator=(const ScriptBoxes&) = delete;

  // Notes a box that has come and gives the next queued answer; a function that answers runs now.
  // Throws ScriptError without one, or with one that the box does not offer.
  BoxAnswer AnswerTo(const Box& box);
  // Keeps the text of an error's box, which needs no answer.
  void KeepError(const Box& box) { error_text_ = box.Text; }

  // Forgets the boxes shown.
  void Restart();
  void ClearAnswers();

  // Queues a button, "OK", or the function at `at` of the caller's stack.
  void QueueButton(std::string_view button);
  void QueueFunction(lua_State* lua, int at);

  const std::vector<Box>& Shown() const { return shown_; }
  const std::optional<std::string>& TextOfError() const { return error_text_; }

  // The Lua state or coroutine that runs the program now: functions are called there. Returns the
  // one before.
  lua_State* SetLua(lua_State* lua);

 private:
  struct Answer {
    std::string Button;
    int Function = LUA_NOREF;
  };

  // Calls a function that answers and returns the button.
  std::string CallFunction(int function);

  lua_State* lua_;
  std::deque<Answer> answers_;
  std::vector<Box> shown_;
  std::optional<std::string> error_text_;
};

// Whether a text names a button, and the name of a set of buttons: "OK", "OKCancel", "YesNo".
bool IsButton(std::string_view name);
const char* ButtonsName(BoxButtons buttons);

}  // namespace orvane
