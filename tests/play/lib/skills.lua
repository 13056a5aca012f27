-- Skills and things in battles that go on.
local steps = require "lib.steps"
local skills = {}

-- The factor of a mastered skill: 1.3 in single precision.
local mastery = 1.2999999523162842

local function field_with(changes)
  steps.plain_world()
  for name, value in pairs(changes or {}) do set(name, value) end
end

-- A fight against `count` of row 4 (defence 3) that survive everything.
local function tough_group(count, changes)
  field_with(changes)
  steps.battle_with(4, count)
  for slot = 0, 3 do set("EnemyLife[" .. slot .. "]", 1000000) end
end

local function tough_boss(changes)
  field_with(changes)
  set("BossFight", -1)
  steps.battle(0, 0)
  set("EnemyLife[4]", 1000000)
end

local function begin_waza(row, target)
  steps.learn_all()
  click("Battle.Command3")
  choose("Battle.List1", row)
  choose("Battle.List2", target or 1)
end

local function begin_magic(row, target)
  steps.learn_all()
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", row)
  if row <= 2 then choose("Battle.List2", target or 1) end
end

local function begin_item(slot, hero)
  click("Battle.Command4")
  choose("Battle.List3", slot)
  choose("Battle.List4", hero)
end

-- Frame 26 of the running action, with these draws.
local function reckon(...)
  steps.play_to(24)
  random_clear()
  random(...)
  tick("Battle.Timer1")
  random_clear()
end

local function lost(slot)
  return 1000000 - get("EnemyLife[" .. slot - 1 .. "]")
end

skills.mastery = mastery
skills.field_with = field_with
skills.tough_group = tough_group
skills.tough_boss = tough_boss
skills.begin_waza = begin_waza
skills.begin_magic = begin_magic
skills.begin_item = begin_item
skills.reckon = reckon
skills.lost = lost

return skills
