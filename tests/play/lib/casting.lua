-- Skills and items with one call.
local steps = require "lib.steps"

-- The second hero casts; `target` for spells 1 and 2.
local function cast(spell, target)
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", spell)
  if target then choose("Battle.List2", target) end
end

local function technique(row, target)
  click("Battle.Command3")
  choose("Battle.List1", row)
  choose("Battle.List2", target or 1)
end

local function use_item(slot, hero)
  click("Battle.Command4")
  choose("Battle.List3", slot)
  choose("Battle.List4", hero + 1)
end

-- Messengers of the moon (life 280, defence 10) against two heroes who know everything.
local function skilled(count)
  steps.arena()
  steps.learn_all()
  steps.battle_with(3, count or 1)
  set("MP[0]", 500)
  set("MP[1]", 500)
  set("MaxMP[0]", 500)
  set("MaxMP[1]", 500)
  set("Spirit[0]", 5)
  set("Spirit[1]", 5)
end

return {
  cast = cast,
  technique = technique,
  use_item = use_item,
  skilled = skilled,
}
