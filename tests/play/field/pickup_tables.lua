local ground = require "lib.ground"

local on = ground.on

-- Empties what a pickup has filled, and shuts its chest again.
local function again(left, number)
  click("Main.Picture1")
  set("Items[3]", 99)
  set("ItemCount", 3)
  set(left .. "[" .. number .. "]", -1)
end

local chests = {
  { 0, 3, 3, 1, 5, 9 },     { 1, 2, 1, 21, 24, 48 },  { 2, 2, 2, 29, 32, 27 },
  { 3, 3, 1, 13, 16, 10 },  { 4, 1, 1, 2, 6, 35 },    { 5, 1, 3, 30, 33, 19 },
  { 6, 1, 4, 14, 17, 48 },  { 7, 1, 5, 22, 25, 11 },  { 8, 2, 4, 47, 48, 20 },
  { 9, 4, 5, 3, 7, 49 },    { 10, 4, 4, 23, 26, 28 }, { 11, 5, 3, 15, 18, 36 },
  { 12, 4, 2, 47, 48, 49 }, { 13, 4, 1, 31, 34, 49 }, { 14, 5, 1, 4, 8, 12 },
}

local books = {
  { 0, 1, 3, 37, 40, 43 }, { 1, 3, 4, 38, 41, 44 }, { 2, 3, 2, 39, 42, 45 }, { 3, 6, 4, 46, 46, 46 },
}

for round = 1, 3 do
  test("every chest of round " .. round .. " gives its thing", function()
    on(36)
    set("Round", round)
    for _, row in ipairs(chests) do
      local number, a, b, item = row[1], row[2], row[3], row[3 + round]
      local note = ("chest %d on %d, %d"):format(number, a, b)
      set("MapA", a); set("MapB", b)
      tick("Main.Timer1")
      expect(get("TreasureNo"), number, note)
      expect(get("Items[3]"), item, note)
      expect(get("TreasureLeft[" .. number .. "]"), 0, note)
      expect(get("ItemCount"), 4, note)
      expect(get("Main.Label6(0).Caption"), ("Thing %02d"):format(item), note)
      expect(get("Main.Label6(1).Caption"), "を手に入れた", note)
      again("TreasureLeft", number)
    end
  end)

  test("every book chest of round " .. round .. " gives its book and teaches its pair of skills", function()
    on(73)
    set("Round", round)
    for _, row in ipairs(books) do
      local number, a, b, item = row[1], row[2], row[3], row[3 + round]
      local note = ("book chest %d on %d, %d"):format(number, a, b)
      set("MapA", a); set("MapB", b)
      for skill = 0, 10 do
        set("WazaKnown[" .. skill .. "]", 0); set("MagicKnown[" .. skill .. "]", 0)
      end
      tick("Main.Timer1")
      expect(get("BookNo"), number, note)
      expect(get("Items[3]"), item, note)
      expect(get("BookLeft[" .. number .. "]"), 0, note)
      expect(get("ItemCount"), 4, note)
      expect(get("Main.Label6(0).Caption"), ("Thing %02d"):format(item), note)
      expect(get("Main.Label6(1).Caption"), "を手に入れた", note)
      for skill = 0, 10 do
        local known = skill == item - 37 and -1 or 0
        expect(get("WazaKnown[" .. skill .. "]"), known, note .. ", technique " .. skill)
        expect(get("MagicKnown[" .. skill .. "]"), known, note .. ", spell " .. skill)
      end
      again("BookLeft", number)
    end
  end)
end

test("in round 3 the chests of 4, 2 and of 4, 1 both give thing 49", function()
  on(36, 4, 2, 3)
  tick("Main.Timer1")
  click("Main.Picture1")
  set("MapB", 1)
  tick("Main.Timer1")
  expect(get("Items[3]"), 49)
  expect(get("Items[4]"), 49)
  expect(get("ItemCount"), 5)
  expect(get("TreasureLeft[12]"), 0)
  expect(get("TreasureLeft[13]"), 0)
end)

test("each of the four book tiles is a book chest", function()
  for _, tile in ipairs { 73, 74, 103, 104 } do
    on(tile, 3, 4)
    tick("Main.Timer1")
    expect(get("Items[3]"), 38, "tile " .. tile)
  end
end)

test("outside the table a chest opens the one opened last, and gives nothing", function()
  on(36, 2, 1)
  tick("Main.Timer1")
  click("Main.Picture1")
  expect(get("TreasureNo"), 1)
  set("TreasureLeft[1]", -1)
  set("Main.Label6(0).Caption", "as it was")
  set("MapA", 3); set("MapB", 5)
  tick("Main.Timer1")
  expect(get("TreasureNo"), 1)
  expect(get("TreasureLeft[1]"), 0)
  expect(get("Items[4]"), 99)
  expect(get("ItemCount"), 5)
  expect(get("Main.Label6(0).Caption"), "as it was")
  expect(get("Main.Timer2.Enabled"), true)
end)

test("in round 4 a chest is empty but counts", function()
  on(36, 3, 3, 4)
  tick("Main.Timer1")
  expect(get("Items[3]"), 99)
  expect(get("ItemCount"), 4)
  expect(get("TreasureLeft[0]"), 0)
  expect(get("Main.Timer1.Enabled"), false)
  expect(get("Main.Timer2.Enabled"), true)
end)

test("a book chest outside the table ends the program", function()
  on(104, 3, 5)
  tick("Main.Timer1")
  expect(ended(), true)
  expect(error_kind(), "subscript")
end)

test("a thing beyond the end of the item file is found without a name", function()
  on(36, 4, 2, 3)
  write_file("Item.dat", read_file("Item.dat"):sub(1, 10 * 32))
  tick("Main.Timer1")
  expect(ended(), false)
  expect(get("Items[3]"), 49)
  expect(get("ItemCount"), 4)
  expect(get("Main.Label6(0).Caption"), "")
  expect(get("Main.Label6(1).Caption"), "を手に入れた")
  expect(get("ItemRec.Kind"), 0)
  expect(get("ItemRec.Value"), 0)
  expect(get("ItemRec.Name"), (" "):rep(20))
end)
