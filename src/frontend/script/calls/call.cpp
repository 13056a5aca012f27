#include "src/frontend/script/calls/call.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "src/frontend/script/names/place.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

constexpr int kRoomForResults = 8;

std::string_view TextAt(lua_State* lua, int at) {
  size_t length = 0;
  const char* text = lua_tolstring(lua, at, &length);
  return {text, length};
}

// Takes the value of a key of the table at `at` onto the stack, and its type.
int PushKey(lua_State* lua, int at, const char* key) {
  lua_pushstring(lua, key);
  return lua_rawget(lua, at);
}

}  // namespace

std::string_view Call::Text(int at, const char* what) const {
  if (!IsText(at)) throw ScriptError(what, Shown(at));
  return TextAt(lua_, at);
}

double Call::Number(int at, const char* what) const {
  if (lua_type(lua_, at) != LUA_TNUMBER) throw ScriptError(what, Shown(at));
  const double number = lua_tonumberx(lua_, at, nullptr);
  if (!std::isfinite(number)) throw ScriptError(what, Shown(at));
  return number;
}

int64_t Call::LongWhole(int at, const char* what) const {
  int whole = 0;
  const int64_t number = lua_tointegerx(lua_, at, &whole);
  if (lua_type(lua_, at) != LUA_TNUMBER || whole == 0) throw ScriptError(what, Shown(at));
  return number;
}

int Call::Whole(int at, const char* what) const {
  const int64_t number = LongWhole(at, what);
  if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
    throw ScriptError(what, Shown(at));
  }
  return static_cast<int>(number);
}

Value Call::Any(int at) const {
  switch (lua_type(lua_, at)) {
    case LUA_TBOOLEAN:
      return lua_toboolean(lua_, at) != 0;
    case LUA_TNUMBER:
      if (lua_isinteger(lua_, at) != 0) return int64_t{lua_tointegerx(lua_, at, nullptr)};
      return lua_tonumberx(lua_, at, nullptr);
    case LUA_TSTRING:
      return std::string(TextAt(lua_, at));
    default:
      return {};
  }
}

std::string Call::Shown(int at) const {
  const int type = lua_type(lua_, at);
  if (type == LUA_TNONE) return "nothing";
  const bool plain =
      type == LUA_TNIL || type == LUA_TBOOLEAN || type == LUA_TNUMBER || type == LUA_TSTRING;
  return plain ? Describe(Any(at)) : std::string("a ") + lua_typename(lua_, type);
}

bool Call::Option(int at, const char* key) const {
  if (lua_type(lua_, at) != LUA_TTABLE) return false;
  const int type = PushKey(lua_, at, key);
  const bool set = lua_toboolean(lua_, -1) != 0;
  lua_pop(lua_, 1);
  if (type != LUA_TNIL && type != LUA_TBOOLEAN) {
    throw ScriptError(std::string("true or false as ") + key,
                      std::string("a ") + lua_typename(lua_, type));
  }
  return set;
}

std::string Call::TextOption(int at, const char* key) const {
  if (lua_type(lua_, at) != LUA_TTABLE) return "";
  const int type = PushKey(lua_, at, key);
  std::string text(type == LUA_TSTRING ? TextAt(lua_, -1) : std::string_view());
  lua_pop(lua_, 1);
  if (type != LUA_TNIL && text.empty()) {
    throw ScriptError(std::string("a text as ") + key,
                      std::string("a ") + lua_typename(lua_, type));
  }
  return text;
}

void Call::CheckOptions(int at, std::initializer_list<std::string_view> keys) const {
  if (!Has(at)) return;
  if (lua_type(lua_, at) != LUA_TTABLE) throw ScriptError("a table of options", Shown(at));
  lua_pushnil(lua_);
  while (lua_next(lua_, at) != 0) {
    lua_pop(lua_, 1);
    const bool is_text = lua_type(lua_, -1) == LUA_TSTRING;
    const std::string key(is_text ? TextAt(lua_, -1) : std::string_view("a key of another kind"));
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) {
      lua_pop(lua_, 1);
      throw ScriptError("a known option", key);
    }
  }
}

int Call::Return(bool flag) const {
  lua_pushboolean(lua_, flag ? 1 : 0);
  return 1;
}

int Call::Return(int64_t number) const {
  lua_pushinteger(lua_, number);
  return 1;
}

int Call::Return(double number) const {
  lua_pushnumber(lua_, number);
  return 1;
}

int Call::Return(std::string_view text) const {
  lua_pushlstring(lua_, text.data(), text.size());
  return 1;
}

int Call::Return(const Value& value) const {
  if (const auto* flag = std::get_if<bool>(&value)) return Return(*flag);
  if (const auto* whole = std::get_if<int64_t>(&value)) return Return(*whole);
  if (const auto* number = std::get_if<double>(&value)) return Return(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return Return(*text);
  return ReturnNothing();
}

int Call::ReturnNothing() const {
  lua_pushnil(lua_);
  return 1;
}

Session& SessionOf(lua_State* lua) {
  return **static_cast<Session**>(lua_getextraspace(lua));
}

void SetSession(lua_State* lua, Session* session) {
  *static_cast<Session**>(lua_getextraspace(lua)) = session;
}

int RunRoutine(lua_State* lua, Routine routine) {
  Session& session = SessionOf(lua);
  std::string error;
  try {
    if (lua_checkstack(lua, kRoomForResults) == 0) throw ScriptError("room on Lua's stack", "none");
    const Session::Caller caller(session, lua);
    Call call(lua, session);
    return routine(call);
  } catch (const ScriptError& failed) {
    error = failed.HasPlace ? failed.Text : PlaceOf(lua) + failed.Text;
  } catch (const std::exception& failed) {
    error = PlaceOf(lua) + failed.what();
  }
  lua_settop(lua, 0);
  lua_pushlstring(lua, error.data(), error.size());
  return -1;
}

}  // namespace orvane
