-- Walking: the arrow keys, one step a tick, and what comes between the steps.
local world = require "bot.world"
local fight = require "bot.fight"
local walk = {}

local held

local function hold(direction)
  if held == direction then return end
  if held then key_up(world.keys[held]) end
  held = direction
  if held then key_down(world.keys[held]) end
end

function walk.release() hold(nil) end

-- Keys of a program that has ended are no longer down.
function walk.forget() held = nil end

-- The world as it stands now: of the round, and with the hidden map once nine techniques are known.
function walk.world()
  local round = get("Round")
  for skill = 0, 8 do
    if get("WazaKnown[" .. skill .. "]") == 0 then return world.of(round, false) end
  end
  return world.of(round, round < 4)
end

-- The cell that the party stands on.
function walk.cell(w)
  local a, b = get("MapA"), get("MapB")
  local id = a .. "," .. b
  local index = w.index[get("InBook") ~= 0 and "room " .. id or id]
  if not index then error("the party stands on map " .. id .. ", which is not in the world") end
  return index * 480 + get("HeroX") // 16 * 16 + get("HeroY") // 16
end

-- Whatever stands in the way of walking: a fight, a message. Returns what it was, or nil.
function walk.settle(log)
  if active() == "Battle" then
    if held then held = nil end
    fight.play(log)
    -- Keys let go during the fight never reached the field.
    for _, key in ipairs(world.keys) do
      if active() == "Main" and get("Main.Timer1.Enabled") then key_up(key) end
    end
    return "fight"
  end
  if get("Main.Timer2.Enabled") then
    click("Main.Picture1")
    return "message"
  end
end

-- A party that has just crossed a border to the left or right and would turn back stands too near to it
-- to cross it again: it takes one step further in first.
local function inwards(direction)
  local x = get("HeroX")
  if direction == 3 and x <= 17 then return 4 end
  if direction == 4 and x >= 463 then return 3 end
  return direction
end

-- Walks along the field to `goal`, until there or until something happens. Returns "there",
-- "fight", "message", or "story" when a scene has begun.
function walk.to(w, goal, log, cells)
  local field = world.field(w, goal, cells)
  for _ = 1, 20000 do
    if active() ~= "Main" or get("Main.Timer2.Enabled") then
      hold(nil)
      return walk.settle(log)
    end
    if get("Main.Timer3.Enabled") then return "story" end
    local cell = walk.cell(w)
    local direction = field.direction[cell]
    if not direction then
      error(("no way to %s from map %s, cell %d, %d"):format(goal, w.ids[cell // 480], cell % 480 // 16, cell % 16))
    end
    if direction == 0 then
      hold(nil)
      tick("Main.Timer1")
      return walk.settle(log) or "there"
    end
    hold(inwards(direction))
    tick("Main.Timer1")
    log:step()
  end
  error("lost on the way to " .. goal)
end

-- Paces once along the beat beside a recovery point.
function walk.pace(w, rest, log)
  local beat = world.beat(w, rest)
  for index, cell in ipairs(beat) do
    local outcome = walk.to(w, rest .. " beat " .. index, log, { cell })
    if outcome ~= "there" then return outcome end
  end
end

return walk
