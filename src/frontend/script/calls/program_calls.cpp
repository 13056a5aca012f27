#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

constexpr const char* kName = "a name";

// start([options])
int Start(Call& call) {
  call.CheckOptions(1, {"folder", "keep"});
  call.TheSession().Start({call.TextOption(1, "folder"), call.Option(1, "keep")});
  return 0;
}

// get(name)
int Get(Call& call) {
  return call.Return(call.TheSession().TheNames().Find(call.Text(1, kName)).Read());
}

// set(name, value)
int Set(Call& call) {
  Session& session = call.TheSession();
  const std::string_view name = call.Text(1, kName);
  const Accessor& accessor = session.TheNames().Find(name);
  if (!accessor.Write) throw ScriptError("what can be set", Quoted(name));
  if (!call.Has(2)) throw ScriptError("a value for " + std::string(name), call.Shown(2));
  const Value value = call.Any(2);
  if (std::holds_alternative<std::monostate>(value)) {
    throw ScriptError("a value for " + std::string(name), call.Shown(2));
  }
  const auto write = [&] { accessor.Write(value); };
  // Opening a tab runs its handler, so this goes in as an event; but an ended program takes none.
  session.Run([&] { session.HasEnded() ? write() : session.TheProgram().Enter(write); });
  return 0;
}

// ended()
int Ended(Call& call) {
  return call.Return(call.TheSession().HasEnded());
}

// exit_status()
int ExitStatus(Call& call) {
  Session& session = call.TheSession();
  if (!session.HasProgram() || session.HasEnded() == false) return call.ReturnNothing();
  return call.Return(session.TheProgram().ExitStatus());
}

// error_kind()
int KindOfError(Call& call) {
  Session& session = call.TheSession();
  if (!session.HasProgram() || !session.TheProgram().Error()) return call.ReturnNothing();
  return call.Return(ErrorKindName(session.TheProgram().Error()->Kind));
}

// error_text()
int TextOfError(Call& call) {
  const std::optional<std::string>& text = call.TheSession().Boxes.TextOfError();
  return text ? call.Return(*text) : call.ReturnNothing();
}

// active()
int Active(Call& call) {
  const Screen* screen = call.TheSession().TheProgram().TheStage().Active();
  return screen != nullptr ? call.Return(screen->Name()) : call.ReturnNothing();
}

}  // namespace

void RegisterProgramCalls(lua_State* lua) {
  Register<&Start>(lua, "start");
  Register<&Get>(lua, "get");
  Register<&Set>(lua, "set");
  Register<&Ended>(lua, "ended");
  Register<&ExitStatus>(lua, "exit_status");
  Register<&KindOfError>(lua, "error_kind");
  Register<&TextOfError>(lua, "error_text");
  Register<&Active>(lua, "active");
}

}  // namespace orvane
