#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

// answer(button, ...)
int Answer(Call& call) {
  for (int at = 1; at <= call.Count(); ++at) {
    const bool is_button = call.IsText(at) && IsButton(call.Text(at, "a button"));
    if (!is_button && !call.IsFunction(at)) {
      throw ScriptError(R"("OK", "Cancel", "Yes", "No" or a function)", call.Shown(at));
    }
  }
  ScriptBoxes& boxes = call.TheSession().Boxes;
  for (int at = 1; at <= call.Count(); ++at) {
    if (call.IsFunction(at)) {
      boxes.QueueFunction(call.Lua(), at);
    } else {
      boxes.QueueButton(call.Text(at, "a button"));
    }
  }
  return 0;
}

void SetField(const Call& call, const char* key, const std::string& text) {
  lua_pushstring(call.Lua(), key);
  call.Return(text);
  lua_rawset(call.Lua(), -3);
}

// boxes()
int Boxes(Call& call) {
  lua_newtable(call.Lua());
  lua_Integer count = 0;
  for (const Box& box : call.TheSession().Boxes.Shown()) {
    lua_newtable(call.Lua());
    SetField(call, "text", box.Text);
    SetField(call, "title", box.Title);
    SetField(call, "buttons", ButtonsName(box.Buttons));
    lua_rawseti(call.Lua(), -2, ++count);
  }
  return 1;
}

}  // namespace

void RegisterBoxCalls(lua_State* lua) {
  Register<&Answer>(lua, "answer");
  Register<&Boxes>(lua, "boxes");
}

}  // namespace orvane
