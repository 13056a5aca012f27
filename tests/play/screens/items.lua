local steps = require "lib.steps"
local things = require "lib.things"
local trimmed = steps.trimmed

local function padded(name) return steps.padded(name, 20) end

local sword, mail, staff, robe, book, potion, elixir, sword_too, swords, odd = 0, 1, 2, 3, 4, 5, 6, 7, 8, 9

-- The item screen over a bag of one of each, with holes.
local function opened(changes, bag)
  steps.plain_world()
  things.write {
    [1] = { "Sword of dawn", 1, 7 }, [2] = { "Mail", 2, 5 }, [3] = { "Staff", 3, 6 }, [4] = { "Robe", 4, 3 },
    [5] = { "Book", 5, 4 }, [6] = { "Potion", 6, 27 }, [7] = { "Elixir", 6, 5000 }, [8] = { "Sword of dusk", 1, 9 },
    [9] = { "Swor", 1, 9 }, [10] = { "Odd", 9, 77 }, [11] = { "Flood", 6, 32767 }, [12] = { "Deluge", 6, 40000 },
  }
  things.bag(bag or { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 })
  for name, value in pairs(changes or {}) do set(name, value) end
  click("Main.m22")
  expect(active(), "Item")
end

local function pick(row)
  choose("Item.List1", row)
end

local function enabled(number)
  return get("Item.Command" .. number .. ".Enabled")
end

local function rows()
  local list = {}
  for row = 0, get("Item.List1.ListCount") - 1 do list[row + 1] = trimmed(get("Item.List1.List(" .. row .. ")")) end
  return table.concat(list, ",")
end

test("the screen shows twenty rows, a hole as なし, and asks for a row first", function()
  opened(nil, { 6, 99, 1, 99, 99, 2 })
  expect(rows(), "Potion,なし,Sword of dawn,なし,なし,Mail" .. (",なし"):rep(14))
  expect(get("Item.List1.ListIndex"), -1)
  expect(enabled(1), false)
  expect(enabled(2), false)
  expect(enabled(8), true)
  expect(get("Main.Timer1.Enabled"), false)
end)

test("only a thing of kind 6 can be used", function()
  opened()
  for row = 0, 19 do
    pick(row)
    expect(enabled(1), row == potion or row == elixir, "row " .. row)
  end
end)

test("an empty row can be neither used nor discarded, even after a potion", function()
  opened()
  pick(potion)
  expect(enabled(1), true)
  expect(enabled(2), true)
  pick(15)
  expect(enabled(1), false)
  expect(enabled(2), false)
end)

test("a book can be neither used nor discarded", function()
  opened()
  pick(potion)
  pick(book)
  expect(enabled(1), false)
  expect(enabled(2), false)
end)

test("a thing cannot be discarded when its first five characters are those of something worn", function()
  for _, worn in ipairs { "WeaponName[0]", "WeaponName[1]", "ArmourName[0]", "ArmourName[1]" } do
    opened { [worn] = "Sword of dawn" }
    for row, free in pairs { [sword] = false, [sword_too] = false, [swords] = true, [mail] = true, [odd] = true } do
      pick(row)
      expect(enabled(2), free, worn .. ", row " .. row)
    end
  end
end)

test("a sixth character protects nothing", function()
  opened { ["WeaponName[0]"] = "SwordX" }
  pick(sword)
  expect(enabled(2), false)
  opened { ["WeaponName[0]"] = "SworXof dawn" }
  pick(sword)
  expect(enabled(2), true)
end)

test("blanks count among the five characters", function()
  opened { ["ArmourName[1]"] = "Swor" }
  pick(swords)
  expect(enabled(2), false)
  pick(sword)
  expect(enabled(2), true)
end)

test("a worn book's name protects nothing", function()
  opened { ["BookName[0]"] = "Staff" }
  pick(staff)
  expect(enabled(2), true)
end)

test("discarding asks, with the whole name, and Cancel keeps the thing", function()
  opened()
  pick(robe)
  answer("Cancel")
  click("Item.Command2")
  local box = boxes()[1]
  expect(box.text, "捨ててもよろしいですか？\n" .. padded "Robe")
  expect(box.title, "アイテム削除")
  expect(box.buttons, "OKCancel")
  expect(get("Items[3]"), 4)
  expect(get("ItemCount"), 10)
  expect(get("Item.List1.ListIndex"), robe)
  expect(enabled(2), true)
end)

test("discarding reads the thing anew", function()
  opened()
  pick(robe)
  set("ItemRec.Name", "another")
  answer("Cancel")
  click("Item.Command2")
  expect(boxes()[1].text, "捨ててもよろしいですか？\n" .. padded "Robe")
  expect(get("ItemRec.Kind"), 4)
end)

test("a discarded thing leaves a hole and no row selected", function()
  opened()
  pick(potion)
  answer("OK")
  click("Item.Command2")
  expect(get("Items[5]"), 99)
  expect(get("Items[6]"), 7)
  expect(get("ItemCount"), 9)
  expect(get("Item.List1.List(5)"), "なし")
  expect(get("Item.List1.ListCount"), 20)
  expect(get("Item.List1.ListIndex"), -1)
  expect(enabled(2), false)
  expect(enabled(1), true, "the other button keeps its state")
end)

test("discarding the last thing leaves twenty empty rows", function()
  opened(nil, { 2 })
  pick(0)
  answer("OK")
  click("Item.Command2")
  expect(rows(), ("なし,"):rep(19) .. "なし")
  expect(get("ItemCount"), 0)
end)

test("tidying sorts by number, closes the holes and keeps the buttons", function()
  opened(nil, { 99, 7, 3, 99, 1, 10, 99, 6, 1 })
  set("ItemCount", 6)
  pick(7)
  click("Item.Command8")
  for slot, number in ipairs { 1, 1, 3, 6, 7, 10, 99, 99 } do expect(get("Items[" .. slot - 1 .. "]"), number) end
  expect(get("ItemCount"), 6)
  expect(rows(), "Sword of dawn,Sword of dawn,Staff,Potion,Elixir,Odd" .. (",なし"):rep(14))
  expect(get("Item.List1.ListIndex"), -1)
  expect(enabled(1), true)
  expect(enabled(2), true)
end)

test("tidying sorts a full bag that stands the wrong way round", function()
  local bag = {}
  for slot = 1, 20 do bag[slot] = 50 - slot end
  opened(nil, bag)
  set("Items[20]", 1)
  click("Item.Command8")
  for slot = 0, 19 do expect(get("Items[" .. slot .. "]"), 30 + slot) end
  expect(get("Items[20]"), 1, "the spare slot is none of the bag")
end)

test("after tidying, use goes by the last slot: an empty one refuses", function()
  opened()
  pick(potion)
  click("Item.Command8")
  answer("OK")
  click("Item.Command1")
  local box = boxes()[1]
  expect(box.text, "使えません。")
  expect(box.title, "警告")
  expect(box.buttons, "OK")
  expect(active(), "Item")
  expect(get("ItemCount"), 10)
end)

test("after tidying with a potion in the last slot, use does nothing without a row", function()
  local bag = {}
  for slot = 1, 20 do bag[slot] = 6 end
  opened(nil, bag)
  pick(3)
  click("Item.Command8")
  click("Item.Command1")
  expect(#boxes(), 0)
  expect(active(), "Item")
  expect(get("Item.Visible"), true)
end)

test("discard does nothing without a row", function()
  opened()
  pick(potion)
  click("Item.Command8")
  expect(enabled(2), true)
  click("Item.Command2")
  expect(#boxes(), 0)
  expect(get("ItemCount"), 10)
end)

test("closing hides the screen and the walk goes on", function()
  opened()
  close("Item")
  expect(active(), "Main")
  expect(get("Item.Visible"), false)
  expect(get("Main.Timer1.Enabled"), true)
end)

test("the screen keeps its buttons over a close with a row selected, and asks anew the time after", function()
  opened()
  pick(potion)
  close("Item")
  click("Main.m22")
  expect(enabled(1), true)
  expect(get("Item.List1.ListIndex"), -1)
  close("Item")
  click("Main.m22")
  expect(enabled(1), false)
  expect(enabled(2), false)
end)

test("the first row is a row like any other when the screen comes up again", function()
  opened(nil, { 6 })
  pick(0)
  activate("Main")
  activate("Item")
  expect(enabled(1), true)
  expect(enabled(2), true)
end)

test("the question for the hero shows the thing and how both stand", function()
  opened { ["HP[0]"] = 5, ["MP[1]"] = 3 }
  pick(potion)
  click("Item.Command1")
  expect(active(), "ItemUse")
  expect(get("Item.Visible"), false)
  expect(get("Main.Timer1.Enabled"), false)
  expect(trimmed(get("ItemUse.Command1(0).Caption")), "カイ")
  expect(trimmed(get("ItemUse.Command1(1).Caption")), "リナ")
  expect(trimmed(get("ItemUse.Label4.Caption")), "Potion")
  expect(get("ItemUse.Label5.Caption"), "回復値(HP:27MP:2)")
  expect(get("ItemUse.Label1(0).Caption"), "HP:5/120")
  expect(get("ItemUse.Label2(0).Caption"), "MP:10/10")
  expect(get("ItemUse.Label1(1).Caption"), "HP:80/80")
  expect(get("ItemUse.Label2(1).Caption"), "MP:3/30")
end)

test("the question knows two heroes, and no third", function()
  opened()
  pick(potion)
  click("Item.Command1")
  for _, name in ipairs { "Command1", "Label1", "Label2" } do
    expect(pcall(get, "ItemUse." .. name .. "(1).Caption"), true)
    expect(pcall(get, "ItemUse." .. name .. "(2).Caption"), false)
  end
end)

test("a potion gives its value in HP and a tenth of it, rounded down, in MP", function()
  for hero = 0, 1 do
    opened { ["HP[0]"] = 5, ["HP[1]"] = 5, ["MP[0]"] = 1, ["MP[1]"] = 1 }
    pick(potion)
    click("Item.Command1")
    click("ItemUse.Command1(" .. hero .. ")")
    expect(get("HP[" .. hero .. "]"), 32)
    expect(get("MP[" .. hero .. "]"), 3)
    expect(get("HP[" .. 1 - hero .. "]"), 5)
    expect(get("MP[" .. 1 - hero .. "]"), 1)
    expect(get("Items[5]"), 99)
    expect(get("ItemCount"), 9)
    expect(get("ItemUse.Visible"), false)
    expect(get("Item.Visible"), false, "the list does not come back")
    expect(active(), "Main")
    expect(get("Main.Timer1.Enabled"), true)
    expect(get("Main.Label5(" .. 2 * hero .. ").Caption"), ("HP ：32/%d"):format(hero == 0 and 120 or 80))
  end
end)

test("HP and MP are cut to their maxima, and a thing is spent even at full HP", function()
  opened { ["HP[0]"] = 119, ["MP[0]"] = 0 }
  pick(elixir)
  click("Item.Command1")
  click("ItemUse.Command1(0)")
  expect(get("HP[0]"), 120)
  expect(get("MP[0]"), 10)
  click("Main.m22")
  pick(potion)
  click("Item.Command1")
  click("ItemUse.Command1(0)")
  expect(get("HP[0]"), 120)
  expect(get("Items[5]"), 99)
  expect(get("Items[6]"), 99)
  expect(get("ItemCount"), 8)
end)

test("closing the question spends nothing and leads back to the field", function()
  opened { ["HP[0]"] = 5 }
  pick(potion)
  click("Item.Command1")
  close("ItemUse")
  expect(active(), "Main")
  expect(get("Main.Timer1.Enabled"), true)
  expect(get("HP[0]"), 5)
  expect(get("Items[5]"), 6)
  expect(get("ItemCount"), 10)
end)

test("a sum of HP above 32767 ends the program, and so does a value above it", function()
  for number, hp in pairs { [11] = 1, [12] = 0 } do
    opened({ ["HP[0]"] = hp }, { number })
    pick(0)
    click("Item.Command1")
    if not ended() then click("ItemUse.Command1(0)") end
    expect(ended(), true)
    expect(error_kind(), "overflow", "thing " .. number)
  end
end)

test("an exact 32767 is no overflow", function()
  opened({ ["HP[0]"] = 0, ["MP[0]"] = 0 }, { 11 })
  pick(0)
  click("Item.Command1")
  click("ItemUse.Command1(0)")
  expect(ended(), false)
  expect(get("HP[0]"), 120)
end)

test("a thing number beyond the file is a nameless row that can be discarded but not used", function()
  opened(nil, { 6, 60, -3, 0 })
  pick(0)
  for row = 1, 3 do
    pick(row)
    expect(trimmed(get("Item.List1.List(" .. row .. ")")), "")
    expect(get("ItemRec.Kind"), 0)
    expect(get("ItemRec.Name"), (" "):rep(20))
    expect(enabled(1), false)
    expect(enabled(2), true)
  end
end)

test("a question whose row has gone from the list gives nothing and spends nothing", function()
  opened { ["HP[0]"] = 5 }
  pick(potion)
  click("Item.Command1")
  activate("Main")
  click("Main.m22")
  expect(get("Item.List1.ListIndex"), -1)
  activate("ItemUse")
  click("ItemUse.Command1(0)")
  expect(ended(), false)
  expect(get("HP[0]"), 5)
  expect(get("ItemCount"), 10)
  expect(get("Items[5]"), 6)
end)
