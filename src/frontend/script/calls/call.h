// A call from a script into the player: its arguments, its results, and its errors.
//
// Lua reports errors by jumping, C++ by exceptions, and neither may pass through frames of the
// other. So the routines behind the calls report by exceptions alone, use nothing of Lua that can
// raise an error, and Entry turns what they throw into an error of the script once they are left.
#pragma once

#include <cstdint>
#include <lua.hpp>
#include <string>
#include <string_view>

#include "src/frontend/script/names/value.h"

namespace orvane {

class Session;

class Call {
 public:
  Call(lua_State* lua, Session& session) : lua_(lua), session_(session) {}

  lua_State* Lua() const { return lua_; }
  Session& TheSession() const { return session_; }

  // How many arguments were given, and whether the one counted `at` from 1 was, and is not nil.
  int Count() const { return lua_gettop(lua_); }
  bool Has(int at) const { return lua_type(lua_, at) > LUA_TNIL; }

  // An argument as what it must be; anything else throws ScriptError. `what` says what stands
  // there, "a control's name". The text stays valid during the call.
  std::string_view Text(int at, const char* what) const;
  double Number(int at, const char* what) const;
  int Whole(int at, const char* what) const;  // any 32-bit integer
  int64_t LongWhole(int at, const char* what) const;
  bool IsText(int at) const { return lua_type(lua_, at) == LUA_TSTRING; }
  bool IsFunction(int at) const { return lua_type(lua_, at) == LUA_TFUNCTION; }

  // An argument of any kind: as a value, and as a failure shows it.
  Value Any(int at) const;
  std::string Shown(int at) const;

  // A truth value in the table at `at`, which may be left out; false without it.
  bool Option(int at, const char* key) const;
  // A text in the table at `at`, or nothing.
  std::string TextOption(int at, const char* key) const;
  // Throws ScriptError unless the argument is left out, or a table with no other keys than these.
  void CheckOptions(int at, std::initializer_list<std::string_view> keys) const;

  // Results; each returns 1, the number of results.
  int Return(bool flag) const;
  int Return(int number) const { return Return(int64_t{number}); }
  int Return(int64_t number) const;
  int Return(double number) const;
  int Return(std::string_view text) const;
  int Return(const std::string& text) const { return Return(std::string_view(text)); }
  int Return(const char* text) const { return Return(std::string_view(text)); }
  int Return(const Value& value) const;
  int ReturnNothing() const;  // nil

 private:
  lua_State* lua_;
  Session& session_;
};

// The routine behind a call: returns how many results it has pushed.
using Routine = int (*)(Call& call);

// The session of a Lua state and of all its coroutines.
Session& SessionOf(lua_State* lua);
void SetSession(lua_State* lua, Session* session);

// Runs a routine. Returns -1 when it has failed; then its error is on the stack.
int RunRoutine(lua_State* lua, Routine routine);

// A routine as Lua calls it.
template <Routine routine>
int Entry(lua_State* lua) {
  const int results = RunRoutine(lua, routine);
  return results >= 0 ? results : lua_error(lua);
}

// Makes a call known to scripts.
template <Routine routine>
void Register(lua_State* lua, const char* name) {
  lua_register(lua, name, &Entry<routine>);
}

}  // namespace orvane
