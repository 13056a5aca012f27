#include "src/frontend/script/run/script_file.h"

#include <lua.hpp>
#include <memory>
#include <optional>

#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/names/place.h"
#include "src/frontend/script/run/session.h"
#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

struct CloseState {
  void operator()(lua_State* lua) const { lua_close(lua); }
};
using StateOwner = std::unique_ptr<lua_State, CloseState>;

// A script may not end the player or start others.
void RemoveUnwanted(lua_State* lua) {
  lua_getglobal(lua, "os");
  for (const char* name : {"exit", "execute"}) {
    lua_pushnil(lua);
    lua_setfield(lua, -2, name);
  }
  lua_pop(lua, 1);
}

// Makes `require` look beside the script first, then in the folder above it, where scripts of
// several folders keep what they share.
void LookBeside(lua_State* lua, const std::string& file) {
  const std::string parent = TextOf(PathOf(file).parent_path());
  const std::string folder = parent.empty() ? std::string(1, '.') : parent;
  lua_getglobal(lua, "package");
  lua_getfield(lua, -1, "path");
  const std::string others = lua_tostring(lua, -1);
  std::string path;
  for (const std::string& place : {folder, folder + "/.."}) {
    for (const char* pattern : {"/?.lua;", "/?/init.lua;"}) path.append(place).append(pattern);
  }
  path += others;
  lua_pop(lua, 1);
  lua_pushlstring(lua, path.data(), path.size());
  lua_setfield(lua, -2, "path");
  lua_pop(lua, 1);
}

void RegisterCalls(lua_State* lua) {
  RegisterTestCalls(lua);
  RegisterProgramCalls(lua);
  RegisterPlayerCalls(lua);
  RegisterBoxCalls(lua);
  RegisterTimeCalls(lua);
  RegisterChanceCalls(lua);
  RegisterSoundCalls(lua);
  RegisterPictureCalls(lua);
  RegisterFileCalls(lua);
}

std::string TextOnTop(lua_State* lua) {
  return lua_type(lua, -1) == LUA_TSTRING ? lua_tostring(lua, -1) : "an error";
}

// Compiles and runs the script's text. Returns what went wrong, empty when nothing did.
std::string RunText(lua_State* lua, const std::string& file, std::string text) {
  // A first line for the shell stays a line, so that the others keep their numbers.
  if (text.rfind('#', 0) == 0) text = std::string("--").append(text);
  lua_pushcfunction(lua, &PlaceMessage);
  if (luaL_loadbuffer(lua, text.data(), text.size(), ("@" + file).c_str()) != LUA_OK) {
    return OnOneLine(WithWholeSource(TextOnTop(lua), file));
  }
  return lua_pcall(lua, 0, 0, 1) == LUA_OK ? "" : TextOnTop(lua);
}

}  // namespace

void RunScript(const std::string& file, const std::filesystem::path& game_folder,
               const std::filesystem::path& record, Tally& tally) {
  const std::optional<std::string> text = ReadWholeFile(PathOf(file));
  if (!text) return tally.Break(file + ":1: expected a script that can be read, found none");
  const StateOwner state(luaL_newstate());
  if (state == nullptr) return tally.Break(file + ":1: expected memory for the script, found none");
  luaL_openlibs(state.get());
  RemoveUnwanted(state.get());
  LookBeside(state.get(), file);
  Session session(state.get(), game_folder, tally);
  if (!record.empty()) session.RecordTo(record);
  SetSession(state.get(), &session);
  RegisterCalls(state.get());
  const std::string failure = RunText(state.get(), file, *text);
  if (!failure.empty()) tally.Break(failure);
}

}  // namespace orvane
