-- Plays the game once, as playthrough.lua does, with the chances of the seed ORVANE_FIRST (1 without it), and
-- records it in the file ORVANE_JOURNEY.
local journey = require "bot.journey"
local recorder = require "bot.recorder"
local report = require "bot.report"

local seed_number = tonumber(os.getenv("ORVANE_FIRST") or "1")

test("a journey is recorded", function()
  local log = report.new(seed_number)
  recorder.begin(seed_number)
  journey.play(seed_number, log)
  local file = assert(io.open(assert(os.getenv("ORVANE_JOURNEY")), "w"))
  file:write(recorder.text())
  file:close()
  print(report.line(log))
end)
