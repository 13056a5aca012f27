local steps = require "lib.steps"

local function rows(list)
  local found = {}
  for i = 0, get("Battle." .. list .. ".ListCount") - 1 do found[i + 1] = get(("Battle.%s.List(%d)"):format(list, i)) end
  return found
end

local function expect_rows(list, wanted)
  local found = rows(list)
  expect(#found, #wanted, list)
  for i, text in ipairs(wanted) do expect(found[i], text, list .. " row " .. i - 1) end
end

local function enabled(...)
  local wanted = { false, false, false, false }
  for _, n in ipairs { ... } do wanted[n] = true end
  for n = 1, 4 do expect(get("Battle.Command" .. n .. ".Enabled"), wanted[n], "Command" .. n) end
end

local function tabs(first, second)
  expect(get("Battle.SSTab1.TabEnabled(0)"), first, "first tab")
  expect(get("Battle.SSTab1.TabEnabled(1)"), second, "second tab")
end

local function visible(list)
  for _, each in ipairs { "List1", "List2", "List3", "List4" } do
    expect(get("Battle." .. each .. ".Visible"), each == list, each)
  end
end

local function refused(text)
  local box = boxes()[#boxes()]
  expect(box.text, text)
  expect(box.title, "警告")
  expect(box.buttons, "OK")
  steps.state { HeroesActed = 0, ["Battle.Timer1.Enabled"] = false }
end

local spider = steps.padded("スッパイダー", 16)

-- A battle against spiders; both heroes know everything and can pay for it.
local function skilled(count)
  steps.arena()
  steps.learn_all()
  steps.battle_with(6, count or 4)
  steps.strengthen()
end

test("fight shows the living enemies by their padded names and slot numbers", function()
  steps.arena()
  steps.battle_with(6, 3)
  click("Battle.Command1")
  visible("List2")
  expect_rows("List2", { "キャンセル", spider .. "(1)", spider .. "(2)", spider .. "(3)" })
  steps.state { ActionKind = 2, ["HeroBusy[0]"] = -1, ["HeroBusy[1]"] = 0, HeroesActed = 0 }
  enabled()
  tabs(false, false)
end)

test("a target list of four with enemies 1 and 3 dead keeps their rows as crosses", function()
  steps.arena()
  steps.battle_with(6, 4)
  steps.leave_alive(2, 4)
  click("Battle.Command1")
  expect_rows("List2", { "キャンセル", "×", spider .. "(2)", "×", spider .. "(4)" })
end)

test("a dead enemy is refused and the list stays for another choice", function()
  steps.arena()
  steps.battle_with(6, 4)
  steps.leave_alive(2, 4)
  click("Battle.Command1")
  answer("OK", "OK")
  choose("Battle.List2", 1)
  refused("その敵はすでに死んでいる")
  visible("List2")
  choose("Battle.List2", 3)
  expect(#boxes(), 2)
  choose("Battle.List2", 4)
  steps.state { HeroesActed = 1, ["Battle.Timer1.Enabled"] = true }
  visible()
end)

test("a big enemy's target list has a single row with no number", function()
  steps.arena()
  steps.boss()
  click("Battle.Command1")
  expect_rows("List2", { "キャンセル", steps.padded("海龍", 16) })
  steps.arena()
  steps.last_boss()
  click("Battle.Command1")
  expect_rows("List2", { "キャンセル", steps.padded("神龍", 16) })
  steps.arena()
  steps.bone_dragon()
  click("Battle.Command1")
  expect_rows("List2", { "キャンセル", steps.padded("ボーンドラゴン", 16) })
end)

test("cancelling a target gives the first hero his buttons back", function()
  skilled()
  click("Battle.Command1")
  choose("Battle.List2", 0)
  visible()
  enabled(1, 3, 4)
  tabs(true, true)
  steps.state { ["HeroBusy[0]"] = 0, ["Battle.List2.ListCount"] = 0, HeroesActed = 0 }
end)

test("cancelling a target gives the second hero her buttons back", function()
  skilled()
  tab("Battle.SSTab1", 1)
  click("Battle.Command1")
  enabled()
  expect(get("HeroBusy[1]"), -1)
  choose("Battle.List2", 0)
  enabled(1, 2, 4)
  tabs(true, true)
  expect(get("HeroBusy[1]"), 0)
end)

test("a cancelled target costs the choice of the skill too", function()
  skilled()
  click("Battle.Command3")
  choose("Battle.List1", 5)
  visible("List2")
  choose("Battle.List2", 0)
  visible()
  enabled(1, 3, 4)
  steps.state { ["Battle.List1.ListCount"] = 0, ["Battle.List2.ListCount"] = 0, ["MP[0]"] = 9000 }
end)

test("a cancelled choice after the other hero has acted leaves that hero's tab off", function()
  skilled()
  steps.strike()
  for _, case in ipairs { { "Command1", "List2" }, { "Command2", "List1" }, { "Command4", "List3" } } do
    click("Battle." .. case[1])
    choose("Battle." .. case[2], 0)
    tabs(false, true)
    enabled(1, 2, 4)
    visible()
    steps.state { ["HeroBusy[0]"] = -1, ["HeroBusy[1]"] = 0, HeroesActed = 1 }
  end
end)

test("a cancelled choice leaves a fainted hero's tab off", function()
  skilled()
  set("HeroFainted[1]", -1)
  for _, case in ipairs { { "Command1", "List2" }, { "Command3", "List1" }, { "Command4", "List3" } } do
    click("Battle." .. case[1])
    choose("Battle." .. case[2], 0)
    tabs(true, false)
  end
  set("HeroFainted[1]", 0)
  tab("Battle.SSTab1", 0)
  click("Battle.Command1")
  choose("Battle.List2", 0)
  tab("Battle.SSTab1", 1)
  set("HeroFainted[0]", -1)
  click("Battle.Command2")
  choose("Battle.List1", 0)
  tabs(false, true)
end)

test("the technique list shows names and costs, and what is not learned", function()
  steps.arena()
  set("WazaKnown[0]", -1)
  set("WazaKnown[9]", -1)
  steps.battle()
  click("Battle.Command3")
  visible("List1")
  local no = "未修得"
  expect_rows("List1", { "キャンセル", "炎舞剣   (MP消費:4)", no, no, no, no, no, no, no, no, "奥義･真魔神斬   (MP消費:160)" })
  steps.state { ActionKind = 4, ["HeroBusy[0]"] = -1 }
  enabled()
  tabs(false, false)
end)

test("the spell list shows names and costs, and what is not learned", function()
  steps.arena()
  set("MagicKnown[1]", -1)
  set("MagicKnown[7]", -1)
  steps.battle()
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  visible("List1")
  local no = "未修得"
  expect_rows("List1", { "キャンセル", no, "絶対零度   (MP消費:16)", no, no, no, no, no, "風の癒し   (MP消費:60)", no, no })
  steps.state { ActionKind = 3, ["HeroBusy[1]"] = -1 }
  enabled()
  tabs(false, false)
end)

test("cancelling a skill list returns to the buttons", function()
  skilled()
  click("Battle.Command3")
  choose("Battle.List1", 0)
  visible()
  enabled(1, 3, 4)
  tabs(true, true)
  steps.state { ["HeroBusy[0]"] = 0, ["Battle.List1.ListCount"] = 0 }
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", 0)
  enabled(1, 2, 4)
  tabs(true, true)
end)

test("a skill not learned is refused, also when it could not be paid", function()
  steps.arena()
  steps.battle()
  set("MP[0]", 0)
  set("MP[1]", 0)
  click("Battle.Command3")
  answer("OK", "OK")
  choose("Battle.List1", 1)
  refused("未修得です")
  visible("List1")
  choose("Battle.List1", 0)
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", 3)
  refused("未修得です")
  visible("List1")
end)

test("a technique costs at most what the first hero has", function()
  skilled()
  local costs = { 4, 8, 16, 24, 32, 42, 50, 60, 80, 160 }
  for row, cost in ipairs(costs) do
    set("MP[0]", cost - 1)
    click("Battle.Command3")
    answer("OK")
    choose("Battle.List1", row)
    refused("MPが足りません")
    visible("List1")
    set("MP[0]", cost)
    choose("Battle.List1", row)
    visible("List2")
    choose("Battle.List2", 0)
    expect(get("MP[0]"), cost)
  end
end)

test("a spell costs at most what the second hero has", function()
  local costs = { 10, 16, 30, 48, 56, 70, 80, 60, 120, 250 }
  for _, row in ipairs { 1, 3, 7, 8, 10 } do
    skilled()
    tab("Battle.SSTab1", 1)
    click("Battle.Command2")
    set("MP[0]", 9000)
    set("MP[1]", costs[row] - 1)
    answer("OK")
    choose("Battle.List1", row)
    refused("MPが足りません")
    visible("List1")
    set("MP[1]", costs[row])
    choose("Battle.List1", row)
    expect(get("Battle.List1.Visible"), false)
    expect(get("HeroesActed"), row == 1 and 0 or 1)
  end
end)

test("every technique asks for a target, also against a single enemy", function()
  skilled(1)
  for row = 1, 10 do
    click("Battle.Command3")
    choose("Battle.List1", row)
    visible("List2")
    expect_rows("List2", { "キャンセル", spider .. "(1)" })
    steps.state { ActionKind = 4, HeroesActed = 0, ["Battle.Timer1.Enabled"] = false }
    choose("Battle.List2", 0)
  end
end)

test("spells 1 and 2 ask for a target, with the dead among the rows", function()
  skilled(2)
  tab("Battle.SSTab1", 1)
  steps.leave_alive(1)
  for row = 1, 2 do
    click("Battle.Command2")
    choose("Battle.List1", row)
    visible("List2")
    expect_rows("List2", { "キャンセル", spider .. "(1)", "×" })
    answer("OK")
    choose("Battle.List2", 2)
    refused("その敵はすでに死んでいる")
    choose("Battle.List2", 0)
  end
end)

test("the other spells play at once: 3 and 8 heal, the rest strike all", function()
  for row = 3, 10 do
    skilled(1)
    tab("Battle.SSTab1", 1)
    click("Battle.Command2")
    choose("Battle.List1", row)
    visible()
    expect(get("ActionKind"), (row == 3 or row == 8) and 6 or 3, "spell " .. row)
    steps.state { HeroesActed = 1, ["Battle.Timer1.Enabled"] = true, ["Battle.List1.ListIndex"] = row,
      ["Battle.List2.ListIndex"] = -1 }
  end
end)

test("a commit starts the timer, counts the hero, clears the field's counter and hides the list", function()
  skilled()
  set("FieldFrame", 33)
  click("Battle.Command1")
  choose("Battle.List2", 2)
  steps.state { FieldFrame = 0, HeroesActed = 1, ["Battle.Timer1.Enabled"] = true, ["Battle.List2.Visible"] = false,
    ["Battle.List2.ListIndex"] = 2, ["Battle.List2.ListCount"] = 5, ActionState = 0 }
end)

-- An item file whose record n is named "Thing n".
local function own_items()
  prepare()
  local records = {}
  for n = 1, 50 do records[n] = ("\0"):rep(4) .. steps.padded("Thing " .. n, 20) .. ("\0"):rep(8) end
  write_file("Item.dat", table.concat(records))
  steps.field { keep = true }
  steps.flatten()
  steps.put(100, 100)
end

test("the item list has 21 rows, the names padded to 20, the gaps where they are in the bag", function()
  own_items()
  for slot, item in ipairs { 47, 99, 1, 50 } do set("Items[" .. slot - 1 .. "]", item) end
  steps.battle()
  click("Battle.Command4")
  visible("List3")
  local wanted = { "キャンセル", steps.padded("Thing 47", 20), "なし", steps.padded("Thing 1", 20), steps.padded("Thing 50", 20) }
  for row = 5, 20 do wanted[row + 1] = "なし" end
  expect_rows("List3", wanted)
  expect(get("HeroBusy[0]"), -1)
  tabs(false, false)
  enabled()
  choose("Battle.List3", 0)
  enabled(1, 3, 4)
  tabs(true, true)
  visible()
  steps.state { ["HeroBusy[0]"] = 0, ["Battle.List3.ListCount"] = 0 }
end)

test("in a battle only items numbered 47 and up can be used", function()
  steps.arena()
  for slot, item in ipairs { 46, 99, 1, 47, 50 } do set("Items[" .. slot - 1 .. "]", item) end
  steps.battle()
  click("Battle.Command4")
  for row = 1, 3 do
    answer("OK")
    choose("Battle.List3", row)
    refused("それは使えません")
    visible("List3")
  end
  expect(#boxes(), 3)
  for row = 4, 5 do
    choose("Battle.List3", row)
    visible("List4")
    choose("Battle.List4", 0)
  end
  expect(#boxes(), 3)
end)

test("an item goes to either hero, and the way back leads to the item list", function()
  steps.arena()
  steps.battle()
  click("Battle.Command4")
  choose("Battle.List3", 2)
  visible("List4")
  expect(get("Battle.List4.ListCount"), 3)
  expect(get("Battle.List4.List(0)"), "キャンセル")
  expect(steps.trimmed(get("Battle.List4.List(1)")), "カイ")
  expect(steps.trimmed(get("Battle.List4.List(2)")), "リナ")
  choose("Battle.List4", 0)
  visible("List3")
  enabled()
  steps.state { ["Battle.List4.ListCount"] = 0, ["Battle.List3.ListCount"] = 21, HeroesActed = 0 }
  choose("Battle.List3", 3)
  choose("Battle.List4", 2)
  visible()
  steps.state { ActionKind = 7, HeroesActed = 1, ["Battle.Timer1.Enabled"] = true, ["Battle.List3.ListIndex"] = 3,
    ["Battle.List4.ListIndex"] = 2, ["Items[2]"] = 47 }
end)

test("a fainted hero can be chosen for an item", function()
  steps.arena()
  steps.battle()
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 2)
  expect(get("HeroesActed"), 1)
  expect(#boxes(), 0)
end)

test("the pane names the hero who acts, and either hero may go first", function()
  skilled()
  tab("Battle.SSTab1", 1)
  enabled(1, 2, 4)
  tab("Battle.SSTab1", 0)
  enabled(1, 3, 4)
  tab("Battle.SSTab1", 1)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  steps.state { ["HeroBusy[1]"] = -1, ["HeroBusy[0]"] = 0, HeroesActed = 1 }
  run("Battle.Timer1")
  expect(get("Battle.SSTab1.Tab"), 0)
  enabled(1, 3, 4)
  tabs(true, false)
end)

test("while a list is open no pane can be opened", function()
  skilled()
  for _, case in ipairs { { "Command1", "List2" }, { "Command3", "List1" }, { "Command4", "List3" } } do
    click("Battle." .. case[1])
    tabs(false, false)
    expect(can_click("Battle.Command1"), false)
    choose("Battle." .. case[2], 0)
    tabs(true, true)
  end
end)

test("a list covers the command frame", function()
  skilled()
  expect(can_click("Battle.Command4"), true)
  click("Battle.Command1")
  set("Battle.Command4.Enabled", true)
  expect(can_click("Battle.Command4"), false)
end)

test("flight succeeds at once, revives with 1 point and closes the fight's music", function()
  steps.arena()
  steps.bone_dragon()
  tick("Battle.Timer2")
  for hero = 0, 1 do set("HeroFainted[" .. hero .. "]", hero - 1) end
  set("HP[0]", 0)
  for _, name in ipairs { "KeyUp", "KeyDown", "KeyLeft", "KeyRight", "KeyUpWaiting" } do set(name, -1) end
  set("HeroBusy[0]", -1)
  set("HeroBusy[1]", -1)
  set("Battle.SSTab1.TabEnabled(0)", false)
  clear_sounds()
  random_clear()
  click("Battle.Command5")
  expect(active(), "Main")
  steps.state {
    ["HP[0]"] = 1, ["HP[1]"] = 80, ["HeroFainted[0]"] = 0, ["HeroFainted[1]"] = 0, KeyUp = 0, KeyDown = 0, KeyLeft = 0,
    KeyRight = 0, KeyUpWaiting = -1, ["Battle.Timer1.Enabled"] = false, ["Battle.Timer2.Enabled"] = false,
    ["Battle.Visible"] = false, ["Battle.Loaded"] = true, ["Main.Visible"] = true, ["Main.Timer1.Enabled"] = true,
    ["Battle.Command5.Enabled"] = true, ["HeroBusy[0]"] = 0, ["HeroBusy[1]"] = 0, ["Exp[0]"] = 0, ["Exp[1]"] = 0,
  }
  tabs(true, true)
  local sent = sounds()
  expect(#sent, 3)
  for i = 1, 3 do expect(sent[i], "close bgm" .. 3 + i) end
end)

test("a flight revives both heroes, and one who stands keeps his points", function()
  steps.arena()
  steps.bone_dragon()
  set("HP[0]", 55)
  set("HP[1]", 0)
  set("HeroFainted[1]", -1)
  click("Battle.Command5")
  steps.state { ["HP[0]"] = 55, ["HP[1]"] = 1, ["HeroFainted[1]"] = 0 }
end)

test("a flight gives neither experience nor proficiency", function()
  steps.arena()
  set("BookSkill[0]", 1)
  set("BookSkill[1]", 2)
  steps.bone_dragon()
  click("Battle.Command5")
  steps.state { ["WazaUse[0]"] = 0, ["MagicUse[1]"] = 0, ["Exp[0]"] = 0, ["Level[0]"] = 1 }
end)

test("a flight after one hero's action makes the next battle's first action bring the enemies", function()
  steps.arena()
  steps.bone_dragon()
  steps.strike()
  expect(get("HeroesActed"), 1)
  click("Battle.Command5")
  expect(get("HeroesActed"), 1)
  steps.flatten()
  steps.put(100, 100)
  set("Round", 1)
  steps.battle_with(6, 3)
  steps.strengthen()
  click("Battle.Command1")
  choose("Battle.List2", 1)
  tick("Battle.Timer1", 15)
  steps.state { ActionKind = 5, EnemyTurns = 3, HeroesActed = 0, ["Battle.Timer1.Enabled"] = true }
end)

test("no command does anything while an action plays, flight included", function()
  steps.arena()
  steps.bone_dragon()
  tab("Battle.SSTab1", 1)
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(8)
  for n = 1, 5 do set("Battle.Command" .. n .. ".Enabled", true) end
  for n = 1, 5 do
    click("Battle.Command" .. n)
    visible()
    expect(active(), "Battle")
    steps.state { ActionKind = 7, ActionState = 8, HeroesActed = 1, ["Battle.Timer1.Enabled"] = true }
  end
end)

test("the second hero's spells stay on under an open item list, out of reach", function()
  skilled()
  tab("Battle.SSTab1", 1)
  click("Battle.Command4")
  enabled(2)
  expect(can_click("Battle.Command2"), false)
  choose("Battle.List3", 0)
  enabled(1, 2, 4)
end)

test("a button that shows enabled before the enemies' first frame does nothing", function()
  skilled()
  steps.to_enemy_phase()
  expect(get("Battle.Command3.Enabled"), true, "the pane has just been opened")
  click("Battle.Command3")
  visible()
  steps.state { ActionKind = 5, ActionState = 0, EnemyTurns = 4 }
  tick("Battle.Timer1")
  enabled()
end)

test("the item list is filled anew for the next hero, without what was spent", function()
  steps.arena()
  steps.battle(0, 0)
  click("Battle.Command4")
  choose("Battle.List3", 2)
  choose("Battle.List4", 1)
  run("Battle.Timer1")
  click("Battle.Command4")
  expect(get("Battle.List3.ListCount"), 21)
  expect(get("Battle.List3.List(2)"), "なし")
  expect(get("Battle.List3.List(1)") ~= "なし", true)
  answer("OK")
  choose("Battle.List3", 2)
  expect(boxes()[1].text, "それは使えません")
end)

test("an item number beyond the file has a blank name and can be chosen", function()
  own_items()
  set("Items[0]", 60)
  steps.battle()
  click("Battle.Command4")
  expect(get("Battle.List3.List(1)"), (" "):rep(20))
  choose("Battle.List3", 1)
  visible("List4")
  expect(#boxes(), 0)
end)

test("the arrow keys are lost during a battle", function()
  skilled()
  key_down("Up")
  steps.state { KeyUp = 0, KeyUpWaiting = 0 }
end)
