-- Writes the save that the minute of play begins with into the folder ORVANE_STATES: Save01.sav, heroes
-- of the third round who know everything, bear everything and hit softly, beside a closed chest.
package.path = package.path .. ";" .. os.getenv("ORVANE_PLAY") .. "/?.lua"
local steps = require "lib.steps"
local records = require "lib.records"

test("soft heroes who bear everything", function()
  steps.field()
  set("Round", 3)
  set("StoryNo", 28)
  for hero = 0, 1 do
    local at = "[" .. hero .. "]"
    for _, name in ipairs { "MaxHP", "MaxMP", "HP", "MP" } do set(name .. at, 20000) end
    set("BaseAttack" .. at, 25)
    set("BaseDefence" .. at, 10)
    set("Spirit" .. at, 2)
  end
  steps.learn_all()
  set("Items[0]", 47)
  set("ItemCount", 1)
  set("MapA", 3)
  set("MapB", 3)
  steps.put(232, 120)
  records.save("Save01.sav")
  local file = assert(io.open(os.getenv("ORVANE_STATES") .. "/Save01.sav", "wb"))
  file:write(read_file("Save01.sav"))
  file:close()
end)
