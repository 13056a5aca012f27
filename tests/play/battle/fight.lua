local steps = require "lib.steps"

-- A fight against messengers of the moon (life 280, defence 10); the man has attack 10.
local function fight(count)
  steps.arena()
  steps.attack(0, 10)
  steps.battle_with(3, count or 4)
end

local function commit(row)
  click("Battle.Command1")
  choose("Battle.List2", row or 1)
end

local hop = { 135, 128, 123, 120, 119, 120, 123, 128, 135, 144 }

test("a fight takes 15 frames and sounds once, at frame 6", function()
  fight()
  commit()
  clear_sounds()
  for frame = 2, 28, 2 do
    tick("Battle.Timer1")
    expect(get("ActionState"), frame)
    expect(steps.sent("play snd2 from 0"), frame < 6 and 0 or 1, "frame " .. frame)
  end
  tick("Battle.Timer1")
  steps.state { ActionState = 0, ["Battle.Timer1.Enabled"] = false }
  expect(#sounds(), 1)
end)

test("the number appears at frame 6, hops back to its start in ten steps and is hidden at 26", function()
  fight()
  commit()
  for _ = 2, 4, 2 do
    tick("Battle.Timer1")
    expect(get("Battle.Label15(0).Visible"), false)
    expect(get("Battle.Label15(0).Top"), 144)
  end
  steps.play_with(6, 0.5)
  for step, top in ipairs(hop) do
    expect(get("ActionState"), 4 + 2 * step)
    expect(get("Battle.Label15(0).Visible"), true)
    expect(get("Battle.Label15(0).Top"), top, "step " .. step)
    expect(get("Battle.Label15(0).Caption"), "82")
    tick("Battle.Timer1")
  end
  expect(get("ActionState"), 26)
  expect(get("Battle.Label15(0).Visible"), false)
  run("Battle.Timer1")
  expect(get("Battle.Label15(0).Top"), 144)
end)

test("each slot has its own number, and only that of the target hops", function()
  fight()
  local starts = { [0] = 144, 224, 144, 224, 192 }
  for row = 1, 4 do
    commit(row)
    steps.play_to(14)
    for index = 0, 4 do
      expect(get("Battle.Label15(" .. index .. ").Visible"), index == row - 1)
      expect(get("Battle.Label15(" .. index .. ").Top"), starts[index] - (index == row - 1 and 25 or 0))
    end
    run("Battle.Timer1")
    if row % 2 == 0 then expect(get("ActionKind"), 0, "the enemies have struck") end
  end
end)

test("a stroke is ten times the attack less twice the defence, and a spread of five a level", function()
  for _, case in ipairs { { 0, 1, 80 }, { 0.21, 1, 81 }, { 0.41, 1, 82 }, { 0.99, 1, 84 }, { 0.99, 7, 114 }, { 0.5, 7, 97 } } do
    fight(1)
    set("Level[0]", case[2])
    commit()
    steps.play_with(6, case[1])
    steps.state { AttackDamage = case[3], ["EnemyLife[0]"] = 280 }
    expect(random_left(), 0)
    expect(get("Battle.Label15(0).Caption"), tostring(case[3]))
    random(0.99, 0.99, 0.99)
    steps.play_to(28)
    steps.state { AttackDamage = case[3], ["EnemyLife[0]"] = 280 }
    expect(random_left(), 3, "one draw an action")
    random_clear()
    tick("Battle.Timer1")
    expect(get("EnemyLife[0]"), 280 - case[3])
  end
end)

test("the second hero strikes with her own attack and level", function()
  fight()
  steps.attack(1, 6)
  set("Level[1]", 3)
  tab("Battle.SSTab1", 1)
  commit(2)
  steps.play_with(6, 0.99)
  steps.state { AttackDamage = 60 - 20 + 14 }
  run("Battle.Timer1")
  steps.state { ["EnemyLife[1]"] = 280 - 54, ["EnemyLife[0]"] = 280 }
end)

test("a stroke below the defence has a negative number and gives the enemy life", function()
  fight(1)
  steps.attack(0, 1)
  commit()
  steps.play_with(6, 0.3)
  expect(get("Battle.Label15(0).Caption"), "-9")
  run("Battle.Timer1")
  steps.state { ["EnemyLife[0]"] = 289, ["EnemyAlive[0]"] = -1 }
end)

test("an enemy falls at 0 exactly and lives at 1", function()
  for _, case in ipairs { { 81, -1, 1 }, { 80, 0, 0 }, { 79, 0, -1 } } do
    fight(2)
    set("EnemyLife[1]", case[1])
    commit(2)
    steps.play_with(6, 0)
    steps.play_to(28)
    expect(get("EnemyAlive[1]"), -1)
    tick("Battle.Timer1")
    steps.state { ["EnemyAlive[1]"] = case[2], ["EnemyLife[1]"] = case[3], ["EnemyAlive[0]"] = -1 }
  end
end)

test("a big enemy is struck in slot 5, whatever its defence row, with the middle number", function()
  steps.arena()
  steps.attack(0, 100)
  steps.bone_dragon()
  commit(1)
  steps.play_with(6, 0)
  steps.state { AttackDamage = 1000 - 300, ["Battle.Label15(4).Visible"] = true, ["Battle.Label15(0).Visible"] = false,
    ["Battle.Label15(4).Caption"] = "700", ["Battle.Label15(4).Top"] = 183 }
  steps.play_to(14)
  expect(get("Battle.Label15(4).Top"), 167)
  run("Battle.Timer1")
  steps.state { ["EnemyLife[4]"] = 42000 - 700, ["Battle.Label15(4).Visible"] = false, ["Battle.Label15(4).Top"] = 192 }
end)

test("until a dragon has struck its defence is that of the rolled kind", function()
  steps.arena()
  steps.strengthen()
  steps.attack(0, 20)
  steps.boss(0.1)
  expect(get("EnemyKind"), 3)
  commit()
  steps.play_with(6, 0)
  expect(get("AttackDamage"), 200 - 20)
  run("Battle.Timer1")
  commit()
  steps.play_to(28)
  tick("Battle.Timer1")
  steps.enemy_attack(0)
  expect(get("EnemyKind"), 0)
  commit()
  steps.play_with(6, 0)
  expect(get("AttackDamage"), 200 - 50)
end)

test("after the first hero's stroke the second is asked", function()
  fight()
  commit()
  steps.play_to(28)
  steps.state { ["Battle.SSTab1.Tab"] = 0, ["Battle.Command1.Enabled"] = false, ["Battle.List2.ListCount"] = 5 }
  tick("Battle.Timer1")
  steps.state {
    ["Battle.SSTab1.Tab"] = 1, ["Battle.SSTab1.TabEnabled(0)"] = false, ["Battle.SSTab1.TabEnabled(1)"] = true,
    ["Battle.Command1.Enabled"] = true, ["Battle.Command2.Enabled"] = true, ["Battle.Command3.Enabled"] = false,
    ["Battle.Command4.Enabled"] = true, ["Battle.Timer1.Enabled"] = false, ActionState = 0, ActionKind = 2,
    HeroesActed = 1, ["Battle.List2.ListCount"] = 0,
  }
end)

test("after the second hero's stroke the first is asked, when she went first", function()
  fight()
  tab("Battle.SSTab1", 1)
  steps.strike()
  steps.state {
    ["Battle.SSTab1.Tab"] = 0, ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = false,
    ["Battle.Command1.Enabled"] = true, ["Battle.Command2.Enabled"] = false, ["Battle.Command3.Enabled"] = true,
    ["Battle.Command4.Enabled"] = true, ["Battle.Timer1.Enabled"] = false, HeroesActed = 1,
  }
end)

test("after both strokes the enemies are on, with the timer running and both panes shut", function()
  fight(3)
  steps.strike()
  commit()
  steps.play_to(28)
  tick("Battle.Timer1")
  steps.state {
    ActionKind = 5, ActionState = 0, HeroesActed = 0, EnemyTurns = 3, ["HeroBusy[0]"] = 0, ["HeroBusy[1]"] = 0,
    ["Battle.SSTab1.TabEnabled(0)"] = false, ["Battle.SSTab1.TabEnabled(1)"] = false, ["Battle.Timer1.Enabled"] = true,
    ["Battle.List2.ListCount"] = 0,
  }
  tick("Battle.Timer1")
  expect(get("ActionState"), 2)
end)

test("beside a fainted hero the pane stays, and one action brings the enemies", function()
  fight(1)
  set("HeroFainted[1]", -1)
  set("HeroesActed", 1)
  commit()
  steps.play_to(28)
  tick("Battle.Timer1")
  steps.state { ActionKind = 5, EnemyTurns = 1, ["Battle.SSTab1.Tab"] = 0 }
end)

test("beside a fainted hero a stroke that leaves the round open keeps his tab shut", function()
  fight(1)
  set("HeroFainted[0]", -1)
  tab("Battle.SSTab1", 1)
  commit()
  run("Battle.Timer1")
  steps.state { ["Battle.SSTab1.Tab"] = 1, ["Battle.SSTab1.TabEnabled(1)"] = true,
    ["Battle.SSTab1.TabEnabled(0)"] = false, ["Battle.Command2.Enabled"] = true, HeroesActed = 1 }
end)

test("the last enemy's fall ends the battle at once, though the pane has passed to the other hero", function()
  fight(1)
  set("EnemyLife[0]", 1)
  steps.strike()
  steps.state {
    ["Battle.Picture10.Visible"] = true, ["Battle.SSTab1.Tab"] = 1, ["Battle.Timer1.Enabled"] = false,
    ["Battle.Command1.Enabled"] = false, ["Battle.Command2.Enabled"] = false, ["Battle.Command3.Enabled"] = false,
    ["Battle.Command4.Enabled"] = false, ["Battle.Command5.Enabled"] = false, ActionState = 0, EnemyTurns = 0,
  }
end)

test("an ordinary group that falls to the second action does not strike", function()
  fight(1)
  set("EnemyLife[0]", 85)
  steps.strike()
  steps.strike()
  steps.state { ["Battle.Picture10.Visible"] = true, EnemyTurns = 0, HeroesActed = 0, ["Battle.Timer1.Enabled"] = false,
    ActionState = 0, ["HP[0]"] = 120, ["HP[1]"] = 80 }
end)

test("at any interval an action has the same frames", function()
  for _, interval in ipairs { 1, 15, 60 } do
    fight(1)
    set("Battle.Timer1.Interval", interval)
    commit()
    wait(15 * interval - 1)
    expect(get("ActionState"), 28, "interval " .. interval)
    wait(1)
    steps.state { ActionState = 0, ["Battle.Timer1.Enabled"] = false }
  end
end)

test("ten times an attack of 3276 is a number, of 3277 an overflow that ends the program", function()
  fight(1)
  steps.attack(0, 3276)
  commit()
  steps.play_with(6, 0)
  expect(get("AttackDamage"), 32740)
  fight(1)
  steps.attack(0, 3277)
  commit()
  tick("Battle.Timer1", 2)
  expect(ended(), false)
  tick("Battle.Timer1")
  expect(ended(), true)
  expect(error_kind(), "overflow")
end)
