-- Choices and panes that no play of a battle brings about.
local steps = require "lib.steps"
local commands = require "lib.commands"
local skills = require "lib.skills"

test("a row of the list of skills does nothing where neither skill is being chosen", function()
  commands.skilled()
  click("Battle.Command3")
  commands.visible("List1")
  set("ActionKind", 2)
  choose("Battle.List1", 1)
  commands.visible("List1")
  steps.state { ActionKind = 2, HeroesActed = 0, ["Battle.Timer1.Enabled"] = false }
end)

-- The colours of the first hero's or the second's side of the scene.
local function side(hero)
  local found = {}
  for x = 340, 428, 4 do
    for y = 140 + 60 * hero, 195 + 60 * hero, 4 do found[#found + 1] = pixel("Battle.Picture1", x, y) end
  end
  return table.concat(found, " ")
end

test("a hero walks back from a skill only while his own pane is open", function()
  for _, begin in ipairs { skills.begin_waza, skills.begin_magic } do
    for _, row in ipairs { 1, 3 } do
      local hero = begin == skills.begin_waza and 0 or 1
      local changes = {}
      for _, own in ipairs { true, false } do
        skills.tough_group(1)
        steps.strengthen()
        begin(row)
        steps.play_to(44)
        if not own then set("Battle.SSTab1.Tab", 1 - hero) end
        local before = side(hero)
        tick("Battle.Timer1", 2)
        changes[own] = side(hero) ~= before
      end
      expect(changes[true], true, "walks back")
      expect(changes[false], false, "stays out")
    end
  end
end)
