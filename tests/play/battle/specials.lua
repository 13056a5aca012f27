local steps = require "lib.steps"
local phases = require "lib.phases"
local dragon_phase, last_phase = phases.dragon_phase, phases.last_phase

test("row 13 attacks twice in every round, with no roll for a special", function()
  steps.arena()
  steps.strengthen()
  steps.bone_dragon()
  for _ = 1, 3 do
    set("BossMove", 3)
    steps.to_enemy_phase(0.3)
    steps.state { ActionKind = 5, EnemyTurns = 2, BossMove = 3 }
    expect(run("Battle.Timer1"), 36)
  end
end)

test("the first dragon attacks once and plainly, whatever the roll", function()
  for roll = 0, 4 do
    dragon_phase(1, roll)
    steps.state({ ActionKind = 5, EnemyTurns = 1, BossMove = roll }, "roll " .. roll)
  end
  expect(run("Battle.Timer1"), 18)
end)

test("the second dragon attacks once, on a roll of 1 with its fire", function()
  for roll = 0, 4 do
    dragon_phase(2, roll)
    steps.state({ ActionKind = roll == 1 and 8 or 5, EnemyTurns = 1, BossMove = roll }, "roll " .. roll)
  end
end)

test("the third dragon attacks twice, on a roll of 1 once with its fire", function()
  for roll = 0, 4 do
    dragon_phase(3, roll)
    steps.state({ ActionKind = roll == 1 and 8 or 5, EnemyTurns = roll == 1 and 1 or 2, BossMove = roll }, "roll " .. roll)
  end
end)

test("the last boss attacks twice, on a roll of 1 once with its special", function()
  for roll = 0, 4 do
    last_phase(roll)
    steps.state({ ActionKind = roll == 1 and 9 or 5, EnemyTurns = roll == 1 and 1 or 2, BossMove = roll }, "roll " .. roll)
  end
end)

test("the roll falls at frame 50 of any other action", function()
  steps.arena(2)
  steps.strengthen()
  steps.boss()
  steps.strike()
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(48)
  random_clear()
  random(0.3)
  tick("Battle.Timer1")
  steps.state { ActionKind = 8, EnemyTurns = 1, BossMove = 1, ["Battle.Timer1.Enabled"] = true }
end)

test("a special in one round leaves the next round to a new roll", function()
  dragon_phase(2, 1)
  run("Battle.Timer1")
  steps.to_enemy_phase(0.5)
  steps.state { ActionKind = 5, EnemyTurns = 1, BossMove = 2 }
end)

test("the fire plays 28 ticks: its name, its sound at 16, the numbers from 36 and the loss at 56", function()
  for _, case in ipairs { { 2, 350, 340 }, { 3, 850, 750 } } do
    dragon_phase(case[1], 1)
    set("BreathDamage[0]", 1)
    clear_sounds()
    for _ = 2, 14, 2 do
      tick("Battle.Timer1")
      steps.state { ["Battle.Picture13.Visible"] = true, ["Battle.Label24.Caption"] = "獄　炎" }
    end
    expect(#sounds(), 0)
    for _ = 16, 34, 2 do
      tick("Battle.Timer1")
      steps.state { ["Battle.Label16(0).Visible"] = false, ["Battle.Label16(1).Visible"] = false }
    end
    expect(#sounds(), 1)
    expect(sounds()[1], "play snd3 from 0")
    expect(get("BreathDamage[0]"), 1)
    steps.play_with(36, 0.99, 0.5)
    steps.state { ["BreathDamage[0]"] = case[2] + 49, ["BreathDamage[1]"] = case[3] + 25 }
    expect(random_left(), 0)
    local tops = { -9, -16, -21, -24, -25, -24, -21, -16, -9, 0 }
    for step, top in ipairs(tops) do
      steps.state { ActionState = 34 + 2 * step, ["Battle.Label16(0).Visible"] = true, ["Battle.Label16(1).Visible"] = true,
        ["Battle.Label16(0).Top"] = 184 + top, ["Battle.Label16(1).Top"] = 240 + top,
        ["Battle.Label16(0).Caption"] = tostring(case[2] + 49), ["Battle.Label16(1).Caption"] = tostring(case[3] + 25),
        ["HP[0]"] = 9000, ["HP[1]"] = 9000, ["Battle.Picture13.Visible"] = true }
      tick("Battle.Timer1")
    end
    steps.state { ActionState = 0, ["HP[0]"] = 9000 - case[2] - 49, ["HP[1]"] = 9000 - case[3] - 25, EnemyTurns = 0,
      ActionKind = 0, ["Battle.Timer1.Enabled"] = false, ["Battle.Picture13.Visible"] = false,
      ["Battle.Label16(0).Visible"] = false, ["Battle.Label16(1).Visible"] = false,
      ["Battle.Label3(0).Caption"] = 9000 - case[2] - 49 .. "/9000" }
    expect(#sounds(), 1)
  end
end)

test("the least and the greatest fire", function()
  dragon_phase(2, 1)
  steps.play_with(36, 0, 0)
  steps.state { ["BreathDamage[0]"] = 350, ["BreathDamage[1]"] = 340 }
  dragon_phase(3, 1)
  steps.play_with(36, 0.999, 0.999)
  steps.state { ["BreathDamage[0]"] = 899, ["BreathDamage[1]"] = 799 }
end)

test("the fire takes no account of defence", function()
  steps.arena(2)
  steps.strengthen()
  steps.defence(0, 5000)
  steps.boss()
  steps.to_enemy_phase(0.3)
  steps.play_with(36, 0, 0)
  steps.play_to(54)
  tick("Battle.Timer1")
  expect(get("HP[0]"), 8650)
end)

test("the last special plays 28 ticks and sounds in each frame from 16 to 34", function()
  last_phase(1)
  clear_sounds()
  for frame = 2, 34, 2 do
    tick("Battle.Timer1")
    steps.state { ["Battle.Picture13.Visible"] = true, ["Battle.Label24.Caption"] = "デス･スプリート",
      ["Battle.Label16(0).Visible"] = false, EnemyTurns = 1 }
    expect(steps.sent("play snd4 from 0"), math.max(0, (frame - 14) // 2))
  end
  steps.play_with(36, 0.99, 0.5)
  steps.state { ["BreathDamage[0]"] = 1299, ["BreathDamage[1]"] = 1150, ["Battle.Label16(0).Caption"] = "1299",
    ["Battle.Label16(1).Caption"] = "1150", ["Battle.Label16(0).Top"] = 175 }
  steps.play_to(54)
  steps.state { ["HP[0]"] = 9000, ["Battle.Label16(1).Visible"] = true, ["Battle.Label16(1).Top"] = 240 }
  tick("Battle.Timer1")
  steps.state { ["HP[0]"] = 7701, ["HP[1]"] = 7850, ActionKind = 0, ActionState = 0, EnemyTurns = 0,
    ["Battle.Picture13.Visible"] = false, ["Battle.Label16(0).Visible"] = false, ["Battle.Label16(1).Visible"] = false,
    ["Battle.Timer1.Enabled"] = false }
  expect(#sounds(), 10)
end)

test("the shake of the last special moves the scene down and up by 20 twips and ends where it began", function()
  last_phase(1)
  steps.play_to(14)
  expect(get("Battle.Picture1.Top"), 8)
  for frame = 16, 34, 2 do
    tick("Battle.Timer1")
    expect_near(get("Battle.Picture1.Top"), (frame // 2) % 2 == 0 and 8 + 20 / 15 or 8, 0.001, "frame " .. frame)
  end
  expect_near(get("Battle.Picture1.Top"), 8, 0.0001)
  steps.play_to(54)
  expect_near(get("Battle.Picture1.Top"), 8, 0.0001)
end)
