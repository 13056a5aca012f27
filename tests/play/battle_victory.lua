local steps = require "lib.steps"

local function shown(name) return get("Battle." .. name .. ".Visible") end
local function text(name) return get("Battle." .. name .. ".Caption") end

-- A battle of `count` enemies of a kind, with the record prepared by `prepare_record`.
local function group(kind, count, prepare_record)
  steps.arena((kind - 3) // 5 + 1)
  if prepare_record then prepare_record() end
  steps.battle_with(kind, count)
end

-- The next battle on the same field.
local function next_group(kind, count)
  steps.flatten()
  steps.put(100, 100)
  set("Round", (kind - 3) // 5 + 1)
  steps.battle_with(kind, count)
end

test("a group of four gives four times its experience to each standing hero, undivided", function()
  group(17, 4)
  steps.win()
  steps.state { ["Exp[0]"] = 3564, ["Exp[1]"] = 3564 }
  expect(text("Label21"), "経験値　3564ポイント獲得！")
end)

test("the enemies that fell earlier count too", function()
  group(3, 3)
  steps.leave_alive(2)
  steps.win()
  steps.state { ["Exp[0]"] = 186, ["Exp[1]"] = 186 }
end)

test("the last boss gives a panel of 0 points and no level", function()
  steps.arena()
  steps.last_boss()
  steps.win()
  expect(text("Label21"), "経験値　0ポイント獲得！")
  steps.state { ["Exp[0]"] = 0, ["Level[0]"] = 1, ["Level[1]"] = 1, EnemyKind = 18, LastBossDown = 0,
    ["Battle.Label22(0).Visible"] = false, ["Battle.Label22(1).Visible"] = false }
  steps.leave()
  steps.state { LastBossDown = -1, ["Main.Timer3.Enabled"] = true }
end)

test("the dragon of round 2 gives 20000 points and a proficiency of 40", function()
  steps.arena(2)
  set("BookSkill[0]", 3)
  set("BookSkill[1]", 4)
  steps.boss(0.5, 0.99)
  expect(get("EnemyKind"), 10)
  steps.win()
  expect(text("Label21"), "経験値　20000ポイント獲得！")
  steps.state { EnemyKind = 1, ["Exp[0]"] = 20000, ["Exp[1]"] = 20000, ["WazaUse[2]"] = 40, ["MagicUse[3]"] = 40 }
  steps.leave()
  steps.state { BossFight = -1, ["Main.Timer3.Enabled"] = true, ["Main.Timer1.Enabled"] = false, LastBossDown = 0 }
end)

test("the other dragons give their own points and 20 a round", function()
  for round, points in pairs { [1] = 10000, [3] = 30000 } do
    steps.arena(round)
    set("BookSkill[0]", 1)
    steps.boss()
    steps.win()
    steps.state { ["Exp[0]"] = points, ["WazaUse[0]"] = 20 * round, EnemyKind = round - 1 }
  end
end)

test("row 13 gives 15000 points and a proficiency of 20", function()
  steps.arena(3)
  set("BookSkill[0]", 1)
  set("BookSkill[1]", 1)
  steps.bone_dragon()
  steps.win()
  steps.state { ["Exp[0]"] = 15000, ["Exp[1]"] = 15000, ["WazaUse[0]"] = 20, ["MagicUse[0]"] = 20, EnemyKind = 13 }
end)

test("the last boss gives a proficiency of one a round", function()
  steps.arena()
  set("BookSkill[0]", 1)
  steps.last_boss()
  steps.win()
  expect(get("WazaUse[0]"), 4)
end)

test("a group of 3 on round 2 gives a proficiency of 6, whatever the order of the kills", function()
  for survivor = 1, 3 do
    group(9, 3, function()
      set("BookSkill[0]", 10)
      set("BookSkill[1]", 7)
    end)
    steps.leave_alive(survivor)
    steps.win()
    steps.state { ["WazaUse[9]"] = 6, ["MagicUse[6]"] = 6, ["WazaUse[8]"] = 0, ["WazaUse[6]"] = 0, ["MagicUse[9]"] = 0 }
  end
end)

test("a book trains a skill that is not learned, beyond mastery", function()
  group(3, 4, function()
    set("BookSkill[0]", 2)
    set("WazaUse[1]", 999)
  end)
  expect(get("WazaKnown[1]"), 0)
  steps.win()
  expect(get("WazaUse[1]"), 1003)
end)

test("without a training book nothing is trained", function()
  group(3, 4, function() set("BookSkill[0]", 0) end)
  steps.win()
  for i = 0, 10 do steps.state { ["WazaUse[" .. i .. "]"] = 0, ["MagicUse[" .. i .. "]"] = 0 } end
  expect(shown("Label25(0)"), false)
end)

test("mastery is told at the count and after every further win", function()
  for _, case in ipairs { { 17, false }, { 18, true }, { 19, true }, { 300, true } } do
    group(3, 2, function()
      set("BookSkill[0]", 1)
      set("BookSkill[1]", 1)
      set("WazaUse[0]", case[1])
      set("MagicUse[0]", case[1])
    end)
    steps.win()
    for hero, name in pairs { [0] = "カイ", "リナ" } do
      expect(shown("Label25(" .. hero .. ")"), case[2], case[1] .. " uses")
      if case[2] then expect(text("Label25(" .. hero .. ")"), steps.padded(name, 6) .. " MASTER !") end
    end
  end
end)

test("the mastery message goes with the next win if the book has changed", function()
  group(3, 1, function()
    set("BookSkill[0]", 1)
    set("WazaUse[0]", 100)
  end)
  steps.win()
  expect(shown("Label25(0)"), true)
  steps.leave()
  set("BookSkill[0]", 2)
  next_group(3, 1)
  steps.win()
  expect(shown("Label25(0)"), false)
end)

test("149 points leave the first hero at level 1 and 150 raise him, the second hero needs 155", function()
  for _, case in ipairs { { 99, 1, 1 }, { 100, 2, 1 }, { 104, 2, 1 }, { 105, 2, 2 } } do
    -- One enemy of row 5 gives 50.
    group(5, 1, function()
      set("Exp[0]", case[1])
      set("Exp[1]", case[1])
    end)
    steps.win()
    steps.state({ ["Exp[0]"] = case[1] + 50, ["Level[0]"] = case[2], ["Level[1]"] = case[3],
      ["Battle.Label22(0).Visible"] = case[2] == 2, ["Battle.Label22(1).Visible"] = case[3] == 2 }, case[1] .. " points")
    if case[2] == 2 then expect(text("Label22(0)"), "カイ    LEVEL UP !") end
    if case[3] == 2 then expect(text("Label22(1)"), "リナ    LEVEL UP !") end
  end
end)

-- What the levels from `from` to `to` add to a hero.
local function gains(hero, from, to)
  local sum = { MaxHP = 0, MaxMP = 0, BaseAttack = 0, BaseDefence = 0, Spirit = 0 }
  for level = from + 1, to do
    if hero == 0 then
      sum.MaxHP = sum.MaxHP + 30 + level % 4
      sum.MaxMP = sum.MaxMP + 5 + level % 3
      sum.BaseAttack = sum.BaseAttack + level % 4
      sum.BaseDefence = sum.BaseDefence + level % 3
      sum.Spirit = sum.Spirit + 1 + level % 2
    else
      sum.MaxHP = sum.MaxHP + 25 + level % 3
      sum.MaxMP = sum.MaxMP + 10 + level % 4
      sum.BaseAttack = sum.BaseAttack + level % 3
      sum.BaseDefence = sum.BaseDefence + level % 4
      sum.Spirit = sum.Spirit + 1 + level % 3
    end
  end
  return sum
end

local first_record = {
  [0] = { MaxHP = 120, MaxMP = 10, BaseAttack = 8, BaseDefence = 4, Spirit = 1 },
  { MaxHP = 80, MaxMP = 30, BaseAttack = 4, BaseDefence = 6, Spirit = 12 },
}

test("each of a dozen levels has its own gains, and points and strokes wait", function()
  for target = 2, 13 do
    local needed = { [0] = 150 * (target - 1) ^ 2, 155 * (target - 1) ^ 2 }
    group(5, 1, function()
      for hero = 0, 1 do
        set("Level[" .. hero .. "]", target - 1)
        set("Exp[" .. hero .. "]", math.floor(needed[hero]) - 50)
      end
    end)
    steps.win()
    for hero = 0, 1 do
      local gained = gains(hero, target - 1, target)
      expect(get("Level[" .. hero .. "]"), target)
      for name, value in pairs(first_record[hero]) do
        expect(get(("%s[%d]"):format(name, hero)), value + gained[name], ("level %d, %s[%d]"):format(target, name, hero))
      end
    end
    steps.state { ["HP[0]"] = 120, ["MP[0]"] = 10, ["HP[1]"] = 80, ["MP[1]"] = 30, ["Attack[0]"] = 8, ["Defence[0]"] = 4,
      ["Attack[1]"] = 4, ["Defence[1]"] = 6 }
  end
end)

test("several levels in one win are all taken, with one message", function()
  steps.arena(1)
  steps.boss()
  steps.win()
  -- 10000 points: 150 * 8 * 8 = 9600 fit, 155 * 8 * 8 = 9920 fit, and 9 * 9 do not.
  for hero = 0, 1 do
    expect(get("Level[" .. hero .. "]"), 9)
    local gained = gains(hero, 1, 9)
    for name, value in pairs(first_record[hero]) do
      expect(get(("%s[%d]"):format(name, hero)), value + gained[name], name)
    end
  end
  expect(text("Label22(0)"), "カイ    LEVEL UP !")
  expect(text("Label22(1)"), "リナ    LEVEL UP !")
end)

test("the gains of a level reach the strokes at the next refresh of the panes", function()
  group(5, 1, function() set("Exp[0]", 100) end)
  steps.win()
  steps.state { ["BaseAttack[0]"] = 10, ["Attack[0]"] = 8 }
  steps.leave()
  next_group(5, 1)
  steps.state { ["Attack[0]"] = 10, ["Defence[0]"] = 6, ["Battle.Label12(0).Caption"] = "2",
    ["Battle.Label3(0).Caption"] = "120/152" }
end)

test("the greatest points stop at 9999, the rest of the values do not", function()
  group(5, 1, function()
    set("Exp[0]", 100)
    set("MaxHP[0]", 9990)
    set("MaxMP[0]", 9996)
  end)
  for _, name in ipairs { "BaseAttack", "BaseDefence", "Spirit" } do set(name .. "[0]", 9999) end
  steps.win()
  steps.state { ["MaxHP[0]"] = 9999, ["MaxMP[0]"] = 9999, ["BaseAttack[0]"] = 10001, ["BaseDefence[0]"] = 10001,
    ["Spirit[0]"] = 10000 }
end)

test("level has no limit", function()
  group(5, 1, function()
    set("Level[0]", 100)
    set("Exp[0]", 1500000 - 50)
  end)
  steps.win()
  expect(get("Level[0]"), 101)
end)

test("a fainted hero ends a won battle with 1 point and no experience", function()
  group(3, 2)
  set("HP[1]", 0)
  set("HeroFainted[1]", -1)
  steps.win()
  steps.state { ["HP[1]"] = 1, ["HeroFainted[1]"] = 0, ["Exp[1]"] = 0, ["Exp[0]"] = 124, ["HP[0]"] = 120 }
end)

test("a fainted hero with points enough from before still takes a level", function()
  group(3, 2)
  set("HP[1]", 0)
  set("HeroFainted[1]", -1)
  set("Exp[1]", 155)
  steps.win()
  steps.state { ["Exp[1]"] = 155, ["Level[1]"] = 2, ["Battle.Label22(1).Visible"] = true }
end)

test("only the winner's book gains beside a fainted hero", function()
  group(3, 2, function()
    set("BookSkill[0]", 1)
    set("BookSkill[1]", 1)
  end)
  set("HP[0]", 0)
  set("HeroFainted[0]", -1)
  tab("Battle.SSTab1", 1)
  steps.win()
  steps.state { ["WazaUse[0]"] = 0, ["MagicUse[0]"] = 2, ["HP[0]"] = 1 }
end)

test("a fainted hero's mastery message stays as the last win left it", function()
  group(3, 1, function()
    set("BookSkill[1]", 1)
    set("MagicUse[0]", 100)
  end)
  steps.win()
  expect(shown("Label25(1)"), true)
  steps.leave()
  set("BookSkill[1]", 0)
  next_group(3, 1)
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  steps.win()
  expect(shown("Label25(1)"), true)
end)

test("a level's message goes with the next win", function()
  group(5, 1, function() set("Exp[0]", 100) end)
  steps.win()
  expect(shown("Label22(0)"), true)
  steps.leave()
  next_group(5, 1)
  steps.win()
  expect(shown("Label22(0)"), false)
end)

test("names in the messages are cut to 6 characters, shorter ones keep their blanks", function()
  group(5, 1, function()
    set("HeroName[0]", "ABCDEFGH")
    set("HeroName[1]", "Z       ")
    for hero = 0, 1 do
      set("Exp[" .. hero .. "]", 110)
      set("BookSkill[" .. hero .. "]", 1)
    end
    set("WazaUse[0]", 20)
    set("MagicUse[0]", 20)
  end)
  steps.win()
  expect(text("Label22(0)"), "ABCDEFLEVEL UP !")
  expect(text("Label22(1)"), "Z     LEVEL UP !")
  expect(text("Label25(0)"), "ABCDEF MASTER !")
  expect(text("Label25(1)"), "Z      MASTER !")
end)

test("the panel stands with all buttons off, the actions' timer off, the music going on", function()
  group(3, 1)
  set("Battle.Command5.Enabled", true)
  clear_sounds()
  steps.win()
  for n = 1, 5 do expect(get("Battle.Command" .. n .. ".Enabled"), false, "Command" .. n) end
  steps.state { ["Battle.Timer1.Enabled"] = false, ["Battle.Timer2.Enabled"] = true, HeroesActed = 0, EnemyTurns = 0 }
  expect(steps.sent("play snd7 from 0"), 1)
  wait(100)
  expect(steps.sent("play bgm4 from 0"), 1)
  expect(shown("Picture10"), true)
end)

test("the messages have their colours", function()
  start()
  steps.state { ["Battle.Label21.ForeColor"] = "800080", ["Battle.Label22(0).ForeColor"] = "0000C0",
    ["Battle.Label22(1).ForeColor"] = "C00000", ["Battle.Label25(0).ForeColor"] = "0000FF",
    ["Battle.Label25(1).ForeColor"] = "FF0000" }
end)

test("while an enemy is left nothing is won", function()
  group(3, 2)
  set("EnemyLife[0]", 1)
  steps.strike(1)
  steps.state { ["EnemyAlive[0]"] = 0, ["Battle.Picture10.Visible"] = false, ["Exp[0]"] = 0 }
end)

test("a click on the scene without a panel does nothing", function()
  group(3, 1)
  click("Battle.Picture1", 20, 200)
  expect(active(), "Battle")
  click("Battle.Command1")
  choose("Battle.List2", 1)
  steps.play_to(10)
  click("Battle.Picture1", 20, 200)
  steps.state { ActionKind = 2, ActionState = 10, ["Battle.Timer2.Enabled"] = true }
end)

test("a click on the panel itself does nothing, one beside it leaves", function()
  group(3, 1)
  steps.win()
  for _, point in ipairs { { 48, 8 }, { 200, 50 }, { 385, 102 } } do
    click("Battle.Picture1", point[1], point[2])
    expect(active(), "Battle")
    expect(shown("Picture10"), true)
  end
  click("Battle.Picture1", 386, 50)
  expect(active(), "Main")
end)

test("leaving closes the fight's music and gives the field back", function()
  group(3, 1)
  tick("Battle.Timer2")
  steps.win()
  for _, name in ipairs { "KeyUp", "KeyDown", "KeyLeft", "KeyRight", "KeyDownWaiting" } do set(name, -1) end
  set("HeroBusy[0]", -1)
  set("Battle.SSTab1.TabEnabled(0)", false)
  clear_sounds()
  local x, y = get("HeroX"), get("HeroY")
  steps.leave()
  steps.state {
    ActionKind = 0, ["Battle.Picture10.Visible"] = false, KeyUp = 0, KeyDown = 0, KeyLeft = 0, KeyRight = 0,
    KeyDownWaiting = -1, LastBossDown = 0, ["Battle.Timer2.Enabled"] = false, ["Battle.Visible"] = false,
    ["Battle.Loaded"] = true, ["Battle.Command5.Enabled"] = true, ["HeroBusy[0]"] = 0, ["HeroBusy[1]"] = 0,
    ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = true, ["Main.Visible"] = true,
    ["Main.Timer1.Enabled"] = true, HeroX = x, HeroY = y,
  }
  local sent = sounds()
  expect(#sent, 3)
  for i = 1, 3 do expect(sent[i], "close bgm" .. 3 + i) end
end)

test("the next battle shuts the flight that leaving has opened", function()
  group(3, 1)
  steps.win()
  steps.leave()
  expect(get("Battle.Command5.Enabled"), true)
  next_group(3, 1)
  expect(get("Battle.Command5.Enabled"), false)
end)

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

test("closing the window on the panel keeps what was won and revived", function()
  group(3, 2)
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  steps.win()
  close("Battle")
  steps.state { ["Exp[0]"] = 124, ["HP[1]"] = 1, ["Battle.Loaded"] = false, ["Main.Timer1.Enabled"] = true }
end)

test("a heal or an item cannot end a battle", function()
  group(3, 1, steps.learn_all)
  steps.strengthen()
  steps.kill_all()
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", 3)
  run("Battle.Timer1")
  steps.state { ["Battle.Picture10.Visible"] = false, HeroesActed = 1, ["Exp[0]"] = 0 }
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(48)
  tick("Battle.Timer1")
  steps.state { ["Battle.Picture10.Visible"] = false, ActionKind = 5, EnemyTurns = 0 }
end)
