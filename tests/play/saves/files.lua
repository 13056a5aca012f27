local steps = require "lib.steps"
local records = require "lib.records"

local texts, number_at, each_entry, patterned = records.texts, records.number_at, records.each_entry, records.patterned
local small_record, title, pick, save = records.small_record, records.title, records.pick, records.save
local load, trimmed = records.load, records.trimmed

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
