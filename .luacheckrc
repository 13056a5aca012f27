-- What luacheck knows of the scripts that orvane-script plays: Lua 5.4 and the player's own calls.
std = "lua54+player"
stds.player = {
  read_globals = {
    -- tests
    "test", "expect", "expect_near",
    -- the program and its state
    "start", "get", "set", "ended", "exit_status", "error_kind", "error_text", "active",
    -- what a player does
    "click", "can_click", "choose", "tab", "enter", "slide", "press", "close", "activate",
    "key_down", "key_up", "answer", "boxes",
    -- time
    "tick", "run", "wait", "clock",
    -- chance
    "random", "random_left", "random_clear", "seed",
    -- sound
    "sounds", "clear_sounds", "sound_mode", "end_sound",
    -- pictures
    "pixel", "shown_pixel", "paint", "save_picture", "picture_size",
    -- files of the game folder
    "read_file", "write_file", "delete_file", "write_map", "list_files", "prepare",
  },
}
not_globals = { "os.exit", "os.execute" } -- the player takes them away
exclude_files = { "**/failing/no_lua.lua" }
self = false -- a method need not use its object
max_line_length = 135
