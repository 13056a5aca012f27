#include <cmath>

#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/names/place.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"
#include "src/frontend/script/run/tally.h"

namespace orvane {
namespace {

// The note that an expectation may carry, as it stands behind its failure.
std::string Note(const Call& call, int at) {
  if (!call.Has(at)) return "";
  return " (" + (call.IsText(at) ? std::string(call.Text(at, "a note")) : call.Shown(at)) + ")";
}

// Calls the function at 2 and returns its failure, empty when there is none.
std::string Failure(const Call& call) {
  lua_State* lua = call.Lua();
  lua_pushcfunction(lua, &PlaceMessage);
  const int handler = lua_gettop(lua);
  lua_pushvalue(lua, 2);
  std::string failure;
  if (lua_pcall(lua, 0, 0, handler) != LUA_OK) {
    const char* text = lua_type(lua, -1) == LUA_TSTRING ? lua_tostring(lua, -1) : "an error";
    failure = text;
  }
  lua_settop(lua, handler - 1);
  return failure;
}

// test(name, function)
int Test(Call& call) {
  Session& session = call.TheSession();
  const std::string name(call.Text(1, "a test's name"));
  if (!call.IsFunction(2)) throw ScriptError("a test's function", call.Shown(2));
  if (session.InTest || session.InEvent()) throw ScriptError("a test by itself", "one in another");
  session.InTest = true;
  const int starts = session.Starts();
  const std::string failure = Failure(call);
  session.InTest = false;
  session.ClearQueues();
  if (session.Starts() != starts) session.Clear();
  if (failure.empty()) {
    session.Results.Pass();
  } else {
    session.Results.Fail(failure + " [" + OnOneLine(name) + "]");
  }
  return 0;
}

// expect(found, wanted [, note])
int Expect(Call& call) {
  if (call.Count() < 2) throw ScriptError("expect(found, wanted)", "one value");
  const std::string note = Note(call, 3);
  if (lua_rawequal(call.Lua(), 1, 2) != 0) return 0;
  throw ScriptError("expected " + call.Shown(2) + ", found " + call.Shown(1) + note);
}

// expect_near(found, wanted, tolerance [, note])
int ExpectNear(Call& call) {
  const double wanted = call.Number(2, "a number that is wanted");
  const double tolerance = call.Number(3, "a tolerance");
  const std::string note = Note(call, 4);
  const bool is_number = lua_type(call.Lua(), 1) == LUA_TNUMBER;
  const double found = is_number ? lua_tonumberx(call.Lua(), 1, nullptr) : 0;
  if (is_number && std::abs(found - wanted) <= tolerance) return 0;
  throw ScriptError("expected " + call.Shown(2) + " within " + call.Shown(3) + ", found " +
                    call.Shown(1) + note);
}

}  // namespace

void RegisterTestCalls(lua_State* lua) {
  Register<&Test>(lua, "test");
  Register<&Expect>(lua, "expect");
  Register<&ExpectNear>(lua, "expect_near");
}

}  // namespace orvane
