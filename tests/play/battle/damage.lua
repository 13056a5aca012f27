local steps = require "lib.steps"
local casting = require "lib.casting"
local cast, technique, skilled = casting.cast, casting.technique, casting.skilled

test("the first spell strikes with 12.5 times 8, once mastered 1.3 times as hard, rounded down", function()
  for _, case in ipairs { { 0, 100 }, { 19, 100 }, { 20, 129 }, { 21, 129 } } do
    skilled()
    set("MagicUse[0]", case[1])
    cast(1, 1)
    steps.play_with(26, 0.99, 0.99)
    steps.state { ["MagicDamage[0]"] = case[2], ["Battle.Label15(0).Caption"] = tostring(case[2]) }
    steps.play_to(48)
    expect(get("EnemyLife[0]"), 280)
    tick("Battle.Timer1")
    expect(get("EnemyLife[0]"), 280 - case[2])
  end
end)

test("a spell's spread is a fifth of the level", function()
  for _, case in ipairs { { 4, 100 }, { 6, 108 }, { 50, 172 } } do
    skilled()
    set("Level[1]", case[1])
    cast(1, 1)
    steps.play_with(26, 0.99, 0.99)
    expect(get("MagicDamage[0]"), case[2], "level " .. case[1])
  end
end)

test("a one-target spell takes twice from a big enemy what its number shows", function()
  for _, case in ipairs { { 0, "100", 200 }, { 20, "129", 258 } } do
    for _, enter in ipairs { steps.boss, steps.last_boss, steps.bone_dragon } do
      steps.arena()
      steps.learn_all()
      set("Spirit[1]", 5)
      set("MagicUse[0]", case[1])
      enter()
      local life = get("EnemyLife[4]")
      cast(1, 1)
      steps.play_with(26, 0.99)
      steps.state { ["Battle.Label15(4).Caption"] = case[2], ["Battle.Label15(4).Visible"] = true,
        ["Battle.Label15(0).Visible"] = false }
      steps.play_to(48)
      tick("Battle.Timer1")
      expect(get("EnemyLife[4]"), life - case[3])
    end
  end
end)

test("a big enemy takes a spell on all once, and the empty slot 1 a stale number", function()
  steps.arena()
  steps.learn_all()
  steps.bone_dragon()
  set("Spirit[1]", 5)
  set("MP[1]", 500)
  set("MaxMP[1]", 500)
  set("EnemyLife[0]", 70)
  set("MagicDamage[0]", 20)
  cast(4)
  steps.play_with(26, 0.99)
  steps.state { ["MagicDamage[4]"] = 858, ["MagicDamage[0]"] = 20 }
  steps.play_to(48)
  tick("Battle.Timer1")
  steps.state { ["EnemyLife[4]"] = 42000 - 858, ["EnemyLife[0]"] = 50, ["EnemyAlive[0]"] = 0, ["EnemyAlive[4]"] = -1 }
end)

test("a spell on all strikes every slot, the dead without a number", function()
  skilled(4)
  set("Level[1]", 50)
  steps.leave_alive(1, 2, 4)
  cast(4)
  steps.play_with(26, 0.25, 0.25, 0.25, 0.25, 0.25)
  -- 48 + 2.5 + 2, times 17
  for slot = 1, 4 do
    steps.state { ["MagicDamage[" .. slot - 1 .. "]"] = 892, ["Battle.Label15(" .. slot - 1 .. ").Visible"] = slot ~= 3 }
    expect(get("Battle.Label15(" .. slot - 1 .. ").Caption"), "892")
  end
  for index, life in ipairs { 1000, 892, 1000, 893 } do set("EnemyLife[" .. index - 1 .. "]", life) end
  steps.play_to(44)
  expect(get("Battle.Label15(3).Visible"), true)
  tick("Battle.Timer1")
  for slot = 1, 4 do expect(get("Battle.Label15(" .. slot - 1 .. ").Visible"), false) end
  steps.play_to(48)
  tick("Battle.Timer1")
  steps.state { ["EnemyLife[0]"] = 108, ["EnemyLife[1]"] = 0, ["EnemyAlive[1]"] = 0, ["EnemyLife[2]"] = 108,
    ["EnemyAlive[2]"] = 0, ["EnemyLife[3]"] = 1, ["EnemyAlive[3]"] = -1 }
end)

test("the enemy's defence plays no part in a spell", function()
  steps.arena(2)
  steps.learn_all()
  set("Spirit[1]", 5)
  steps.battle_with(12, 1)
  cast(1, 1)
  steps.play_with(26, 0, 0)
  expect(get("MagicDamage[0]"), 100)
end)

test("a technique adds eight times the attack to its own stroke", function()
  -- Row, uses, draw, damage, with attack 10, spirit 5 against defence 10.
  local cases = {
    { 1, 0, 0.5, 14 * 4 - 20 + 10 + 80 }, { 1, 19, 0.5, 126 }, { 1, 20, 0.5, 62 + 80 },
    { 2, 0, 0.5, 16 * 8 - 20 + 40 + 80 }, { 5, 0, 0, 28 * 20 - 20 + 80 }, { 9, 0, 0.99, 52 * 36 - 20 + 1603 + 80 },
    { 10, 0, 0.5, 92 * 80 - 20 + 1000 }, { 10, 500, 0.5, 10547 },
  }
  for _, case in ipairs(cases) do
    skilled()
    steps.attack(0, 10)
    set("WazaUse[" .. case[1] - 1 .. "]", case[2])
    technique(case[1])
    steps.play_with(26, case[3])
    steps.state({ WazaDamage = case[4], ["EnemyLife[0]"] = 280 }, "technique " .. case[1])
    expect(get("Battle.Label15(0).Caption"), tostring(case[4]))
  end
end)

test("below zero a technique's stroke is rounded down before the attack is added", function()
  skilled()
  steps.attack(0, 1)
  set("Spirit[0]", 1)
  technique(1)
  steps.play_with(26, 0)
  expect(get("WazaDamage"), 3 * 4 - 20 + 8)
  skilled()
  steps.attack(0, 1)
  set("Spirit[0]", 1)
  set("WazaUse[0]", 20)
  technique(1)
  steps.play_with(26, 0)
  expect(get("WazaDamage"), -5 + 8)
end)

test("a technique against a strong defence gives life", function()
  steps.arena(3)
  steps.learn_all()
  steps.attack(0, 1)
  steps.battle_with(14, 1)
  technique(1)
  steps.play_with(26, 0)
  expect(get("WazaDamage"), 3 * 4 - 90 + 8)
  steps.play_to(48)
  tick("Battle.Timer1")
  expect(get("EnemyLife[0]"), 4070)
end)

test("a technique lands on its one target at frame 50", function()
  skilled(3)
  steps.attack(0, 10)
  technique(1, 2)
  steps.play_with(26, 0.5)
  expect(get("Battle.Label15(1).Top"), 224 - 9)
  steps.play_to(34)
  expect(get("Battle.Label15(1).Top"), 224 - 25)
  steps.play_to(48)
  expect(get("Battle.Label15(1).Top"), 224)
  expect(get("Battle.Label15(1).Visible"), false)
  tick("Battle.Timer1")
  steps.state { ["EnemyLife[0]"] = 280, ["EnemyLife[1]"] = 280 - 126, ["EnemyLife[2]"] = 280, HeroesActed = 1,
    ["Battle.SSTab1.Tab"] = 1 }
end)

test("eight times the attack is a 16-bit product", function()
  skilled()
  steps.attack(0, 4095)
  technique(1)
  steps.play_with(26, 0)
  expect(get("WazaDamage"), 4099 * 4 - 20 + 32760)
  skilled()
  steps.attack(0, 4096)
  technique(1)
  steps.play_to(24)
  tick("Battle.Timer1")
  expect(error_kind(), "overflow")
end)

test("magic is paid at the first frame", function()
  skilled()
  cast(2, 1)
  expect(get("MP[1]"), 500)
  tick("Battle.Timer1")
  steps.state { ["MP[1]"] = 484, ["MP[0]"] = 500, ["Battle.Label4(1).Caption"] = "484/500" }
  run("Battle.Timer1")
  technique(3)
  tick("Battle.Timer1")
  steps.state { ["MP[1]"] = 484, ["MP[0]"] = 484 }
  skilled()
  cast(8)
  tick("Battle.Timer1")
  expect(get("MP[1]"), 440)
end)

test("a technique or a spell that fells the last enemy wins at frame 50", function()
  skilled(1)
  set("EnemyLife[0]", 1)
  technique(1)
  steps.play_to(48)
  expect(get("Battle.Picture10.Visible"), false)
  tick("Battle.Timer1")
  steps.state { ["Battle.Picture10.Visible"] = true, ["Battle.Timer1.Enabled"] = false, ["Exp[0]"] = 62 }
  skilled(4)
  cast(4)
  run("Battle.Timer1")
  steps.state { ["Battle.Picture10.Visible"] = true, ["Exp[1]"] = 248 }
end)

test("a spell draws once for a big enemy, and against others once more for each enemy it strikes", function()
  skilled(4)
  set("Level[1]", 50)
  cast(4)
  steps.play_with(26, 0.05, 0.15, 0.25, 0.35, 0.45)
  -- 48 + 2.5 + r, times 17; the first draw serves a big enemy only.
  for slot, value in ipairs { 875, 892, 909, 926 } do expect(get("MagicDamage[" .. slot - 1 .. "]"), value) end
  expect(random_left(), 0)
  skilled(4)
  set("Level[1]", 50)
  cast(1, 2)
  steps.play_with(26, 0.05, 0.15)
  expect(get("MagicDamage[1]"), 108)
  expect(random_left(), 0)
end)
