-- Plays the whole game as a player would, from the title to the last card, once for each seed.
--
-- tools/balance.sh plays more seeds with it: ORVANE_FIRST and ORVANE_LAST name them, ORVANE_LOGS is
-- the file that takes the logs. With ORVANE_READ, files of logs, it plays nothing and writes the
-- table of them all to the file ORVANE_TABLE, in the text of the file ORVANE_FRAME.
local journey = require "bot.journey"
local report = require "bot.report"
local page = require "bot.page"

local first = tonumber(os.getenv("ORVANE_FIRST") or "1")
local last = tonumber(os.getenv("ORVANE_LAST") or os.getenv("ORVANE_SEEDS") or "10")
local logs = {}

local function save_logs(name)
  local file = assert(io.open(name, "w"))
  file:write("return " .. report.text(logs) .. "\n")
  file:close()
end

if os.getenv("ORVANE_READ") then
  test("the table of all journeys is written", function()
    for name in os.getenv("ORVANE_READ"):gmatch("%S+") do
      for _, log in ipairs(assert(loadfile(name))()) do logs[#logs + 1] = log end
    end
    expect(#logs > 0, true)
    local file = assert(io.open(os.getenv("ORVANE_TABLE"), "w"))
    local frame = assert(io.open(os.getenv("ORVANE_FRAME")))
    file:write(page.text(logs, frame:read("a")))
    frame:close()
    file:close()
  end)
  return
end

for number = first, last do
  test(("seed %d reaches the last card"):format(number), function()
    local log = report.new(number)
    local before = os.clock()
    journey.play(number, log)
    logs[#logs + 1] = log
    print(report.line(log) .. (", %.1f s"):format(os.clock() - before))
    if os.getenv("ORVANE_LOGS") then save_logs(os.getenv("ORVANE_LOGS")) end
    for round = 1, 4 do expect(log.dragons[round] and log.dragons[round].rounds ~= nil, true, "beat dragon " .. round) end
    for round = 1, 3 do expect(log.days[round], true, "played on in a second run of the program in round " .. round) end
    expect(log.saved[4], nil, "never saved on the last stage")
    expect(table.concat(log.opened, " "), "18 18 19", "opened every chest and book chest")
  end)
end

test("the table of all journeys", function()
  expect(#logs, last - first + 1)
  print(page.table(logs))
end)
