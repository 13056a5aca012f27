-- Makes the saves that the real-window suite loads, in the folder that ORVANE_STATES names:
--   Save01.sav  the party on the first map's chest, with a bag of everything and all skills learnt
--   Save02.sav  the party before the last round's dragon, strong enough to win at one stroke each
package.path = os.getenv("ORVANE_PLAY") .. "/?.lua;" .. package.path
local steps = require "lib.steps"
local records = require "lib.records"

local folder = assert(os.getenv("ORVANE_STATES"), "ORVANE_STATES names no folder")

local function keep(name)
  records.save(name)
  local out = assert(io.open(folder .. "/" .. name, "wb"))
  out:write(read_file(name))
  out:close()
end

local function carry(...)
  local items = { ... }
  for slot = 0, 19 do set("Items[" .. slot .. "]", items[slot + 1] or 99) end
  set("ItemCount", #items)
end

local function chest()
  for column = 0, 29 do
    for row = 0, 15 do
      if get(("MapTile[%d][%d]"):format(column, row)) == 36 then return column, row end
    end
  end
  error("the first map has no chest")
end

local function strong()
  steps.learn_all()
  for hero = 0, 1 do
    for _, name in ipairs { "HP", "MaxHP", "MP", "MaxMP" } do set(name .. "[" .. hero .. "]", 5000) end
    set("BaseAttack[" .. hero .. "]", 3000)
    set("Attack[" .. hero .. "]", 3000)
    set("BaseDefence[" .. hero .. "]", 900)
    set("Defence[" .. hero .. "]", 900)
    set("Spirit[" .. hero .. "]", 40)
  end
end

test("a rich party on a chest", function()
  steps.field()
  local column, row = chest()
  strong()
  for hero = 0, 1 do set("HP[" .. hero .. "]", 300) end
  carry(21, 1, 13, 29, 37, 47, 48)
  steps.put(column * 16, row * 16)
  keep("Save01.sav")
end)

test("a strong party before the dragon", function()
  steps.field()
  strong()
  carry(47, 48)
  set("Round", 3)
  set("StoryNo", 28)
  set("MapA", 4)
  set("MapB", 1)
  steps.put(228, 132)
  keep("Save02.sav")
end)
