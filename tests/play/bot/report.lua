-- What a journey was like, and how it is kept.
local rules = require "bot.rules"
local report = {}

local Log = {}
Log.__index = Log

-- The log of one journey.
function report.new(seed)
  local log = setmetatable({ seed = seed, steps = 0, fights = {}, rounds = {}, bones = 0, fled = 0, dragons = {},
    lost_ordinary = 0, lost_in = { 0, 0, 0 }, lost_dragon = 0, ordinary = 0,
    items = { [47] = 0, [48] = 0, [49] = 0 }, waza = {}, magic = {},
    since = 0, longest = { 0, 0, 0, 0 }, opened = {}, rests = 0, saves = 0, loads = 0,
    saved = {}, days = {}, level = { [0] = 1, 1 } }, Log)
  for round = 1, 4 do log.fights[round], log.rounds[round] = 0, {} end
  for n = 1, 10 do log.waza[n], log.magic[n] = 0, 0 end
  return log
end

function Log:step() self.steps = self.steps + 1 end
function Log:item(item) self.items[item] = self.items[item] + 1 end
function Log:skill(which, n) self[which][n] = self[which][n] + 1 end

-- A fight has begun.
function Log:met(s)
  self.foe, self.round = s, s.round
  if not s.boss then
    self.fights[s.round] = self.fights[s.round] + 1
    if s.kind ~= rules.bone then self.ordinary = self.ordinary + 1 end
    self.since = self.since + 1
  else
    local dragon = self.dragons[s.round] or { tries = 0 }
    self.dragons[s.round] = dragon
    dragon.levels = dragon.levels or { s.level[0], s.level[1] }
    if not dragon.rounds then -- one beaten before a game over that undid it counts no more
      dragon.tries = dragon.tries + 1
      dragon.won_at = { s.level[0], s.level[1] }
    end
  end
end

-- Something new: a level, a chest, a book.
function Log:news() self.since = 0 end

local function levels(log)
  for hero = 0, 1 do
    local level = get("Level[" .. hero .. "]")
    if level > log.level[hero] then log:news() end
    log.level[hero] = level
  end
end

function Log:won(rounds)
  local s = self.foe
  if s.boss then
    self.dragons[s.round].rounds = rounds
  elseif s.kind == rules.bone then
    self.bones = self.bones + 1
  else
    table.insert(self.rounds[s.round], rounds)
  end
  self.longest[s.round] = math.max(self.longest[s.round], self.since)
  levels(self)
end

-- A flight takes no time and brings nothing: it is counted apart from the fights.
function Log:ran()
  self.fled = self.fled + 1
  self.fights[self.round] = self.fights[self.round] - 1
  self.since = self.since - 1
end

function Log:lost(rounds)
  if self.foe.boss then
    self.lost_dragon = self.lost_dragon + 1
    self.dragons[self.foe.round].lost_in = rounds
  else
    self.lost_ordinary = self.lost_ordinary + 1
    self.lost_in[self.foe.round] = self.lost_in[self.foe.round] + 1
  end
end

-- After a load the levels may be lower than seen before.
function Log:loaded()
  self.loads = self.loads + 1
  for hero = 0, 1 do self.level[hero] = get("Level[" .. hero .. "]") end
end

-- A value of plain tables, numbers and texts as Lua source.
function report.text(value)
  if type(value) ~= "table" then return type(value) == "string" and ("%q"):format(value) or tostring(value) end
  local parts = {}
  for key, each in pairs(value) do
    if type(each) ~= "function" and key ~= "foe" then
      parts[#parts + 1] = "[" .. report.text(key) .. "]=" .. report.text(each)
    end
  end
  return "{" .. table.concat(parts, ",") .. "}"
end

-- One line about one journey.
function report.line(log)
  local parts = { ("seed %d: fights %d/%d/%d"):format(log.seed, log.fights[1], log.fights[2], log.fights[3]) }
  for dragon = 1, 4 do
    local d = log.dragons[dragon]
    if d then
      parts[#parts + 1] = ("dragon %d at %d,%d in %s turns, try %d"):format(dragon, d.won_at[1], d.won_at[2],
        tostring(d.rounds), d.tries)
    end
  end
  parts[#parts + 1] = ("bones %d, fled %d, game overs %d+%d, steps %d"):format(log.bones, log.fled, log.lost_ordinary,
    log.lost_dragon, log.steps)
  return table.concat(parts, "; ")
end

return report
