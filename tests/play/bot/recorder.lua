-- Writes down what a player does, so that it can be done again elsewhere, and gives the program the chances that
-- the game draws when its seed is fixed: whoever repeats the record with that seed sees the same game.
--
-- A record is a list of events, each a line of JSON: ["start"], whatever a player does by the name of the call, as
-- in ["click","Main.Command1"], ["tick",TIMER,COUNT] for ticks in a row, ["answer",BUTTON] when a box is answered,
-- and ["file",NAME,BYTES] for a file as it stands when the game has replaced it, in hexadecimal digits.
local draws = require "bot.draws"
local recorder = {}

local enough = 5000 -- more than one event draws
local lines, files, draw, ticking

local function quoted(value)
  return type(value) == "number" and ("%.14g"):format(value) or '"' .. value:gsub('[\\"]', "\\%0") .. '"'
end

local function write(...)
  local words = { ... }
  for index, word in ipairs(words) do words[index] = quoted(word) end
  lines[#lines + 1] = "[" .. table.concat(words, ",") .. "]"
end

local function write_ticks()
  if ticking then write("tick", ticking.timer, ticking.count) end
  ticking = nil
end

local function write_event(...)
  write_ticks()
  write(...)
end

local function provide()
  if random_left() >= enough then return end
  local values = {}
  for index = 1, 200 do values[index] = draw() end
  random(table.unpack(values))
  return provide()
end

local function write_files()
  for _, name in ipairs(list_files("*.sav")) do
    local bytes = read_file(name)
    if files[name] ~= bytes then
      write_event("file", name, (bytes:gsub(".", function(byte) return ("%02x"):format(byte:byte()) end)))
      files[name] = bytes
    end
  end
end

-- Makes the calls that drive the program write themselves down, in all scripts that are loaded, from now on.
function recorder.begin(seed)
  local own = {}
  lines, files = {}, {}
  for _, name in ipairs { "start", "click", "choose", "tab", "enter", "slide", "press", "close", "activate",
    "key_down", "key_up", "tick", "run", "answer", "wait", "seed" } do own[name] = _G[name] end
  local function replace(name, call) rawset(_G, name, call) end

  for _, name in ipairs { "click", "choose", "tab", "enter", "slide", "press", "close", "activate",
    "key_down", "key_up" } do
    replace(name, function(...)
      write_event(name, ...)
      provide()
      own[name](...)
      if not ended() then write_files() end
    end)
  end
  replace("start", function(options)
    if ticking then write_ticks() end
    random_clear()
    draw = draws.from(seed)
    provide()
    write_event("start")
    own.start(options)
    if not (options and options.keep) then
      for _, name in ipairs(list_files("*.sav")) do files[name] = read_file(name) end
    end
  end)
  replace("tick", function(timer, count)
    for _ = 1, count or 1 do
      if not ticking or ticking.timer ~= timer then write_ticks() end
      ticking = ticking or { timer = timer, count = 0 }
      ticking.count = ticking.count + 1
      provide()
      own.tick(timer)
    end
  end)
  replace("run", function(timer)
    local count = 0
    while not ended() and get(timer .. ".Enabled") do
      tick(timer)
      count = count + 1
    end
    return count
  end)
  replace("answer", function(reply)
    own.answer(function()
      local button = type(reply) == "function" and reply() or reply
      write_event("answer", button)
      return button
    end)
  end)
  -- What would let time pass or chance begin anew by itself has no place in a record.
  replace("wait", function() error("a record knows ticks, no time", 2) end)
  replace("seed", function() end)
end

-- All that was written down.
function recorder.text()
  write_ticks()
  return table.concat(lines, "\n") .. "\n"
end

return recorder
