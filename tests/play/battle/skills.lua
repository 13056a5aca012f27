local steps = require "lib.steps"
local commands = require "lib.commands"
local expect_rows, enabled, tabs = commands.expect_rows, commands.enabled, commands.tabs
local visible, refused, spider = commands.visible, commands.refused, commands.spider
local skilled = commands.skilled

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
