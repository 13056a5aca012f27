local steps = require "lib.steps"

local function caption(hero) return steps.trimmed(get("Battle.SSTab1.TabCaption(" .. hero .. ")")) end

-- Both heroes have struck messengers of the moon (attack 7); their first attack is to come.
local function phase(count)
  steps.arena()
  steps.battle_with(3, count or 1)
  steps.to_enemy_phase()
end

-- The same against the dragon of a round, whose special is decided by `roll`.
local function dragon_phase(round, roll)
  steps.arena(round)
  steps.strengthen()
  steps.boss()
  steps.to_enemy_phase((roll + 0.5) / 5)
end

local function last_phase(roll)
  steps.arena()
  steps.strengthen()
  steps.last_boss()
  steps.to_enemy_phase((roll + 0.5) / 5)
end

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

test("four living enemies attack four times, 18 ticks each", function()
  phase(4)
  steps.strengthen()
  expect(get("EnemyTurns"), 4)
  for left = 3, 0, -1 do
    tick("Battle.Timer1", 17)
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

test("the fire plays 28 ticks: its name, its sound at 16, the numbers from 36 and the loss at 56", function()
  for _, case in ipairs { { 2, 350, 340 }, { 3, 850, 750 } } do
    dragon_phase(case[1], 1)
    set("BreathDamage[0]", 1)
    clear_sounds()
    for frame = 2, 14, 2 do
      tick("Battle.Timer1")
      steps.state { ["Battle.Picture13.Visible"] = true, ["Battle.Label24.Caption"] = "獄　炎" }
    end
    expect(#sounds(), 0)
    for frame = 16, 34, 2 do
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

test("a hero at 0 faints, and the phase's end shuts the pane and counts the round's first action", function()
  phase(2)
  set("HP[0]", 16)
  steps.enemy_attack(4)
  steps.state { ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, EnemyTurns = 1, ["Battle.Timer1.Enabled"] = true, HeroesActed = 0 }
  expect(caption(0), "気絶")
  expect(caption(1), "リナ")
  steps.enemy_attack(1)
  steps.state {
    ["Battle.SSTab1.Tab"] = 1, ["Battle.SSTab1.TabEnabled(0)"] = false, ["Battle.SSTab1.TabEnabled(1)"] = true,
    HeroesActed = 1, ["Battle.Timer1.Enabled"] = false, ["Battle.Command1.Enabled"] = true,
    ["Battle.Command2.Enabled"] = true, ["Battle.Command3.Enabled"] = false, ["Battle.Command4.Enabled"] = true,
  }
end)

test("a hero left with 1 point stands", function()
  phase(1)
  set("HP[0]", 17)
  steps.enemy_attack(4)
  steps.state { ["HP[0]"] = 1, ["HeroFainted[0]"] = 0 }
  expect(caption(0), "カイ")
end)

test("points never show below 0", function()
  phase(1)
  set("HP[1]", 3)
  steps.enemy_attack(9)
  steps.state { ["HP[1]"] = 0, ["HeroFainted[1]"] = -1, ["Battle.Label3(1).Caption"] = "0/80" }
end)

test("when the second hero has fainted the first hero's pane opens", function()
  steps.arena()
  steps.battle_with(3, 1)
  tab("Battle.SSTab1", 1)
  steps.to_enemy_phase()
  expect(get("Battle.SSTab1.Tab"), 1)
  set("HP[1]", 5)
  steps.enemy_attack(3)
  steps.state {
    ["Battle.SSTab1.Tab"] = 0, ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = false,
    HeroesActed = 1, ["Battle.Command2.Enabled"] = false, ["Battle.Command3.Enabled"] = true,
  }
end)

test("with one hero left the round needs a single command", function()
  phase(1)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  for _ = 1, 2 do
    set("HP[1]", 80)
    click("Battle.Command1")
    choose("Battle.List2", 1)
    expect(get("HeroesActed"), 2)
    tick("Battle.Timer1", 15)
    steps.state { ActionKind = 5, EnemyTurns = 1, HeroesActed = 0, ["Battle.SSTab1.Tab"] = 1 }
    steps.enemy_attack(0)
    steps.state { HeroesActed = 1, ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, ["Battle.SSTab1.TabEnabled(0)"] = false }
  end
end)

test("a stroke on a fainted hero shows its number and changes nothing else", function()
  phase(2)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  steps.play_with(16, 0.25)
  steps.state { ["Battle.Label16(0).Caption"] = "14", ["Battle.Label16(0).Visible"] = true }
  steps.play_to(34)
  tick("Battle.Timer1")
  steps.state { ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, ["HP[1]"] = 80 }
end)

test("a special that leaves a hero below 1 makes him faint", function()
  dragon_phase(2, 1)
  steps.play_with(36, 0, 0)
  set("HP[0]", 350)
  set("HP[1]", 341)
  steps.play_to(54)
  tick("Battle.Timer1")
  steps.state { ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, ["HP[1]"] = 1, ["HeroFainted[1]"] = 0, HeroesActed = 1,
    ["Battle.SSTab1.Tab"] = 1 }
  expect(caption(0), "気絶")
end)

test("a hero revived by the standing one gets the pane, and the next phase's end opens both", function()
  phase(1)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(48)
  steps.state { ["HP[0]"] = 120, ["HeroFainted[0]"] = 0 }
  expect(caption(0), "カイ")
  tick("Battle.Timer1")
  steps.state { ["Battle.SSTab1.Tab"] = 0, ActionKind = 5, HeroesActed = 0 }
  steps.enemy_attack(0)
  steps.state { ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = true, HeroesActed = 0,
    ["Battle.Command3.Enabled"] = true }
end)

test("when both have fainted the sounds are closed, the box stands and the program ends", function()
  phase(1)
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  set("HP[0]", 5)
  clear_sounds()
  local during, before
  answer(function()
    during = get("Battle.Timer1.Enabled")
    before = #sounds()
    return "OK"
  end)
  steps.enemy_attack(0)
  expect(during, false)
  expect(ended(), true)
  expect(exit_status(), 0)
  expect(#boxes(), 1)
  expect(boxes()[1].text, "全滅しました。")
  expect(boxes()[1].title, "GAME OVER")
  expect(boxes()[1].buttons, "OK")
  local sent = sounds()
  expect(#sent, 18)
  expect(before, 18, "all before the box")
  expect(sent[1], "play snd9 from 0")
  for n = 1, 7 do expect(sent[1 + n], "close bgm" .. n) end
  for n = 1, 10 do expect(sent[8 + n], "close snd" .. n) end
end)

test("an attack left in the phase is played out though both have fainted", function()
  dragon_phase(3, 0)
  set("HeroFainted[0]", -1)
  set("HP[0]", 0)
  set("HP[1]", 5)
  steps.enemy_attack(1)
  steps.state { ["HeroFainted[1]"] = -1, EnemyTurns = 1 }
  expect(ended(), false)
  expect(#boxes(), 0)
  answer("OK")
  tick("Battle.Timer1", 17)
  expect(ended(), false)
  tick("Battle.Timer1")
  expect(ended(), true)
  expect(boxes()[1].text, "全滅しました。")
end)

test("a special that fells both ends the game", function()
  last_phase(1)
  set("HP[0]", 1000)
  set("HP[1]", 1000)
  answer("OK")
  tick("Battle.Timer1", 28)
  expect(ended(), true)
  expect(exit_status(), 0)
end)

test("with the second hero alone the phase's end opens her spells though the pane did not change", function()
  phase(1)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  tick("Battle.Timer1", 15)
  expect(get("Battle.SSTab1.Tab"), 1)
  tick("Battle.Timer1", 17)
  for n = 1, 4 do expect(get("Battle.Command" .. n .. ".Enabled"), false) end
  set("HP[1]", 80)
  tick("Battle.Timer1")
  steps.state { ["Battle.Command1.Enabled"] = true, ["Battle.Command2.Enabled"] = true,
    ["Battle.Command3.Enabled"] = false, ["Battle.Command4.Enabled"] = true, ["Battle.Timer1.Enabled"] = false }
end)
