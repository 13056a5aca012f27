-- The saved record as it lies on the disk, and the dialogs that move it.

local trimmed = require "lib.steps".trimmed

local records = {}

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

records.texts = texts
records.written = written
records.number_at = number_at
records.each_entry = each_entry
records.patterned = patterned
records.small_record = small_record
records.title = title
records.pick = pick
records.save = save
records.load = load
records.trimmed = trimmed

return records
