// The calls that scripts have, by theme. Each of these makes its theme's calls known to a Lua
// state that has its session.
#pragma once

#include <lua.hpp>

namespace orvane {

void RegisterTestCalls(lua_State* lua);     // test, expect, expect_near
void RegisterProgramCalls(lua_State* lua);  // start, get, set, ended, exit_status, ...
void RegisterPlayerCalls(lua_State* lua);   // click, choose, key_down, ...
void RegisterBoxCalls(lua_State* lua);      // answer, boxes
void RegisterTimeCalls(lua_State* lua);     // tick, run, wait, clock
void RegisterChanceCalls(lua_State* lua);   // random, random_left, random_clear, seed
void RegisterSoundCalls(lua_State* lua);    // sounds, clear_sounds, sound_mode, end_sound
void RegisterPictureCalls(lua_State* lua);  // pixel, shown_pixel, paint, save_picture, ...
void RegisterFileCalls(lua_State* lua);     // prepare, read_file, write_file, write_map, ...

}  // namespace orvane
