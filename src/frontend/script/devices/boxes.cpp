#include "src/frontend/script/devices/boxes.h"

#include <array>
#include <utility>

#include "src/frontend/script/names/place.h"
#include "src/frontend/script/names/value.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

struct ButtonName {
  std::string_view Name;
  BoxAnswer Answer;
};

constexpr std::array<ButtonName, 4> kButtons = {{
    {"OK", BoxAnswer::Ok},
    {"Cancel", BoxAnswer::Cancel},
    {"Yes", BoxAnswer::Yes},
    {"No", BoxAnswer::No},
}};

constexpr int kRoomForCall = 8;  // slots of Lua's stack that a call of a function takes

std::string Described(const Box& box) {
  return "the box " + Quoted(box.Text) + " (" + ButtonsName(box.Buttons) + ")";
}

}  // namespace

BoxAnswer ScriptBoxes::AnswerTo(const Box& box) {
  shown_.push_back(box);
  if (answers_.empty()) throw ScriptError("an answer queued for " + Described(box), "none");
  const Answer answer = std::move(answers_.front());
  answers_.pop_front();
  const std::string button =
      answer.Function == LUA_NOREF ? answer.Button : CallFunction(answer.Function);
  for (const ButtonName& known : kButtons) {
    if (known.Name == button && Offers(box.Buttons, known.Answer)) return known.Answer;
  }
  throw ScriptError("an answer that " + Described(box) + " offers", Quoted(button));
}

std::string ScriptBoxes::CallFunction(int function) {
  lua_State* lua = lua_;
  if (lua_checkstack(lua, kRoomForCall) == 0) throw ScriptError("room on Lua's stack", "none");
  const int top = lua_gettop(lua);
  lua_pushcfunction(lua, &PlaceMessage);
  lua_rawgeti(lua, LUA_REGISTRYINDEX, function);
  luaL_unref(lua, LUA_REGISTRYINDEX, function);
  const int status = lua_pcall(lua, 0, 1, top + 1);
  size_t length = 0;
  const int type = lua_type(lua, -1);
  const char* text = type == LUA_TSTRING ? lua_tolstring(lua, -1, &length) : "";
  std::string result(text, length);
  lua_settop(lua, top);
  if (status != LUA_OK) throw ScriptError::At(std::move(result));
  if (type != LUA_TSTRING) {
    throw ScriptError("a button from the function that answers",
                      std::string("a value of type ") + lua_typename(lua, type));
  }
  return result;
}

void ScriptBoxes::Restart() {
  shown_.clear();
  error_text_.reset();
}

void ScriptBoxes::ClearAnswers() {
  for (const Answer& answer : answers_) luaL_unref(lua_, LUA_REGISTRYINDEX, answer.Function);
  answers_.clear();
}

void ScriptBoxes::QueueButton(std::string_view button) {
  answers_.push_back({std::string(button), LUA_NOREF});
}

void ScriptBoxes::QueueFunction(lua_State* lua, int at) {
  lua_pushvalue(lua, at);
  answers_.push_back({"", luaL_ref(lua, LUA_REGISTRYINDEX)});
}

lua_State* ScriptBoxes::SetLua(lua_State* lua) {
  return std::exchange(lua_, lua);
}

bool IsButton(std::string_view name) {
  for (const ButtonName& known : kButtons) {
    if (known.Name == name) return true;
  }
  return false;
}

const char* ButtonsName(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok:
      return "OK";
    case BoxButtons::OkCancel:
      return "OKCancel";
    case BoxButtons::YesNo:
      return "YesNo";
  }
  return "";
}

}  // namespace orvane
