local steps = require "lib.steps"
local things = require "lib.things"
local trimmed = steps.trimmed

local function padded(name) return steps.padded(name, 20) end

local none = "なし" .. (" "):rep(18)

-- The bag, by row: what each thing is stands beside it.
local bag = { 1, 2, 3, 4, 5, 6, 7, 6, 8, 9, 10, 11 }
local sword, sabre, armour, staff, robe, book = 0, 1, 2, 3, 4, 5
local tome, second_book, potion, odd, long_staff, veil = 6, 7, 8, 9, 10, 11
local empty = 19

local function opened(changes)
  steps.plain_world()
  things.write {
    [1] = { "Sword", 1, 7 }, [2] = { "Sabre", 1, 9 }, [3] = { "Armour", 2, 5 }, [4] = { "Staff", 3, 6 },
    [5] = { "Robe", 4, 3 }, [6] = { "Book", 5, 4 }, [7] = { "Tome", 5, 8 }, [8] = { "Potion", 6, 200 },
    [9] = { "Odd", 9, 77 }, [10] = { "Long staff", 3, 16 }, [11] = { "Veil", 4, 13 },
  }
  things.bag(bag)
  for name, value in pairs(changes or {}) do set(name, value) end
  click("Main.m21")
  expect(active(), "Wepon")
end

local function pick(row)
  choose("Wepon.List1", row)
end

local function enabled(number)
  return get("Wepon.Command" .. number .. ".Enabled")
end

local function shown(label)
  return trimmed(get("Wepon." .. label .. ".Caption"))
end

test("the screen opens with the whole bag, nothing worn and both buttons grey", function()
  opened()
  expect(get("Main.Timer1.Enabled"), false)
  expect(get("Wepon.List1.ListCount"), 20)
  expect(trimmed(get("Wepon.List1.List(0)")), "Sword")
  expect(trimmed(get("Wepon.List1.List(7)")), "Book")
  expect(get("Wepon.List1.List(12)"), "なし")
  expect(get("Wepon.List1.List(19)"), "なし")
  expect(get("Wepon.List1.ListIndex"), -1)
  expect(get("Wepon.SSTab1.Tab"), 0)
  expect(trimmed(get("Wepon.SSTab1.TabCaption(0)")), "カイ")
  expect(trimmed(get("Wepon.SSTab1.TabCaption(1)")), "リナ")
  expect(enabled(1), false)
  expect(enabled(2), false)
  expect(enabled(3), false)
  for row, value in ipairs { "8", "4", "1" } do expect(shown("Label4(" .. row - 1 .. ")"), value) end
  for row, value in ipairs { "4", "6", "12" } do expect(shown("Label9(" .. row - 1 .. ")"), value) end
  for row = 0, 2 do
    expect(shown("Label2(" .. row .. ")"), "なし")
    expect(shown("Label7(" .. row .. ")"), "なし")
  end
end)

test("the first hero may wear kinds 1, 2 and 5, the second 3, 4 and 5", function()
  opened()
  local rows = { [sword] = 0, [sabre] = 0, [armour] = 0, [staff] = 1, [robe] = 1, [book] = 2, [tome] = 2,
    [potion] = 3, [empty] = 3, [long_staff] = 1, [veil] = 1 }
  for row, whose in pairs(rows) do
    pick(row)
    expect(enabled(1), whose == 0 or whose == 2, "row " .. row)
  end
  tab("Wepon.SSTab1", 1)
  for row, whose in pairs(rows) do
    pick(row)
    expect(enabled(3), whose == 1 or whose == 2, "row " .. row)
  end
end)

test("the first hero's gear stands on the screen and in the record at once", function()
  opened()
  pick(sabre)
  expect(get("Wepon.LastRow"), sabre)
  click("Wepon.Command1")
  expect(get("WeaponName[0]"), padded "Sabre")
  expect(get("WeaponAttack[0]"), 9)
  expect(get("Attack[0]"), 17)
  expect(shown("Label2(0)"), "Sabre")
  expect(shown("Label4(0)"), "17")
  expect(enabled(2), true)
  pick(armour)
  click("Wepon.Command1")
  expect(get("ArmourName[0]"), padded "Armour")
  expect(get("ArmourDefence[0]"), 5)
  expect(get("Defence[0]"), 9)
  expect(shown("Label2(1)"), "Armour")
  expect(shown("Label4(1)"), "9")
  pick(tome)
  click("Wepon.Command1")
  expect(get("BookName[0]"), padded "Tome")
  expect(get("BookSkill[0]"), 8)
  expect(shown("Label2(2)"), "Tome")
  expect(get("Spirit[0]"), 1, "a book is no spirit")
  expect(shown("Label4(2)"), "1")
  expect(get("Items[1]"), 2, "the thing stays in the bag")
  expect(get("WeaponName[1]"), none)
  expect(get("Attack[1]"), 4)
end)

test("the second hero's gear likewise", function()
  opened()
  tab("Wepon.SSTab1", 1)
  expect(enabled(4), false)
  pick(staff)
  click("Wepon.Command3")
  expect(get("WeaponName[1]"), padded "Staff")
  expect(get("WeaponAttack[1]"), 6)
  expect(get("Attack[1]"), 10)
  expect(shown("Label7(0)"), "Staff")
  expect(shown("Label9(0)"), "10")
  expect(enabled(4), true)
  pick(robe)
  click("Wepon.Command3")
  expect(get("ArmourName[1]"), padded "Robe")
  expect(get("ArmourDefence[1]"), 3)
  expect(get("Defence[1]"), 9)
  expect(shown("Label7(1)"), "Robe")
  expect(shown("Label9(1)"), "9")
  pick(book)
  click("Wepon.Command3")
  expect(get("BookName[1]"), padded "Book")
  expect(get("BookSkill[1]"), 4)
  expect(shown("Label7(2)"), "Book")
  expect(get("WeaponName[0]"), none)
  expect(get("BookSkill[0]"), 0)
end)

test("a new piece replaces the old one, and the same piece again changes nothing", function()
  opened()
  pick(sword)
  click("Wepon.Command1")
  expect(get("Attack[0]"), 15)
  click("Wepon.Command1")
  expect(get("Attack[0]"), 15)
  expect(get("WeaponAttack[0]"), 7)
  pick(sabre)
  click("Wepon.Command1")
  expect(get("Attack[0]"), 17)
  expect(get("WeaponName[0]"), padded "Sabre")
  pick(armour)
  click("Wepon.Command1")
  click("Wepon.Command1")
  expect(get("Defence[0]"), 9)
end)

test("the one button takes off all three pieces", function()
  opened()
  for _, row in ipairs { sword, armour, book } do
    pick(row)
    click("Wepon.Command1")
  end
  click("Wepon.Command2")
  for _, name in ipairs { "WeaponName", "ArmourName", "BookName" } do expect(get(name .. "[0]"), none, name) end
  for _, value in ipairs { "WeaponAttack", "ArmourDefence", "BookSkill" } do expect(get(value .. "[0]"), 0, value) end
  expect(get("Attack[0]"), 8)
  expect(get("Defence[0]"), 4)
  for row = 0, 2 do expect(shown("Label2(" .. row .. ")"), "なし") end
  expect(shown("Label4(0)"), "8")
  expect(shown("Label4(1)"), "4")
  expect(enabled(2), false)
end)

test("the second hero's button takes off hers and leaves his", function()
  opened()
  pick(sword)
  click("Wepon.Command1")
  tab("Wepon.SSTab1", 1)
  for _, row in ipairs { staff, robe, book } do
    pick(row)
    click("Wepon.Command3")
  end
  click("Wepon.Command4")
  for _, name in ipairs { "WeaponName", "ArmourName", "BookName" } do expect(get(name .. "[1]"), none, name) end
  for _, value in ipairs { "WeaponAttack", "ArmourDefence", "BookSkill" } do expect(get(value .. "[1]"), 0, value) end
  expect(get("Attack[1]"), 4)
  expect(get("Defence[1]"), 6)
  expect(enabled(4), false)
  expect(get("WeaponName[0]"), padded "Sword")
  expect(get("Attack[0]"), 15)
end)

test("a book that the other hero wears is refused, its second copy too, until it is taken off", function()
  opened()
  pick(book)
  click("Wepon.Command1")
  expect(enabled(1), true, "the one who wears it may wear it again")
  tab("Wepon.SSTab1", 1)
  expect(enabled(3), false)
  pick(second_book)
  expect(enabled(3), false)
  pick(tome)
  expect(enabled(3), true)
  tab("Wepon.SSTab1", 0)
  click("Wepon.Command2")
  tab("Wepon.SSTab1", 1)
  pick(second_book)
  expect(enabled(3), true)
  click("Wepon.Command3")
  expect(get("BookName[1]"), padded "Book")
  tab("Wepon.SSTab1", 0)
  expect(enabled(1), false)
end)

test("an empty row is refused whatever book the other hero wears", function()
  opened()
  tab("Wepon.SSTab1", 1)
  pick(book)
  click("Wepon.Command3")
  tab("Wepon.SSTab1", 0)
  pick(tome)
  expect(enabled(1), true)
  pick(empty)
  expect(enabled(1), false)
end)

test("a weapon of the name of a worn one can be worn, for only books are compared", function()
  opened()
  click("Wepon.Command5")
  things.write { [1] = { "Blade", 1, 7 }, [4] = { "Blade", 3, 6 } }
  click("Main.m21")
  pick(sword)
  click("Wepon.Command1")
  expect(get("WeaponName[0]"), padded "Blade")
  tab("Wepon.SSTab1", 1)
  pick(staff)
  expect(enabled(3), true)
  click("Wepon.Command3")
  expect(get("WeaponName[1]"), padded "Blade")
end)

test("the tab changed with a row selected judges that row for the new hero", function()
  opened()
  pick(staff)
  expect(enabled(1), false)
  tab("Wepon.SSTab1", 1)
  expect(enabled(3), true)
  pick(sword)
  expect(enabled(3), false)
  tab("Wepon.SSTab1", 0)
  expect(enabled(1), true)
end)

test("the tab changed with no row selected leaves nothing to wear", function()
  opened()
  expect(get("Wepon.LastRow"), 0)
  tab("Wepon.SSTab1", 1)
  expect(enabled(3), false)
  tab("Wepon.SSTab1", 0)
  expect(enabled(1), false, "row 0 is a sword, but it is not selected")
end)

test("the remove-all button of a tab is grey until its hero wears something", function()
  opened { ["BookName[1]"] = "Tome" }
  expect(enabled(2), false)
  tab("Wepon.SSTab1", 1)
  expect(enabled(4), true)
  tab("Wepon.SSTab1", 0)
  expect(enabled(2), false)
end)

test("a thing of an unknown kind can be pressed, changes nothing, and lights the remove-all button", function()
  opened()
  pick(odd)
  expect(enabled(1), true)
  click("Wepon.Command1")
  expect(enabled(2), true)
  expect(get("Attack[0]"), 8)
  expect(get("Defence[0]"), 4)
  expect(get("BookSkill[0]"), 0)
  for _, name in ipairs { "WeaponName", "ArmourName", "BookName" } do expect(get(name .. "[0]"), none, name) end
  click("Wepon.Command2")
  expect(enabled(2), false)
  expect(get("Attack[0]"), 8)
  expect(get("WeaponName[0]"), none)
end)

test("coming back to the screen clears the selection and keeps the buttons", function()
  opened()
  pick(sword)
  expect(enabled(1), true)
  activate("Main")
  activate("Wepon")
  expect(get("Wepon.List1.ListIndex"), -1)
  expect(get("Wepon.List1.ListCount"), 20)
  expect(enabled(1), true)
  click("Wepon.Command1")
  expect(get("WeaponName[0]"), none, "without a row the button does nothing")
  expect(get("Attack[0]"), 8)
end)

test("attack and defence are the sum of their parts whenever the screen comes up", function()
  opened { ["BaseAttack[0]"] = 50, ["WeaponAttack[0]"] = 7, ["BaseDefence[1]"] = 21, ["ArmourDefence[1]"] = 3,
    ["Attack[0]"] = 1, ["Defence[1]"] = 1 }
  expect(get("Attack[0]"), 57)
  expect(get("Defence[1]"), 24)
  expect(shown("Label4(0)"), "57")
  expect(shown("Label9(1)"), "24")
end)

test("either button and the window's close control lead back to the walk, and nothing is kept", function()
  for _, way in ipairs { "Command5", "Command6", "close" } do
    opened()
    pick(tome)
    if way == "close" then
      close("Wepon")
    else
      if way == "Command6" then tab("Wepon.SSTab1", 1) end
      click("Wepon." .. way)
    end
    expect(active(), "Main", way)
    expect(get("Wepon.Loaded"), false, way)
    expect(get("Main.Timer1.Enabled"), true, way)
    click("Main.m21")
    expect(get("Wepon.LastRow"), 0)
    expect(get("Wepon.SSTab1.Tab"), 0)
    expect(enabled(1), false)
  end
end)
