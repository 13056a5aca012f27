local steps = require "lib.steps"
local records = require "lib.records"

local texts, written, number_at, each_entry = records.texts, records.written, records.number_at, records.each_entry
local patterned, small_record, title, pick = records.patterned, records.small_record, records.title, records.pick
local save, load, trimmed = records.save, records.load, records.trimmed

test("a save is 540 bytes with every number at its place", function()
  steps.plain_world()
  each_entry(function(offset, name, _, field)
    if not written[field] then set(name, 1000 + offset) end
  end)
  set("HeroX", 123); set("HeroY", 234)
  set("MapA", 2); set("MapB", 5)
  set("SaveLevel[2]", 1536)
  save()
  local bytes = read_file("Save01.sav")
  expect(#bytes, 540)
  each_entry(function(offset, name, format, field)
    if not written[field] then expect(number_at(bytes, offset, format), 1000 + offset, name) end
  end)
  expect(number_at(bytes, 2), 123)
  expect(number_at(bytes, 4), 234)
  expect(number_at(bytes, 54), 2)
  expect(number_at(bytes, 56), 5)
  expect(number_at(bytes, 532), 1082, "the copy of the first level")
  expect(number_at(bytes, 534), 1084)
  expect(number_at(bytes, 536), 1536, "the third is not written")
  expect(number_at(bytes, 538), 1000, "the copy of the round")
end)

test("negative and large numbers come through", function()
  steps.plain_world()
  set("Exp[0]", 2147483647)
  set("Exp[1]", -2147483648)
  set("MP[1]", -7)
  set("HP[0]", 32767)
  save()
  local bytes = read_file("Save01.sav")
  expect(number_at(bytes, 494, "<i4"), 2147483647)
  expect(number_at(bytes, 498, "<i4"), -2147483648)
  expect(number_at(bytes, 96), -7)
  expect(number_at(bytes, 88), 32767)
end)

test("texts are left-aligned and padded with blanks, in the files' own encoding", function()
  steps.plain_world()
  set("WeaponName[0]", "Sword")
  save()
  local bytes = read_file("Save01.sav")
  expect(bytes:sub(59, 66), "\x83\x4A\x83\x43    ")
  expect(bytes:sub(67, 74), "\x83\x8A\x83\x69    ")
  expect(bytes:sub(75, 82), (" "):rep(8))
  expect(bytes:sub(509, 516), "\x83\x4A\x83\x43    ", "the copy")
  expect(bytes:sub(517, 524), "\x83\x8A\x83\x69    ")
  expect(bytes:sub(271, 290), "Sword" .. (" "):rep(15))
  expect(bytes:sub(291, 310), "\x82\xC8\x82\xB5" .. (" "):rep(16))
  expect(bytes:sub(391, 410), "\x82\xC8\x82\xB5" .. (" "):rep(16))
end)

test("a name of more than eight bytes is cut at a whole character", function()
  start()
  steps.enter_names("あいうえおか", "aあいうえ")
  for _ = 1, 20 do click("Main.Picture1") end
  save()
  local bytes = read_file("Save01.sav")
  expect(bytes:sub(59, 66), "\x82\xA0\x82\xA2\x82\xA4\x82\xA6")
  expect(bytes:sub(67, 74), "a\x82\xA0\x82\xA2\x82\xA4 ")
  expect(get("HeroName[0]"), "あいうえおか  ", "in memory it stays whole")
end)

test("characters that the files' encoding lacks become wide question marks", function()
  start()
  steps.enter_names("aäb", "😀")
  for _ = 1, 20 do click("Main.Picture1") end
  save()
  local bytes = read_file("Save01.sav")
  expect(bytes:sub(59, 66), "a\x81\x48b    ")
  expect(bytes:sub(67, 74), "\x81\x48      ")
  expect(trimmed(get("HeroName[0]")), "aäb", "in memory the name stays")
end)

test("a load reads every number from its place", function()
  title { ["Save01.sav"] = patterned() }
  click("Main.m11")
  pick("Load")
  each_entry(function(offset, name) expect(get(name), 1000 + offset, name) end)
  local letter = 65
  for _, row in ipairs(texts) do
    for i = 0, 2 do
      expect(trimmed(get(row[2] .. "[" .. i .. "]")), string.char(letter), row[2] .. " " .. i)
      letter = letter + 1
    end
  end
end)

test("a loaded record is saved byte for byte as it was, the reserved fields too", function()
  local reserved = ""
  for i = 0, 10 do reserved = reserved .. string.pack("<i2", 300 + i) end
  local bytes = small_record { [6] = string.pack("<i2", 777), [248] = reserved, [524] = (" "):rep(8) }
  for _, row in ipairs(texts) do
    if row[3] == 20 then bytes = bytes:sub(1, row[1]) .. ("Something" .. (" "):rep(11)):rep(3) .. bytes:sub(row[1] + 61) end
  end
  title { ["Save01.sav"] = bytes }
  load()
  save("Save02.sav")
  local again = read_file("Save02.sav")
  expect(#again, 540)
  for offset = 0, 539 do
    expect(again:byte(offset + 1), bytes:byte(offset + 1), "byte " .. offset)
  end
  expect(read_file("Save01.sav"), bytes)
end)

test("a game saved and loaded in a second run goes on where it stood", function()
  steps.plain_world()
  set("MapA", 2); set("MapB", 4)
  steps.put(148, 132)
  set("Round", 2); set("StoryNo", 24)
  set("HP[1]", 33); set("Exp[0]", 123456)
  set("Items[5]", 21); set("WazaKnown[4]", -1); set("TreasureLeft[3]", 0)
  set("ArmourName[1]", "Robe")
  save("Save07.sav")
  start { keep = true }
  expect(get("HeroX"), 192)
  load("Save07.sav")
  expect(active(), "Main")
  for name, value in pairs { MapA = 2, MapB = 4, HeroX = 148, HeroY = 132, Round = 2, StoryNo = 24, ["HP[1]"] = 33,
    ["Exp[0]"] = 123456, ["Items[5]"] = 21, ["Items[2]"] = 47, ["WazaKnown[4]"] = -1, ["TreasureLeft[3]"] = 0,
    ["TreasureLeft[4]"] = -1, ItemCount = 3, GameStarted = -1, OpeningDone = -1 } do
    expect(get(name), value, name)
  end
  expect(trimmed(get("HeroName[0]")), "カイ")
  expect(trimmed(get("ArmourName[1]")), "Robe")
  expect(get("Main.Timer1.Enabled"), true)
  expect(get("Main.Timer3.Enabled"), false)
  expect(get("Main.Command1.Visible"), false)
  expect(get("Main.Label1.Visible"), false)
  expect(get("Main.m11.Enabled"), false)
  expect(get("Main.m12.Enabled"), true)
  expect(get("Main.Label5(2).Caption"), "HP ：33/80")
  steps.walk("Right", 1)
  expect(get("HeroX"), 152)
end)

test("two saves in one run both land, the later one over the earlier", function()
  steps.plain_world()
  save()
  steps.walk("Right", 3)
  save()
  expect(number_at(read_file("Save01.sav"), 2), 204)
end)

test("a save takes the place where the party stands at OK", function()
  steps.plain_world()
  click("Main.m12")
  pick("Save")
  activate("Main")
  steps.walk("Right", 2)
  answer("Yes")
  click("Save.OKButton")
  expect(number_at(read_file("Save01.sav"), 2), 200)
end)

test("a save in the room behind tile 131 leads to that place on the grid's map", function()
  steps.plain_world()
  write_map("Mapdata/BookF.dat", 8)
  set("MapTile[7][6]", 131)
  steps.put(112, 112)
  steps.walk("Up", 1)
  expect(get("InBook"), -1)
  save()
  start { keep = true }
  load()
  expect(get("InBook"), 0)
  expect(get("MapA"), 3)
  expect(get("MapB"), 3)
  expect(get("HeroX"), 232)
  expect(get("HeroY"), 220)
  expect(get("MapTile[14][13]"), 7, "the grid's ground, not the room's")
end)

-- From the end of the third round's story.
local function last_stage()
  steps.plain_world()
  set("Round", 3)
  set("BossFight", -1)
  set("StoryNo", 30)
  click("Main.Picture1")
  expect(get("Round"), 4)
  expect(get("LastBossFight"), -1)
end

test("a save right at the start of the last stage is possible, and loses the last stage", function()
  last_stage()
  expect(get("Main.m12.Enabled"), true)
  save()
  local bytes = read_file("Save01.sav")
  expect(number_at(bytes, 0), 4)
  expect(number_at(bytes, 54), 0)
  expect(number_at(bytes, 56), 0)
  start { keep = true }
  load()
  expect(get("LastBossFight"), 0)
  expect(get("Round"), 4)
  expect(get("Main.m12.Enabled"), true)
  clear_sounds()
  tick("Main.Timer1", 3)
  expect(#sounds { status = true }, 0, "no music")
  steps.put(228, 48)
  steps.walk("Right", 1)
  expect(active(), "Main", "the last fight does not start")
  steps.walk("Left", 1, steps.encounter)
  expect(active(), "Battle", "but others do")
end)

test("after the first activation of the last stage there is no saving", function()
  last_stage()
  click("Main.m32")
  click("Chardata.Command1")
  expect(get("Main.m12.Enabled"), false)
  expect(can_click("Main.m12"), false)
end)

test("loading is over once the game runs, and saving has not begun on the title", function()
  title()
  expect(can_click("Main.m11"), true)
  expect(can_click("Main.m12"), false)
  steps.enter_names()
  for _ = 1, 20 do click("Main.Picture1") end
  expect(can_click("Main.m11"), false)
  expect(can_click("Main.m12"), true)
end)
