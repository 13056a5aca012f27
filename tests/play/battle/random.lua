-- Battles played at random beside a model of their rules: after every click and every tick all values,
-- controls, sounds, draws and pictures are what the model says.
local Pair = require "lib.model.pair"

-- Weakens the group now and then, so that battles end in all ways.
local function weaken(m)
  for i = 0, 4 do
    local name = "EnemyLife[" .. i .. "]"
    if m.v["EnemyAlive[" .. i .. "]"] == -1 and math.random() < 0.8 then
      m.v[name] = math.random(1, 3000)
      set(name, m.v[name])
    end
  end
end

local function open_list(m)
  for n = 1, 4 do
    if m.v["Battle.List" .. n .. ".Visible"] then return "List" .. n end
  end
end

local function choose_row(pair, list)
  local m = pair.model
  local row = math.random() < 0.15 and 0 or math.random(0, #m.rows[list] - 1)
  pair:act(("row %d of %s"):format(row, list), function() m:choose(list, row) end,
    function() choose("Battle." .. list, row) end)
end

-- One click of a player who is asked for a command; true when it was flight.
local function command(pair)
  local m = pair.model
  local other = 1 - m:tab()
  local n = ({ 1, 1, 2, 2, 2, 3, 3, 3, 4 })[math.random(9)]
  if math.random(6) == 1 and m.v["Battle.SSTab1.TabEnabled(" .. other .. ")"] then
    pair:act("pane " .. other, function() m:open_tab(other) end, function() tab("Battle.SSTab1", other) end)
  elseif math.random(20) == 1 and m.v["Battle.Command5.Enabled"] then
    pair:act("flight", function() m:command5() end, function() click("Battle.Command5") end)
    return true
  elseif m.v["Battle.Command" .. n .. ".Enabled"] then
    pair:act("command " .. n, function() m["command" .. n](m) end, function() click("Battle.Command" .. n) end)
  end
end

local function tick_both(pair)
  local m = pair.model
  pair:act(("frame after %d of kind %d"):format(m.v.ActionState, m.v.ActionKind), function()
    m:tick()
    if m.wiped then m:warn "全滅しました。" end
  end, function() tick("Battle.Timer1") end)
  if not m.wiped then return false end
  expect(ended(), true)
  expect(exit_status(), 0)
  return true
end

local function close_window(pair)
  local m = pair.model
  pair:act("the window's close", function() m:close() end, function() close("Battle") end)
  expect(get("Battle.Loaded"), false)
  expect(active(), "Main")
end

-- Plays one battle to one of its ends.
local function play(pair)
  local m = pair.model
  pair:enter()
  weaken(m)
  while true do
    if math.random(1200) == 1 then return close_window(pair) end
    if m.v["Battle.Timer1.Enabled"] then
      if tick_both(pair) then return end
    elseif m.v["Battle.Picture10.Visible"] then
      return pair:act("the click beside the panel", function() m:leave() end,
        function() click("Battle.Picture1", 20, 200) end)
    elseif open_list(m) then
      choose_row(pair, open_list(m))
    elseif command(pair) then
      return
    end
  end
end

for seed = 1, 8 do
  test("battles played at random go as the model says, run " .. seed, function()
    math.randomseed(seed)
    local pair
    for _ = 1, 8 do
      if not pair or pair.model.wiped then pair = Pair.new() end
      play(pair)
    end
  end)
end
