local steps = require "lib.steps"
local phases = require "lib.phases"
local phase, dragon_phase = phases.phase, phases.dragon_phase

test("a plain attack is a pause, a stroke at frame 16 and the loss at frame 36", function()
  phase(2)
  clear_sounds()
  for frame = 2, 14, 2 do
    tick("Battle.Timer1")
    expect(get("ActionState"), frame)
    expect(get("Battle.Label16(0).Visible"), false)
  end
  expect(#sounds(), 0)
  steps.play_with(16, 0.45)
  expect(#sounds(), 1)
  expect(sounds()[1], "play snd9 from 0")
  steps.state { EnemyRoll = 4, EnemyDamage = 14 + 4 - 2, ["Battle.Label16(0).Caption"] = "16" }
  local tops = { 175, 168, 163, 160, 159, 160, 163, 168, 175, 184 }
  for step, top in ipairs(tops) do
    steps.state({ ActionState = 14 + 2 * step, ["Battle.Label16(0).Visible"] = true, ["Battle.Label16(1).Visible"] = false,
      ["Battle.Label16(0).Top"] = top, ["HP[0]"] = 120, EnemyTurns = 2 }, "step " .. step)
    tick("Battle.Timer1")
  end
  steps.state { ActionState = 0, ["Battle.Label16(0).Visible"] = false, ["HP[0]"] = 104, ["HP[1]"] = 80, EnemyTurns = 1,
    ActionKind = 5, ["Battle.Timer1.Enabled"] = true, ["Battle.Label3(0).Caption"] = "104/120" }
  expect(#sounds(), 1)
  tick("Battle.Timer1")
  expect(get("ActionState"), 2)
end)

test("an even roll strikes the first hero, an odd roll the second, and the roll adds to the stroke", function()
  phase(1)
  set("EnemyTurns", 10)
  for roll = 0, 9 do
    set("HP[0]", 100)
    set("HP[1]", 70)
    steps.enemy_attack(roll)
    -- Defence 4 and 6.
    steps.state({ ["HP[0]"] = roll % 2 == 0 and 100 - (14 + roll - 2) or 100,
      ["HP[1]"] = roll % 2 == 1 and 70 - (14 + roll - 3) or 70 }, "roll " .. roll)
  end
  expect(get("Battle.Timer1.Enabled"), false)
end)

test("the roll counts as often as the round", function()
  steps.arena(3)
  steps.strengthen()
  steps.defence(1, 81)
  steps.battle_with(16, 1)
  steps.to_enemy_phase()
  steps.play_with(16, 0.75)
  steps.state { EnemyRoll = 7, EnemyDamage = 181, ["Battle.Label16(1).Caption"] = "181",
    ["Battle.Label16(0).Visible"] = false, ["Battle.Label16(1).Top"] = 231 }
end)

test("half the defence, rounded down, holds a stroke off, to 0 at the least", function()
  for _, case in ipairs { { 27, 1 }, { 28, 0 }, { 29, 0 }, { 30, 0 }, { 200, 0 } } do
    steps.arena()
    steps.defence(0, case[1])
    steps.battle_with(3, 1)
    steps.to_enemy_phase()
    steps.play_with(16, 0)
    steps.state { EnemyDamage = case[2], ["Battle.Label16(0).Caption"] = tostring(case[2]),
      ["Battle.Label16(0).Visible"] = true }
    steps.play_to(34)
    tick("Battle.Timer1")
    expect(get("HP[0]"), 120 - case[2])
  end
end)

test("four living enemies attack four times, 18 ticks each, all with the strength of the kind", function()
  phase(4)
  steps.strengthen()
  expect(get("EnemyTurns"), 4)
  for left = 3, 0, -1 do
    tick("Battle.Timer1", 7)
    random_clear()
    random((left + 0.5) / 10)
    tick("Battle.Timer1")
    -- Attack 7 of the kind, defence 4 and 6.
    steps.state { EnemyRoll = left, EnemyDamage = 14 + left - (left % 2 == 0 and 2 or 3) }
    tick("Battle.Timer1", 9)
    expect(get("EnemyTurns"), left + 1)
    tick("Battle.Timer1")
    expect(get("EnemyTurns"), left)
  end
  steps.state { ["Battle.Timer1.Enabled"] = false, ActionKind = 0 }
end)

test("dead enemies do not attack", function()
  steps.arena()
  steps.battle_with(3, 4)
  steps.strengthen()
  steps.leave_alive(2, 4)
  steps.strike(2)
  click("Battle.Command1")
  choose("Battle.List2", 2)
  steps.play_to(28)
  tick("Battle.Timer1")
  expect(get("EnemyTurns"), 2)
  expect(run("Battle.Timer1"), 36)
end)

test("in every frame of an attack the four commands are off", function()
  phase(1)
  for _ = 1, 17 do
    for n = 1, 4 do set("Battle.Command" .. n .. ".Enabled", true) end
    tick("Battle.Timer1")
    for n = 1, 4 do expect(get("Battle.Command" .. n .. ".Enabled"), false) end
  end
end)

test("after the enemies both panes are open and the open one's buttons with them", function()
  phase(1)
  expect(get("Battle.SSTab1.Tab"), 0)
  tick("Battle.Timer1", 17)
  steps.state { ["Battle.SSTab1.TabEnabled(0)"] = false, ["Battle.SSTab1.TabEnabled(1)"] = false }
  tick("Battle.Timer1")
  steps.state {
    ActionKind = 0, ActionState = 0, EnemyTurns = 0, HeroesActed = 0, ["Battle.Timer1.Enabled"] = false,
    ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = true, ["Battle.Command1.Enabled"] = true,
    ["Battle.Command2.Enabled"] = false, ["Battle.Command3.Enabled"] = true, ["Battle.Command4.Enabled"] = true,
  }
end)

test("after a round that the second hero opened her pane is open, with the spells", function()
  steps.arena()
  steps.battle_with(3, 1)
  tab("Battle.SSTab1", 1)
  steps.to_enemy_phase()
  run("Battle.Timer1")
  steps.state { ["Battle.SSTab1.Tab"] = 1, ["Battle.Command2.Enabled"] = true, ["Battle.Command3.Enabled"] = false,
    ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = true }
end)

test("a dragon's plain stroke has its own strength and names it as the kind from then on", function()
  dragon_phase(2, 0)
  steps.play_to(14)
  expect(get("EnemyKind"), 8)
  steps.play_with(16, 0.65)
  steps.state { EnemyKind = 1, EnemyDamage = 300 + 12 - 2 }
end)

test("the last boss's plain stroke has the strength of the kind left over", function()
  steps.arena()
  steps.strengthen()
  set("EnemyKind", 17)
  steps.last_boss()
  steps.to_enemy_phase(0)
  steps.play_with(16, 0.55)
  steps.state { EnemyKind = 17, EnemyDamage = 216 + 20 - 3 }
end)
