#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/run/session.h"

namespace orvane {
namespace {

constexpr const char* kAlias = "a channel's name";

// sounds([{status = true}])
int Sounds(Call& call) {
  call.CheckOptions(1, {"status"});
  const bool with_status = call.Option(1, "status");
  lua_newtable(call.Lua());
  lua_Integer count = 0;
  for (const std::string& command : call.TheSession().Sound.Commands(with_status)) {
    call.Return(command);
    lua_rawseti(call.Lua(), -2, ++count);
  }
  return 1;
}

// clear_sounds()
int ClearSounds(Call& call) {
  call.TheSession().Sound.Forget();
  return 0;
}

// sound_mode(alias)
int SoundMode(Call& call) {
  return call.Return(call.TheSession().Sound.Mode(std::string(call.Text(1, kAlias))));
}

// end_sound(alias)
int EndSound(Call& call) {
  call.TheSession().Sound.EndPiece(std::string(call.Text(1, kAlias)));
  return 0;
}

}  // namespace

void RegisterSoundCalls(lua_State* lua) {
  Register<&Sounds>(lua, "sounds");
  Register<&ClearSounds>(lua, "clear_sounds");
  Register<&SoundMode>(lua, "sound_mode");
  Register<&EndSound>(lua, "end_sound");
}

}  // namespace orvane
