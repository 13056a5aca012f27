local steps = require "lib.steps"
local wins = require "lib.wins"
local group, next_group = wins.group, wins.next_group

-- Both heroes act against row 13, which falls to the second action.
local function won_by_second()
  steps.arena()
  steps.bone_dragon()
  steps.strike()
  steps.win()
end

test("a big enemy that falls to the second action keeps its attacks, and none of them plays", function()
  won_by_second()
  steps.state { ActionKind = 5, EnemyTurns = 2, HeroesActed = 0, ["Battle.Timer1.Enabled"] = false,
    ["Battle.Picture10.Visible"] = true }
  steps.leave()
  steps.state { EnemyTurns = 2, ActionKind = 0 }
end)

test("attacks kept from a big enemy are added to the next group's first phase", function()
  won_by_second()
  steps.leave()
  next_group(3, 1)
  steps.strengthen()
  set("EnemyLife[0]", 100000)
  steps.to_enemy_phase()
  expect(get("EnemyTurns"), 3)
  expect(run("Battle.Timer1"), 54)
  steps.to_enemy_phase()
  expect(get("EnemyTurns"), 1, "the first phase only")
end)

test("a dragon keeps one attack for the next battle", function()
  steps.arena()
  steps.boss()
  steps.strike()
  steps.win()
  expect(get("EnemyTurns"), 1)
end)

test("row 13 and the dragons set their attacks outright", function()
  steps.arena()
  steps.strengthen()
  set("EnemyTurns", 2)
  steps.bone_dragon()
  steps.to_enemy_phase()
  expect(get("EnemyTurns"), 2)
  steps.arena()
  steps.strengthen()
  set("EnemyTurns", 2)
  steps.boss()
  steps.to_enemy_phase(0)
  expect(get("EnemyTurns"), 1)
end)

test("with attacks kept a win by the first action keeps its count, and the next battle opens with it", function()
  won_by_second()
  steps.leave()
  next_group(3, 1)
  steps.win()
  steps.state { EnemyTurns = 2, HeroesActed = 1 }
  steps.leave()
  next_group(3, 1)
  steps.strengthen()
  set("EnemyLife[0]", 100000)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  tick("Battle.Timer1", 15)
  steps.state { ActionKind = 5, EnemyTurns = 3, HeroesActed = 0 }
end)

test("a win by the first action without attacks kept starts the next round anew", function()
  group(3, 1)
  steps.win()
  expect(get("HeroesActed"), 0)
  steps.leave()
  next_group(3, 1)
  steps.strike()
  steps.state { ["Battle.Timer1.Enabled"] = false, HeroesActed = 1 }
end)
