-- An item file of our own, so that no scenario depends on the game's names and values.
local steps = require "lib.steps"

local things = {}

local function record(name, kind, value)
  return string.pack("<i4c20i4i4", 0, steps.padded(name, 20), kind, value)
end

-- Writes fifty records: "Thing NN" of kind 0, but for `changes`, number to { name, kind, value }.
function things.write(changes)
  local bytes = {}
  for n = 1, 50 do
    local change = changes and changes[n]
    if change then
      bytes[n] = record(change[1], change[2], change[3])
    else
      bytes[n] = record(("Thing %02d"):format(n), 0, 0)
    end
  end
  write_file("Item.dat", table.concat(bytes))
end

-- Fills the bag: the numbers in order, then empty slots.
function things.bag(numbers)
  for slot = 0, 19 do set("Items[" .. slot .. "]", numbers[slot + 1] or 99) end
  set("ItemCount", #numbers)
end

return things
