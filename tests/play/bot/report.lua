-- What a journey was like, and the table of many journeys.
local rules = require "bot.rules"
local report = {}

local Log = {}
Log.__index = Log

-- The log of one journey.
function report.new(seed)
  local log = setmetatable({ seed = seed, steps = 0, fights = {}, rounds = {}, bones = 0, fled = 0, dragons = {},
    lost_ordinary = 0, lost_dragon = 0, ordinary = 0, items = { [47] = 0, [48] = 0, [49] = 0 }, waza = {}, magic = {},
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
  end
end

-- After a load the levels may be lower than seen before.
function Log:loaded()
  self.loads = self.loads + 1
  for hero = 0, 1 do self.level[hero] = get("Level[" .. hero .. "]") end
end

local function sorted(list)
  local copy = { table.unpack(list) }
  table.sort(copy)
  return copy
end

local function at(list, share)
  if #list == 0 then return 0 end
  return list[math.max(1, math.min(#list, math.ceil(share * #list)))]
end

-- "median (tenth to ninetieth percentile)"
local function spread(list)
  local s = sorted(list)
  return ("%g (%g to %g)"):format(at(s, 0.5), at(s, 0.1), at(s, 0.9))
end

local function each(logs, value)
  local list = {}
  for _, log in ipairs(logs) do list[#list + 1] = value(log) end
  return list
end

local function total(list)
  local sum = 0
  for _, value in ipairs(list) do sum = sum + value end
  return sum
end

local function within(list, low, high)
  local count = 0
  for _, value in ipairs(list) do
    if value >= low and value <= high then count = count + 1 end
  end
  return #list > 0 and 100 * count / #list or 0
end

local function verdict(met) return met and "met" or "**missed**" end

local function median(list) return at(sorted(list), 0.5) end

-- The rows of the table: what, found, target, verdict.
function report.rows(logs)
  local rows = {}
  local function row(...) rows[#rows + 1] = { ... } end
  local bands = { { 70, 110 }, { 60, 110 }, { 40, 90 } }
  for round, band in ipairs(bands) do
    local list = each(logs, function(log) return log.fights[round] end)
    local middle = median(list)
    row(("fights in round %d"):format(round), spread(list) .. (", %.0f %% inside"):format(within(list, band[1], band[2])),
      band[1] .. " to " .. band[2], verdict(middle >= band[1] and middle <= band[2]))
  end
  for round = 1, 3 do
    local list = {}
    for _, log in ipairs(logs) do table.move(log.rounds[round], 1, #log.rounds[round], #list + 1, list) end
    local middle = median(list)
    row(("turns of an ordinary fight, round %d"):format(round), spread(list) .. (", %.0f %% inside"):format(within(list, 2, 4)),
      "2 to 4", verdict(middle >= 2 and middle <= 4))
  end
  for dragon = 1, 4 do
    local turns = each(logs, function(log) return log.dragons[dragon].rounds end)
    local tries = each(logs, function(log) return log.dragons[dragon].tries end)
    local first = within(tries, 1, 1)
    row(("levels at dragon %d, first try"):format(dragon),
      spread(each(logs, function(log) return log.dragons[dragon].levels[1] end)) .. " and "
      .. spread(each(logs, function(log) return log.dragons[dragon].levels[2] end)), "", "")
    row(("turns against dragon %d"):format(dragon), spread(turns), "6 to 20",
      verdict(at(sorted(turns), 0.1) >= 6 and at(sorted(turns), 0.9) <= 20))
    row(("dragon %d beaten at the first try"):format(dragon), ("%.0f %%"):format(first), "60 to 90 %",
      verdict(first >= 60 and first <= 90))
  end
  local lost = total(each(logs, function(log) return log.lost_ordinary end))
  local ordinary = total(each(logs, function(log) return log.ordinary end))
  row("game over in ordinary fights", ("%d of %d"):format(lost, ordinary), "under 1 in 200", verdict(lost * 200 < ordinary))
  local unused = {}
  for n = 1, 10 do
    for _, which in ipairs { "waza", "magic" } do
      if total(each(logs, function(log) return log[which][n] end)) == 0 then
        unused[#unused + 1] = (which == "waza" and "technique " or "spell ") .. n
      end
    end
  end
  row("skills never used", #unused == 0 and "none" or table.concat(unused, ", "), "none", verdict(#unused == 0))
  for round = 1, 3 do
    local list = each(logs, function(log) return log.longest[round] end)
    row(("longest stretch without news, round %d"):format(round), spread(list), "at most 12 fights",
      verdict(at(sorted(list), 0.9) <= 12))
  end
  row("bone dragons beaten, fled from", spread(each(logs, function(log) return log.bones end)) .. ", "
    .. spread(each(logs, function(log) return log.fled end)), "", "")
  for item = 47, 49 do
    row(("items %d used in fights"):format(item), spread(each(logs, function(log) return log.items[item] end)), "", "")
  end
  row("game overs against dragons", spread(each(logs, function(log) return log.lost_dragon end)), "", "")
  row("visits to recovery points", spread(each(logs, function(log) return log.rests end)), "", "")
  row("steps", spread(each(logs, function(log) return log.steps end)), "", "")
  return rows
end

-- How often each skill was used, per journey.
function report.skills(logs)
  local lines = {}
  for n = 1, 10 do
    lines[n] = { n, spread(each(logs, function(log) return log.waza[n] end)),
      spread(each(logs, function(log) return log.magic[n] end)) }
  end
  return lines
end

-- The rows as a table of the page.
function report.table(logs)
  local lines = { ("%d journeys. Medians, with the tenth and the ninetieth percentile."):format(#logs), "",
    "| what | found | target | |", "|---|---|---|---|" }
  for _, row in ipairs(report.rows(logs)) do lines[#lines + 1] = "| " .. table.concat(row, " | ") .. " |" end
  table.move({ "", "| skill | technique used, times a journey | spell used, times a journey |", "|---|---|---|" }, 1, 3,
    #lines + 1, lines)
  for _, row in ipairs(report.skills(logs)) do lines[#lines + 1] = "| " .. table.concat(row, " | ") .. " |" end
  return table.concat(lines, "\n")
end

-- docs/balance.md: `frame` is its text, with a line {table} where the table comes.
function report.page(logs, frame)
  local before, after = frame:match("^(.-){table}(.*)$")
  return before .. report.table(logs) .. after
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
