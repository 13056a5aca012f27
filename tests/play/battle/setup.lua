local steps = require "lib.steps"

test("the screen's controls stand where they belong", function()
  start()
  expect(get("Battle.Caption"), "BATTLE !")
  expect(get("Battle.Width"), 454)
  expect(get("Battle.Height"), 396)
  local places = {
    Picture1 = { 8, 8, 436, 268 }, Frame1 = { 8, 280, 153, 105 }, Command1 = { 8, 32, 65, 33 },
    Command2 = { 72, 32, 65, 33 }, Command3 = { 8, 64, 65, 33 }, Command4 = { 72, 64, 65, 33 },
    Command5 = { 80, 16, 49, 12 }, List1 = { 8, 280, 193, 100 }, List2 = { 8, 280, 153, 100 },
    List3 = { 8, 280, 153, 100 }, List4 = { 8, 280, 153, 100 }, SSTab1 = { 168, 288, 281, 99 },
    Picture10 = { 48, 8, 338, 95 }, Picture13 = { 0, 16, 202, 50 }, Picture9 = { 216, 16, 202, 50 },
    ["Label15(0)"] = { 24, 144, 73, 17 }, ["Label15(1)"] = { 48, 224, 73, 17 },
    ["Label15(2)"] = { 152, 144, 73, 17 }, ["Label15(3)"] = { 176, 224, 73, 17 },
    ["Label15(4)"] = { 112, 192, 73, 17 }, ["Label16(0)"] = { 344, 184, 37, 16 },
    ["Label16(1)"] = { 360, 240, 37, 16 }, Label21 = { 16, 8, 305, 25 }, ["Label22(0)"] = { 8, 40, 145, 17 },
    ["Label22(1)"] = { 176, 40, 145, 17 }, ["Label25(0)"] = { 8, 64, 145, 17 },
    ["Label25(1)"] = { 176, 64, 145, 17 }, Picture4 = { 224, 24, 50, 50 }, Picture5 = { 224, 24, 50, 50 },
  }
  for name, place in pairs(places) do
    for i, property in ipairs { "Left", "Top", "Width", "Height" } do
      expect(get("Battle." .. name .. "." .. property), place[i], name .. "." .. property)
    end
  end
  for hero = 0, 1 do
    local values = { Label3 = { 48, 40, 73, 17 }, Label4 = { 48, 64, 73, 17 }, Label8 = { 176, 40, 41, 17 },
      Label9 = { 176, 56, 41, 17 }, Label10 = { 176, 72, 41, 17 }, Label12 = { 248, 80, 25, 17 } }
    for name, place in pairs(values) do
      for i, property in ipairs { "Left", "Top", "Width", "Height" } do
        expect(get(("Battle.%s(%d).%s"):format(name, hero, property)), place[i], name .. "." .. property)
      end
    end
  end
  steps.state {
    ["Battle.Frame1.Caption"] = "コマンド", ["Battle.Command1.Caption"] = "戦う", ["Battle.Command2.Caption"] = "魔法",
    ["Battle.Command3.Caption"] = "技", ["Battle.Command4.Caption"] = "アイテム", ["Battle.Command5.Caption"] = "逃げる",
    ["Battle.Timer1.Enabled"] = false, ["Battle.Timer2.Enabled"] = false, ["Battle.Timer2.Interval"] = 100,
    ["Battle.Command2.Enabled"] = false,
  }
end)

test("the numbers are white and hidden, the panel and the name panels hidden", function()
  steps.arena()
  steps.battle()
  for i = 0, 4 do
    expect(get("Battle.Label15(" .. i .. ").Visible"), false)
    expect(get("Battle.Label15(" .. i .. ").ForeColor"), "FFFFFF")
  end
  for i = 0, 1 do
    expect(get("Battle.Label16(" .. i .. ").Visible"), false)
    expect(get("Battle.Label16(" .. i .. ").ForeColor"), "FFFFFF")
  end
  for _, name in ipairs { "Picture9", "Picture10", "Picture13", "List1", "List2", "List3", "List4", "Label22(0)", "Label22(1)",
    "Label25(0)", "Label25(1)" } do
    expect(get("Battle." .. name .. ".Visible"), false, name)
  end
end)

test("a battle opens on the first hero's pane with fight, technique and item, never flight", function()
  steps.arena()
  steps.battle()
  steps.state {
    ["Battle.SSTab1.Tab"] = 0, ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = true,
    ["Battle.Command1.Enabled"] = true, ["Battle.Command2.Enabled"] = false, ["Battle.Command3.Enabled"] = true,
    ["Battle.Command4.Enabled"] = true, ["Battle.Command5.Enabled"] = false, ["Battle.Timer1.Enabled"] = false,
    ["Battle.Timer2.Enabled"] = true, ["Battle.Visible"] = true, ["Main.Visible"] = false,
  }
  expect(steps.trimmed(get("Battle.SSTab1.TabCaption(0)")), "カイ")
  expect(steps.trimmed(get("Battle.SSTab1.TabCaption(1)")), "リナ")
end)

test("a battle opened after one that ended on the other pane opens on the first hero's", function()
  steps.arena()
  steps.battle(0, 0)
  steps.strike()
  expect(get("Battle.SSTab1.Tab"), 1)
  steps.flee()
  steps.battle(0, 0)
  steps.state { ["Battle.SSTab1.Tab"] = 0, ["Battle.Command3.Enabled"] = true, ["Battle.Command2.Enabled"] = false }
end)

test("the status panes show the heroes as the battle opens", function()
  steps.arena()
  steps.state { ["HP[0]"] = 120 }
  set("HP[0]", 77)
  set("WeaponAttack[0]", 5)
  set("ArmourDefence[1]", 9)
  steps.battle()
  local texts = {
    ["Label3(0)"] = "77/120", ["Label4(0)"] = "10/10", ["Label8(0)"] = "13", ["Label9(0)"] = "4", ["Label10(0)"] = "1",
    ["Label12(0)"] = "1", ["Label3(1)"] = "80/80", ["Label4(1)"] = "30/30", ["Label8(1)"] = "4", ["Label9(1)"] = "15",
    ["Label10(1)"] = "12", ["Label12(1)"] = "1",
  }
  for name, text in pairs(texts) do expect(get("Battle." .. name .. ".Caption"), text, name) end
  expect(get("Attack[0]"), 13)
  expect(get("Defence[1]"), 15)
end)

test("the status panes hold the heroes' points to their bounds", function()
  steps.arena()
  set("HP[0]", -3)
  set("HP[1]", 500)
  set("MP[0]", 11)
  set("MP[1]", -2)
  steps.battle()
  steps.state { ["HP[0]"] = 0, ["HP[1]"] = 80, ["MP[0]"] = 10, ["MP[1]"] = -2 }
  expect(get("Battle.Label3(0).Caption"), "0/120")
  expect(get("Battle.Label4(1).Caption"), "-2/30", "points of magic are not raised")
end)

test("in each round the kind is one of five with equal chances", function()
  steps.arena()
  for round = 1, 3 do
    set("Round", round)
    for offset = 0, 4 do
      for _, part in ipairs { 0.01, 0.99 } do
        steps.battle((offset + part) / 5, 0)
        expect(get("EnemyKind"), 5 * round - 2 + offset)
        steps.flee()
      end
    end
  end
end)

test("the group has one to four enemies with equal chances, alive in the first slots", function()
  steps.arena()
  for count = 1, 4 do
    for _, part in ipairs { 0.01, 0.99 } do
      steps.battle(0.5, (count - 1 + part) / 4)
      expect(get("EnemyCount"), count)
      for slot = 1, 5 do expect(get("EnemyAlive[" .. slot - 1 .. "]"), slot <= count and -1 or 0, "slot " .. slot) end
      for slot = 1, count do expect(get("EnemyLife[" .. slot - 1 .. "]"), 200) end
      steps.flee()
    end
  end
end)

test("an ordinary fight of one enemy has slot 1 only", function()
  steps.arena()
  steps.battle(0.99, 0.24)
  steps.state { EnemyCount = 1, ["EnemyAlive[0]"] = -1, ["EnemyAlive[1]"] = 0, ["EnemyAlive[4]"] = 0, ["EnemyLife[0]"] = 300 }
end)

test("the dragon of round 2 has row 1 for its life while the kind keeps the roll", function()
  steps.arena(2)
  steps.boss(0.7, 0.99)
  steps.state { EnemyKind = 11, EnemyCount = 1, ["EnemyLife[4]"] = 23000, ["EnemyAlive[4]"] = -1,
    ["EnemyAlive[0]"] = 0, ["EnemyAlive[3]"] = 0, ["Battle.Command5.Enabled"] = false }
end)

test("each round has its own dragon", function()
  for round, life in ipairs { 7000, 23000, 55000 } do
    steps.arena(round)
    steps.boss(0, 0)
    expect(get("EnemyLife[4]"), life)
  end
end)

test("row 13 rolled at the dragon's spot gives the dragon, and no flight", function()
  steps.arena(3)
  steps.boss(0, 0)
  steps.state { EnemyKind = 13, ["EnemyLife[4]"] = 55000, ["Battle.Command5.Enabled"] = false }
end)

test("row 13 rolled with a count of 3 gives one enemy, and flight is open", function()
  steps.arena(3)
  steps.battle(0.1, 0.6)
  steps.state { EnemyKind = 13, EnemyCount = 1, ["EnemyLife[4]"] = 42000, ["EnemyAlive[4]"] = -1, ["EnemyAlive[0]"] = 0,
    ["EnemyAlive[2]"] = 0, ["Battle.Command5.Enabled"] = true }
end)

test("the last battle takes row 18, rolls no kind and allows no flight", function()
  steps.arena()
  steps.last_boss(0.99)
  expect(random_left(), 0)
  steps.state { EnemyKind = 0, EnemyCount = 1, ["EnemyLife[4]"] = 150000, ["EnemyAlive[4]"] = -1, ["EnemyAlive[0]"] = 0,
    ["Battle.Command5.Enabled"] = false }
end)

test("on round 4 a fight that is not the last takes the kind of the battle before", function()
  steps.arena(2)
  steps.battle(0.5, 0)
  expect(get("EnemyKind"), 10)
  steps.flee()
  set("Round", 4)
  steps.meet(steps.encounter, 0.3)
  steps.state { EnemyKind = 10, EnemyCount = 2, ["EnemyLife[0]"] = 1300, ["EnemyLife[1]"] = 1300 }
end)

test("on round 4 without a battle before the kind is row 0", function()
  steps.arena(4)
  steps.meet(steps.encounter, 0)
  steps.state { EnemyKind = 0, EnemyCount = 1, ["EnemyLife[0]"] = 7000, ["EnemyAlive[0]"] = -1, ["EnemyAlive[4]"] = 0 }
end)

test("a fainted hero's caption of the last battle is gone in the next", function()
  steps.arena()
  steps.battle(0, 0)
  set("Battle.SSTab1.TabCaption(1)", "気絶")
  steps.flee()
  steps.battle(0, 0)
  expect(steps.trimmed(get("Battle.SSTab1.TabCaption(1)")), "リナ")
end)
