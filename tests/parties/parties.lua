-- Writes the saves that the desktop test loads into the folder ORVANE_STATES: Save01.sav, a party of
-- the second round with things and skills to use, and Save02.sav, heroes that no enemy withstands
-- before the dragon of the third round.
package.path = package.path .. ";" .. os.getenv("ORVANE_PLAY") .. "/?.lua"
local steps = require "lib.steps"
local records = require "lib.records"
local folder = os.getenv("ORVANE_STATES")

local function keep(name)
  records.save(name)
  local file = assert(io.open(folder .. "/" .. name, "wb"))
  file:write(read_file(name))
  file:close()
end

local function party(level, life, force)
  for hero = 0, 1 do
    local at = "[" .. hero .. "]"
    set("Level" .. at, level)
    for _, name in ipairs { "MaxHP", "MaxMP", "HP", "MP" } do set(name .. at, life) end
    set("BaseAttack" .. at, force)
    set("BaseDefence" .. at, force // 2)
    set("Spirit" .. at, force // 2)
  end
  steps.learn_all()
end

local function bag(items)
  for slot, item in ipairs(items) do set("Items[" .. slot - 1 .. "]", item) end
  set("ItemCount", #items)
end

test("a party with things to use", function()
  steps.field()
  set("Round", 2)
  set("StoryNo", 24)
  party(19, 800, 400)
  set("HP[0]", 321)
  set("MP[1]", 45)
  set("WazaUse[0]", 30)
  set("MagicUse[0]", 9999)
  -- His sword, her staff, his armour, hers, two books, all that heals, and a coin.
  bag { 50, 5, 24, 16, 32, 37, 44, 47, 48, 49 }
  keep("Save01.sav")
end)

test("heroes before the dragon of the third round", function()
  steps.field()
  set("Round", 3)
  set("StoryNo", 28)
  party(60, 30000, 500)
  bag { 47, 48, 49 }
  set("MapA", 4)
  set("MapB", 1)
  steps.put(228, 130)
  keep("Save02.sav")
end)
