// Message boxes that a script answers.
#pragma once

#include <deque>
#include <functional>
#include <lua.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "src/frontend/script/run/script_error.h"
#include "src/platform/services.h"

namespace orvane {

class ScriptBoxes : public BoxKeeper {
 public:
  // `give_up` marks the program as ended; it is called before a box without an answer is left.
  ScriptBoxes(lua_State* lua, std::function<void()> give_up)
      : lua_(lua), give_up_(std::move(give_up)) {}
  ~ScriptBoxes() override { ClearAnswers(); }
  ScriptBoxes(const ScriptBoxes&) = delete;
  ScriptBoxes& operator=(const ScriptBoxes&) = delete;

  // Gives the next queued answer. Without one, or with one that the box does not offer, the failure
  // is kept and the program is left by ProgramEnded: it cannot go on.
  BoxAnswer Show(const Box& box) override;
  // Keeps the text; needs no answer.
  void ShowError(const Box& box) override { error_text_ = box.Text; }

  // Forgets the boxes shown.
  void Restart();
  void ClearAnswers();

  // Queues a button, "OK", or the function at `at` of the caller's stack.
  void QueueButton(std::string_view button);
  void QueueFunction(lua_State* lua, int at);

  const std::vector<Box>& Shown() const { return shown_; }
  const std::optional<std::string>& TextOfError() const { return error_text_; }

  // The failure of a box since the last call, once.
  std::optional<ScriptError> TakeFailure();

  // The Lua state or coroutine that runs the program now: functions are called there. Returns the
  // one before.
  lua_State* SetLua(lua_State* lua);

 private:
  struct Answer {
    std::string Button;
    int Function = LUA_NOREF;
  };

  BoxAnswer AnswerTo(const Box& box);
  // Calls a function that answers and returns the button.
  std::string CallFunction(int function);

  lua_State* lua_;
  std::function<void()> give_up_;
  std::deque<Answer> answers_;
  std::vector<Box> shown_;
  std::optional<std::string> error_text_;
  std::optional<ScriptError> failure_;
};

// Whether a text names a button, and the name of a set of buttons: "OK", "OKCancel", "YesNo".
bool IsButton(std::string_view name);
const char* ButtonsName(BoxButtons buttons);

}  // namespace orvane
