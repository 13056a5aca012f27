local steps = require "lib.steps"
local wins = require "lib.wins"
local shown, text, group, next_group = wins.shown, wins.text, wins.group, wins.next_group

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
  group(5, 1, function()
    set("Exp[0]", 110)
    set("Exp[1]", 110)
  end)
  steps.win()
  expect(shown("Label22(0)"), true)
  expect(shown("Label22(1)"), true)
  steps.leave()
  next_group(5, 1)
  steps.win()
  expect(shown("Label22(0)"), false)
  expect(shown("Label22(1)"), false)
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
