local steps = require "lib.steps"

-- The record on the disk, by offset: name, first index, count, and how each entry is packed.
local layout = {
  { 0, "Round", 1, "<i2" }, { 2, "SaveX", 1, "<i2" }, { 4, "SaveY", 1, "<i2" },
  { 8, "TreasureLeft", 16, "<i2" }, { 40, "TreasureNo", 1, "<i2" }, { 42, "BookLeft", 5, "<i2" },
  { 52, "BookNo", 1, "<i2" }, { 54, "SaveMapA", 1, "<i2" }, { 56, "SaveMapB", 1, "<i2" },
  { 82, "Level", 3, "<i2" }, { 88, "HP", 3, "<i2" }, { 94, "MP", 3, "<i2" }, { 100, "MaxHP", 3, "<i2" },
  { 106, "MaxMP", 3, "<i2" }, { 112, "WeaponAttack", 3, "<i2" }, { 118, "ArmourDefence", 3, "<i2" },
  { 124, "BookSkill", 3, "<i2" }, { 130, "Attack", 3, "<i2" }, { 136, "Defence", 3, "<i2" },
  { 142, "BaseAttack", 3, "<i2" }, { 148, "BaseDefence", 3, "<i2" }, { 154, "Spirit", 3, "<i2" },
  { 160, "WazaKnown", 11, "<i2" }, { 182, "MagicKnown", 11, "<i2" }, { 204, "WazaUse", 11, "<i2" },
  { 226, "MagicUse", 11, "<i2" }, { 450, "ItemCount", 1, "<i2" }, { 452, "Items", 21, "<i2" },
  { 494, "Exp", 3, "<i4" }, { 506, "StoryNo", 1, "<i2" }, { 532, "SaveLevel", 3, "<i2" }, { 538, "SaveRound", 1, "<i2" },
}

-- Texts: offset, name, width of one in bytes. All come in threes.
local texts = {
  { 58, "HeroName", 8 }, { 270, "WeaponName", 20 }, { 330, "ArmourName", 20 }, { 390, "BookName", 20 },
  { 508, "SaveName", 8 },
}

-- What the save itself writes into the record.
local written = { SaveX = true, SaveY = true, SaveMapA = true, SaveMapB = true, SaveLevel = true, SaveRound = true }

local function number_at(bytes, offset, format)
  return (string.unpack(format or "<i2", bytes, offset + 1))
end

local function each_entry(visit)
  for _, row in ipairs(layout) do
    local offset, name, count, format = table.unpack(row)
    for i = 0, count - 1 do
      visit(offset + i * string.packsize(format), count == 1 and name or name .. "[" .. i .. "]", format, name)
    end
  end
end

-- A record whose every number is told by its offset, its texts by "A" to "O".
local function patterned()
  local bytes = {}
  for i = 1, 540 do bytes[i] = "\0" end
  local function put(offset, text)
    for i = 1, #text do bytes[offset + i] = text:sub(i, i) end
  end
  each_entry(function(offset, _, format) put(offset, string.pack(format, 1000 + offset)) end)
  local letter = 65
  for _, row in ipairs(texts) do
    for i = 0, 2 do
      put(row[1] + i * row[3], string.char(letter) .. (" "):rep(row[3] - 1))
      letter = letter + 1
    end
  end
  return table.concat(bytes)
end

-- A small sound record: a party on map 2, 4 at (100, 100) of round 2.
local function small_record(changes)
  local bytes = ("\0"):rep(540)
  local function put(offset, text)
    bytes = bytes:sub(1, offset) .. text .. bytes:sub(offset + #text + 1)
  end
  local values = { [0] = 2, [2] = 100, [4] = 100, [54] = 2, [56] = 4, [82] = 11, [84] = 12, [88] = 77, [90] = 66,
    [94] = 5, [96] = 6, [100] = 300, [102] = 200, [106] = 50, [108] = 60, [208] = 33, [228] = 44, [506] = 24,
    [532] = 11, [534] = 12, [538] = 2 }
  for offset, value in pairs(values) do put(offset, string.pack("<i2", value)) end
  for offset, name in pairs { [58] = "GEN     ", [66] = "YUI     ", [74] = "        ", [508] = "GEN     ", [516] = "YUI     " } do
    put(offset, name)
  end
  for offset, text in pairs(changes or {}) do put(offset, text) end
  return bytes
end

-- The title of a plain world in which these files stand.
local function title(files)
  prepare()
  for b = 1, 5 do
    for a = 1, 5 do write_map(("Mapdata/map%d-%d.dat"):format(b, a), 7) end
  end
  write_map("Mapdata/map0-0.dat", 7)
  for name, bytes in pairs(files or {}) do write_file(name, bytes) end
  start { keep = true }
end

local function row_of(list, name)
  for row = 0, get(list .. ".ListCount") - 1 do
    if get(list .. ".List(" .. row .. ")") == name then return row end
  end
  error(name .. " is not in the list")
end

local function pick(screen, name)
  choose(screen .. ".File1", row_of(screen .. ".File1", name or "Save01.sav"))
end

local function save(name)
  click("Main.m12")
  pick("Save", name)
  answer("Yes")
  click("Save.OKButton")
end

local function load(name)
  click("Main.m11")
  pick("Load", name)
  click("Load.OKButton")
end

local function trimmed(text)
  return (text:gsub(" +$", ""))
end

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

test("the save dialog shows the party as it stands, and a click on a name reads nothing", function()
  steps.plain_world()
  write_file("Save02.sav", small_record())
  set("Round", 3); set("Level[0]", 41); set("Level[1]", 42)
  click("Main.m12")
  for _ = 1, 2 do
    expect(active(), "Save")
    expect(get("Save.Label4.Caption"), "ラウンド：3")
    expect(trimmed(get("Save.Label2(0).Caption")), "カイ")
    expect(trimmed(get("Save.Label2(1).Caption")), "リナ")
    expect(get("Save.Label3(0).Caption"), "LV：41")
    expect(get("Save.Label3(1).Caption"), "LV：42")
    pick("Save", "Save02.sav")
  end
  expect(get("Round"), 3)
  expect(get("Main.Timer1.Enabled"), false)
  expect(get("Save.Caption"), "ファイルのセーブ")
end)

test("saving without a chosen file warns", function()
  steps.plain_world()
  click("Main.m12")
  answer("OK")
  click("Save.OKButton")
  expect(boxes()[1].text, "ファイルを選択してください")
  expect(boxes()[1].title, "警告")
  expect(boxes()[1].buttons, "OK")
  expect(active(), "Save")
end)

test("saving asks, and No leaves file and dialog as they were", function()
  steps.plain_world()
  local before = read_file("Save03.sav")
  click("Main.m12")
  pick("Save", "Save03.sav")
  answer("No")
  click("Save.OKButton")
  expect(boxes()[1].text, "よろしいですか？")
  expect(boxes()[1].title, "ゲームのセーブ")
  expect(boxes()[1].buttons, "YesNo")
  expect(active(), "Save")
  expect(read_file("Save03.sav"), before)
  expect(get("SaveX"), 13, "nothing has been copied")
  answer("Yes")
  click("Save.OKButton")
  expect(active(), "Main")
  expect(get("Main.Timer1.Enabled"), true)
  expect(number_at(read_file("Save03.sav"), 2), 192)
end)

test("a save goes into the chosen file alone, the last one clicked", function()
  steps.plain_world()
  local before = read_file("Save04.sav")
  click("Main.m12")
  pick("Save", "Save04.sav")
  pick("Save", "Save05.sav")
  answer("Yes")
  click("Save.OKButton")
  expect(read_file("Save04.sav"), before)
  expect(number_at(read_file("Save05.sav"), 538), 1)
  expect(#read_file("Save05.sav"), 540)
end)

test("a closed save dialog writes nothing, and the walk goes on", function()
  steps.plain_world()
  local before = read_file("Save01.sav")
  click("Main.m12")
  pick("Save")
  close("Save")
  expect(read_file("Save01.sav"), before)
  expect(active(), "Main")
  expect(get("Main.Timer1.Enabled"), true)
  expect(get("Save.Loaded"), false)
end)

test("a save leaves no other file behind", function()
  steps.plain_world()
  local before = table.concat(list_files("*"), "|")
  save()
  expect(table.concat(list_files("*"), "|"), before)
end)

test("the preview shows the file's copies and reads the whole record into the game", function()
  title { ["Save02.sav"] = small_record { [82] = string.pack("<i2", 99), [508] = "OLD     ", [0] = string.pack("<i2", 3) } }
  click("Main.m11")
  expect(get("Load.Caption"), "ファイルのロード")
  pick("Load", "Save02.sav")
  expect(get("Load.Label4.Caption"), "ラウンド：2")
  expect(trimmed(get("Load.Label2(0).Caption")), "OLD")
  expect(trimmed(get("Load.Label2(1).Caption")), "YUI")
  expect(get("Load.Label3(0).Caption"), "LV：11")
  expect(get("Load.Label3(1).Caption"), "LV：12")
  expect(get("Level[0]"), 99, "the record itself")
  expect(get("Round"), 3)
  expect(get("HP[0]"), 77)
  expect(get("MapA"), 3, "not before OK")
  expect(get("GameStarted"), 0)
end)

test("loading without a click on a name warns, though the list has a first name", function()
  title()
  click("Main.m11")
  expect(get("Load.File1.ListCount"), 10)
  answer("OK")
  click("Load.OKButton")
  expect(boxes()[1].text, "ファイルを選択してください")
  expect(boxes()[1].title, "警告")
  expect(boxes()[1].buttons, "OK")
  expect(active(), "Load")
  expect(get("GameStarted"), 0)
end)

test("loading asks nothing", function()
  title { ["Save01.sav"] = small_record() }
  load()
  expect(#boxes(), 0)
  expect(active(), "Main")
  for name, value in pairs { MapA = 2, MapB = 4, HeroX = 100, HeroY = 100, Round = 2, StoryNo = 24, ["Level[1]"] = 12 } do
    expect(get(name), value, name)
  end
end)

test("OK reads the file as it is then, not as it was at the click", function()
  title { ["Save01.sav"] = small_record() }
  click("Main.m11")
  pick("Load")
  expect(get("Round"), 2)
  write_file("Save01.sav", small_record { [0] = string.pack("<i2", 3), [2] = string.pack("<i2", 220) })
  click("Load.OKButton")
  expect(get("Round"), 3)
  expect(get("HeroX"), 220)
end)

test("a preview given up undoes what a new game sets, and keeps the rest", function()
  title { ["Save01.sav"] = small_record() }
  click("Main.m11")
  pick("Load")
  close("Load")
  expect(active(), "Main")
  expect(get("GameStarted"), 0)
  for name, value in pairs { Round = 1, StoryNo = 0, ["Level[0]"] = 1, ["HP[0]"] = 120, ["MaxMP[1]"] = 30, ItemCount = 3,
    ["Items[0]"] = 47, ["TreasureLeft[0]"] = -1, MapA = 3, MapB = 3, SaveX = 13, SaveY = 7 } do
    expect(get(name), value, name)
  end
  for name, value in pairs { SaveMapA = 2, SaveMapB = 4, ["SaveLevel[0]"] = 11, SaveRound = 2, ["WazaUse[2]"] = 33,
    ["MagicUse[1]"] = 44 } do
    expect(get(name), value, name)
  end
  expect(trimmed(get("HeroName[0]")), "GEN")
  expect(trimmed(get("SaveName[1]")), "YUI")
  expect(get("Main.Command1.Visible"), true)
  expect(get("Main.Label1.Visible"), true)
end)

test("a new game after a preview given up keeps that file's proficiency, but not its names", function()
  title { ["Save01.sav"] = small_record() }
  click("Main.m11")
  pick("Load")
  close("Load")
  steps.enter_names()
  expect(get("WazaUse[2]"), 33)
  expect(get("MagicUse[1]"), 44)
  expect(trimmed(get("HeroName[0]")), "カイ")
  expect(get("Level[0]"), 1)
end)

test("a new game starts on its place after a preview given up", function()
  title { ["Save01.sav"] = small_record() }
  click("Main.m11")
  pick("Load")
  close("Load")
  steps.enter_names()
  expect(get("HeroX"), 192)
  expect(get("HeroY"), 96)
end)

test("an empty file reads as zeros and blanks, and loads without complaint", function()
  title { ["Save01.sav"] = "" }
  click("Main.m11")
  pick("Load")
  expect(get("Load.Label4.Caption"), "ラウンド：0")
  expect(trimmed(get("Load.Label2(0).Caption")), "")
  expect(get("Load.Label3(0).Caption"), "LV：0")
  expect(get("HeroName[0]"), (" "):rep(8))
  expect(get("WeaponName[1]"), (" "):rep(20))
  each_entry(function(_, name) expect(get(name), 0, name) end)
  click("Load.OKButton")
  expect(#boxes(), 0)
  expect(ended(), false)
  expect(get("GameStarted"), -1)
  expect(get("MapA"), 0)
end)

test("a short file's missing bytes read as zeros and blanks", function()
  for _, length in ipairs { 1, 3, 60, 89, 400, 539 } do
    local whole = patterned()
    title { ["Save01.sav"] = whole:sub(1, length) }
    click("Main.m11")
    pick("Load")
    each_entry(function(offset, name, format)
      local size = string.packsize(format)
      if offset + size <= length then
        expect(get(name), 1000 + offset, ("%s of %d bytes"):format(name, length))
      elseif offset >= length then
        expect(get(name), 0, ("%s of %d bytes"):format(name, length))
      end
    end)
    if length <= 508 then expect(get("SaveName[0]"), (" "):rep(8)) end
    if length <= 270 then expect(get("WeaponName[0]"), (" "):rep(20)) end
    if length >= 60 then expect(trimmed(get("HeroName[0]")), "A") end
  end
end)

test("a short file is whole after a save into it", function()
  steps.plain_world()
  write_file("Save01.sav", "abc")
  save()
  expect(#read_file("Save01.sav"), 540)
  expect(number_at(read_file("Save01.sav"), 538), 1)
end)

test("of an overlong file the first 540 bytes count", function()
  title { ["Save01.sav"] = small_record() .. ("\x7F"):rep(1000) }
  load()
  expect(get("Round"), 2)
  expect(get("SaveRound"), 2)
  expect(get("HeroX"), 100)
  expect(ended(), false)
end)

test("a foreign file is read as it stands, and ends the program at most with the box of a run-time error", function()
  local garbage = {}
  for i = 0, 539 do garbage[i + 1] = string.char((i * 89 + 41) % 256) end
  title { ["Save01.sav"] = table.concat(garbage) }
  click("Main.m11")
  pick("Load")
  expect(get("Round"), number_at(table.concat(garbage), 0))
  expect(get("ItemCount"), number_at(table.concat(garbage), 450))
  click("Load.OKButton")
  -- There is no such map.
  expect(ended(), true)
  expect(error_kind(), "file")
  expect(exit_status() ~= 0, true)
  expect(read_file("Save01.sav"), table.concat(garbage), "the file is untouched")
end)

test("a file of blanks loads without complaint", function()
  local blanks = small_record()
  for _, row in ipairs(texts) do
    blanks = blanks:sub(1, row[1]) .. (" "):rep(3 * row[3]) .. blanks:sub(row[1] + 3 * row[3] + 1)
  end
  title { ["Save01.sav"] = blanks }
  load()
  expect(ended(), false)
  expect(get("HeroName[0]"), (" "):rep(8))
  expect(active(), "Main")
  tick("Main.Timer1")
  expect(ended(), false)
end)

test("the game comes with ten slots that look empty and start a game", function()
  prepare()
  local names = {}
  for slot = 1, 10 do names[slot] = ("Save%02d.sav"):format(slot) end
  expect(table.concat(list_files("*.sav"), "|"), table.concat(names, "|"))
  for _, name in ipairs(names) do
    local bytes = read_file(name)
    expect(#bytes, 540, name)
    for offset, value in pairs { [0] = 1, [2] = 192, [4] = 96, [8] = -1, [36] = -1, [42] = -1, [54] = 3, [56] = 3, [82] = 1,
      [88] = 120, [90] = 80, [94] = 10, [96] = 30, [130] = 8, [158] = 0, [160] = 0, [450] = 3, [452] = 47, [458] = 99,
      [490] = 99, [506] = 21, [532] = 0, [534] = 0, [538] = 0 } do
      expect(number_at(bytes, offset), value, name .. " at " .. offset)
    end
    expect(bytes:sub(509, 532), (" "):rep(24), name)
    expect(trimmed(bytes:sub(59, 66)) ~= "", true, "the first hero has a name")
    expect(trimmed(bytes:sub(67, 74)) ~= "", true, "the second hero has a name")
  end
  start { keep = true }
  click("Main.m11")
  pick("Load", "Save10.sav")
  expect(get("Load.Label4.Caption"), "ラウンド：0")
  expect(trimmed(get("Load.Label2(0).Caption")), "")
  expect(get("Load.Label3(1).Caption"), "LV：0")
  click("Load.OKButton")
  expect(ended(), false)
  expect(get("Main.Timer1.Enabled"), true)
  tick("Main.Timer1")
  expect(ended(), false)
  expect(get("HeroX"), 192)
end)

test("the lists offer the save files of the folder and no others", function()
  prepare()
  for _, name in ipairs(list_files("*.sav")) do delete_file(name) end
  write_file("b.sav", small_record())
  write_file("a.sav", small_record())
  write_file("c.txt", "no")
  start { keep = true }
  click("Main.m11")
  expect(get("Load.File1.ListCount"), 2)
  expect(get("Load.File1.List(0)"), "a.sav")
  expect(get("Load.File1.List(1)"), "b.sav")
  choose("Load.File1", 1)
  expect(get("Load.File1.FileName"), "b.sav")
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

test("a file gone between click and OK loses nothing: the save lands whole, or the program ends with its box", function()
  steps.plain_world()
  click("Main.m12")
  pick("Save")
  delete_file("Save01.sav")
  answer("Yes")
  click("Save.OKButton")
  if ended() then
    expect(error_kind(), "file")
  else
    expect(#read_file("Save01.sav"), 540)
    expect(number_at(read_file("Save01.sav"), 2), 192)
  end
  expect(#read_file("Save02.sav"), 540)
end)

test("two saves in one run both land, the later one over the earlier", function()
  steps.plain_world()
  save()
  steps.walk("Right", 3)
  save()
  expect(number_at(read_file("Save01.sav"), 2), 204)
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

test("each opening of a dialog begins without a chosen file", function()
  steps.plain_world()
  click("Main.m12")
  pick("Save")
  close("Save")
  click("Main.m12")
  answer("OK")
  click("Save.OKButton")
  expect(boxes()[1].text, "ファイルを選択してください")
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

test("a place off the map ends the program at the first step", function()
  for _, place in ipairs { { 2, -5 }, { 2, 32767 }, { 4, 3 }, { 4, 272 } } do
    title { ["Save01.sav"] = small_record { [place[1]] = string.pack("<i2", place[2]) } }
    load()
    expect(ended(), false)
    tick("Main.Timer1")
    expect(error_kind(), "subscript", "place " .. place[2])
    expect(exit_status() ~= 0, true)
  end
end)

test("a story number beyond the lines ends the program when a scene begins", function()
  for number, kind in pairs { [46] = false, [47] = "subscript", [-1] = "subscript" } do
    title { ["Save01.sav"] = small_record { [506] = string.pack("<i2", number) } }
    load()
    set("BossFight", -1)
    click("Main.m32")
    click("Chardata.Command1")
    expect(ended(), false)
    tick("Main.Timer3")
    expect(error_kind() or false, kind, "line " .. number)
  end
end)

test("a trained skill that is none ends the program at the first win", function()
  title { ["Save01.sav"] = small_record { [124] = string.pack("<i2", 50), [2] = string.pack("<i2", 100) } }
  load()
  steps.battle(0, 0)
  for slot = 0, 3 do set("EnemyLife[" .. slot .. "]", -10000) end
  steps.leave_alive(1)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  steps.play_to(28)
  tick("Battle.Timer1")
  expect(error_kind(), "subscript")
end)
