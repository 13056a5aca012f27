-- The page of many journeys: what was found against what was meant.
local page = {}

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

local function median(list) return at(sorted(list), 0.5) end

-- The rows of the table: what, found, target, and whether it is met, nil where there is no target.
function page.rows(logs)
  local rows = {}
  local function row(...) rows[#rows + 1] = { ... } end
  local bands = { { 70, 110 }, { 60, 110 }, { 40, 90 } }
  for round, band in ipairs(bands) do
    local list = each(logs, function(log) return log.fights[round] end)
    local middle = median(list)
    row(("fights in round %d"):format(round), spread(list) .. (", %.0f %% inside"):format(within(list, band[1], band[2])),
      band[1] .. " to " .. band[2], middle >= band[1] and middle <= band[2])
  end
  for round = 1, 3 do
    local list = {}
    for _, log in ipairs(logs) do table.move(log.rounds[round], 1, #log.rounds[round], #list + 1, list) end
    local middle = median(list)
    row(("turns of an ordinary fight, round %d"):format(round), spread(list)
      .. (", %.0f %% inside, %.0f %% shorter"):format(within(list, 2, 4), within(list, 0, 1)),
      "2 to 4", middle >= 2 and middle <= 4)
  end
  for dragon = 1, 4 do
    local turns = each(logs, function(log) return log.dragons[dragon].rounds end)
    local tries = each(logs, function(log) return log.dragons[dragon].tries end)
    local first = within(tries, 1, 1)
    row(("levels at dragon %d, first try"):format(dragon),
      spread(each(logs, function(log) return log.dragons[dragon].levels[1] end)) .. " and "
      .. spread(each(logs, function(log) return log.dragons[dragon].levels[2] end)), "")
    row(("turns against dragon %d"):format(dragon), spread(turns), "6 to 20",
      at(sorted(turns), 0.1) >= 6 and at(sorted(turns), 0.9) <= 20)
    row(("dragon %d beaten at the first try"):format(dragon), ("%.0f %%"):format(first), "60 to 90 %",
      first >= 60 and first <= 90)
  end
  local lost = total(each(logs, function(log) return log.lost_ordinary end))
  local ordinary = total(each(logs, function(log) return log.ordinary end))
  row("game over in ordinary fights", ("%d of %d"):format(lost, ordinary), "under 1 in 200", lost * 200 < ordinary)
  local by_round = {}
  for round = 1, 3 do
    local lost_there = total(each(logs, function(log) return log.lost_in[round] end))
    local won_there = total(each(logs, function(log) return #log.rounds[round] end))
    by_round[round] = ("%d of %d"):format(lost_there, lost_there + won_there)
  end
  row("of them in rounds 1, 2 and 3", table.concat(by_round, ", "), "")
  local unused = {}
  for n = 1, 10 do
    for _, which in ipairs { "waza", "magic" } do
      if total(each(logs, function(log) return log[which][n] end)) == 0 then
        unused[#unused + 1] = (which == "waza" and "technique " or "spell ") .. n
      end
    end
  end
  row("skills never used", #unused == 0 and "none" or table.concat(unused, ", "), "none", #unused == 0)
  for round = 1, 3 do
    local list = each(logs, function(log) return log.longest[round] end)
    row(("longest stretch without news, round %d"):format(round), spread(list), "at most 12 fights",
      at(sorted(list), 0.9) <= 12)
  end
  row("bone dragons beaten, fled from", spread(each(logs, function(log) return log.bones end)) .. ", "
    .. spread(each(logs, function(log) return log.fled end)), "")
  for item = 47, 49 do
    row(("items %d used in fights"):format(item), spread(each(logs, function(log) return log.items[item] end)), "")
  end
  row("game overs against dragons", spread(each(logs, function(log) return log.lost_dragon end)), "")
  row("visits to recovery points", spread(each(logs, function(log) return log.rests end)), "")
  row("steps", spread(each(logs, function(log) return log.steps end)), "")
  return rows
end

-- How often each technique ("waza") or spell ("magic") was used, per journey.
function page.skills(logs, which)
  local rows = {}
  for n = 1, 10 do rows[n] = { n, spread(each(logs, function(log) return log[which][n] end)) } end
  return rows
end

-- The journeys in groups of fifty seeds, by the seeds' order, and all together when there are several.
-- Each group has its title.
local function groups(logs)
  local list, by_number = {}, {}
  for _, log in ipairs(logs) do
    local number = (log.seed - 1) // 50
    if not by_number[number] then
      by_number[number] = { number = number, first = log.seed, last = log.seed }
      list[#list + 1] = by_number[number]
    end
    local group = by_number[number]
    group[#group + 1] = log
    group.first, group.last = math.min(group.first, log.seed), math.max(group.last, log.seed)
  end
  table.sort(list, function(one, other) return one.number < other.number end)
  for _, group in ipairs(list) do group.title = ("seeds %d to %d"):format(group.first, group.last) end
  if #list > 1 then
    list[#list + 1] = table.move(logs, 1, #logs, 1, { title = "together" })
  end
  return list
end

local function line(cells) return "| " .. table.concat(cells, " | ") .. " |" end

-- A table of the page: the rows that `take` makes of each group, a column for each group. A row is what,
-- found, target, met; without `judged` it is what and found.
local function columns(list, head, judged, take)
  local titles, rules, taken = { head }, { "---" }, {}
  for number, group in ipairs(list) do
    titles[#titles + 1], rules[#rules + 1] = group.title, "---"
    taken[number] = take(group)
  end
  if judged then
    titles[#titles + 1], rules[#rules + 1] = "target", "---"
  end
  local lines = { line(titles), "|" .. table.concat(rules, "|") .. "|" }
  for index, row in ipairs(taken[1]) do
    local cells = { row[1] }
    for _, rows in ipairs(taken) do
      local met = rows[index][4]
      cells[#cells + 1] = rows[index][2] .. (met == nil and "" or met and ": met" or ": **missed**")
    end
    if judged then cells[#cells + 1] = row[3] end
    lines[#lines + 1] = line(cells)
  end
  return table.concat(lines, "\n")
end

-- The rows as tables of the page.
function page.table(logs)
  local list = groups(logs)
  return table.concat({
    ("%d journeys. Medians, with the tenth and the ninetieth percentile."):format(#logs), "",
    columns(list, "what", true, page.rows), "",
    columns(list, "technique, times a journey", false, function(group) return page.skills(group, "waza") end), "",
    columns(list, "spell, times a journey", false, function(group) return page.skills(group, "magic") end),
  }, "\n")
end

-- docs/balance.md: `frame` is its text, with a line {table} where the table comes.
function page.text(logs, frame)
  local before, after = frame:match("^(.-){table}(.*)$")
  return before .. page.table(logs) .. after
end

return page
