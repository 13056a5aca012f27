-- Plays the whole game as a player would, from the title to the last card, once for each seed.
-- ORVANE_SEEDS sets how many seeds; ORVANE_TABLE prints the table for docs/balance.md.
local journey = require "bot.journey"
local report = require "bot.report"

local count = tonumber(os.getenv("ORVANE_SEEDS") or "") or 10
local logs = {}

for number = 1, count do
  test(("seed %d reaches the last card"):format(number), function()
    local log = report.new(number)
    local before = os.clock()
    journey.play(number, log)
    logs[#logs + 1] = log
    print(report.line(log) .. (", %.1f s"):format(os.clock() - before))
    expect(log.loads >= 3, true, "saved and loaded once a round")
  end)
end

test("the table of all journeys", function()
  expect(#logs, count)
  for _, row in ipairs(report.rows(logs)) do
    print("| " .. table.concat(row, " | ") .. " |")
  end
  for _, row in ipairs(report.skills(logs)) do
    print("| " .. table.concat(row, " | ") .. " |")
  end
end)
