local steps = require "lib.steps"
local commands = require "lib.commands"
local expect_rows, enabled, tabs = commands.expect_rows, commands.enabled, commands.tabs
local visible, refused = commands.visible, commands.refused

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
