local steps = require "lib.steps"

local scene = "Battle.Picture1"
local ground, other_ground, last_ground = "203040", "305020", "503010"
local enemy = "D0B070"
local man, woman = { [0] = "A00000", "B00000", "C00000" }, { [0] = "00A000", "00B000", "00C000" }

-- Sheet `n` of the enemies: a figure of one colour that fills its cell.
local function plain_enemy(n, cell, colour)
  local sheet = ("Battle.Picture6(%d)"):format(n)
  local width, height = picture_size(sheet)
  paint(sheet, "FFFFFF")
  paint(sheet, colour or enemy, 0, 0, cell or 64, height)
  return sheet, width, height
end

local function plain_hero(sheet, colours)
  for column = 0, 2 do
    paint(sheet, colours[column], 24 * column, 96, 24, 32)
    paint(sheet, "FFFFFF", 72 + 24 * column, 96, 24, 32)
  end
end

-- Plain grounds and heroes, effects that draw nothing, and plain sheets of the rows named.
local function plain_sheets(...)
  paint("Battle.Picture7", ground)
  paint("Battle.Picture11", other_ground)
  paint("Battle.Picture12", last_ground)
  plain_hero("Battle.Picture2", man)
  plain_hero("Battle.Picture3", woman)
  paint("Battle.Picture8", "FFFFFF", 0, 0, 192, 144)
  paint("Battle.Picture8", "000000", 192, 0, 192, 144)
  for _, n in ipairs { ... } do plain_enemy(n, n < 3 and 128 or (n == 13 or n == 18) and 160 or 64) end
end

-- Makes one cell of the effects plain.
local function effect(column, row, colour)
  paint("Battle.Picture8", colour, 24 * column, 24 * row, 24, 24)
  paint("Battle.Picture8", "FFFFFF", 192 + 24 * column, 24 * row, 24, 24)
end

local function at(x, y, colour, note) expect(pixel(scene, x, y), colour, ("%s (%d, %d)"):format(note or "at", x, y)) end

-- A filled rectangle: its corners and middle, as far as they lie on the scene.
local function filled(x, y, width, height, colour, note)
  local right, bottom = math.min(x + width - 1, 431), math.min(y + height - 1, 263)
  for _, point in ipairs { { x, y }, { right, y }, { x, bottom }, { right, bottom }, { (x + right) // 2, (y + bottom) // 2 } } do
    at(point[1], point[2], colour, note or "filled")
  end
end

-- The same, with `around` just beyond each side.
local function stands(x, y, width, height, colour, around, note)
  filled(x, y, width, height, colour, note)
  local right, bottom = math.min(x + width, 432), math.min(y + height, 264)
  at(x - 1, y, around, "left of it")
  at(x, y - 1, around, "above it")
  if right < 432 then at(right, y, around, "right of it") end
  if bottom < 264 then at(x, bottom, around, "below it") end
end

local slots = { { 30, 90 }, { 60, 180 }, { 120, 90 }, { 150, 180 } }

-- A plain battle against `count` of a kind.
local function battle(kind, count)
  steps.arena((kind - 3) // 5 + 1)
  plain_sheets(kind)
  steps.battle_with(kind, count)
  steps.strengthen()
end

local function commit(row)
  click("Battle.Command1")
  choose("Battle.List2", row or 1)
end

test("a group of three stands in slots 1, 2 and 3, each 64 by 64", function()
  battle(4, 3)
  for slot = 1, 3 do stands(slots[slot][1], slots[slot][2], 64, 64, enemy, ground, "slot " .. slot) end
  filled(150, 180, 64, 64, ground, "slot 4")
end)

test("a group of four fills all slots", function()
  battle(4, 4)
  for slot = 1, 4 do stands(slots[slot][1], slots[slot][2], 64, 64, enemy, ground, "slot " .. slot) end
end)

test("the heroes stand at the right, enlarged to 40 by 56 from the first cell", function()
  battle(4, 1)
  stands(365, 140, 40, 56, man[0], ground)
  stands(385, 200, 40, 56, woman[0], ground)
  steps.arena()
  plain_sheets(4)
  paint("Battle.Picture2", "0000FF", 12, 96, 12, 32)
  paint("Battle.Picture2", "FFFF00", 0, 112, 12, 16)
  steps.battle_with(4, 1)
  at(365 + 19, 140, man[0])
  at(365 + 20, 140, "0000FF")
  at(365, 140 + 27, man[0])
  at(365, 140 + 28, "FFFF00")
end)

test("a sprite is its mask by OR, then its image by AND", function()
  steps.arena()
  plain_sheets()
  paint("Battle.Picture6(4)", "F0FF0F", 0, 0, 64, 64)
  paint("Battle.Picture6(4)", "0F0F0F", 64, 0, 64, 64)
  steps.battle_with(4, 1)
  filled(30, 90, 64, 64, "203F0F")
end)

test("the ground is shrunk to 432 by 264 without smoothing", function()
  steps.arena()
  plain_sheets(4)
  paint("Battle.Picture7", "0000AA", 240, 0, 240, 144)
  paint("Battle.Picture7", "00AAAA", 0, 144, 480, 144)
  steps.battle_with(4, 1)
  at(0, 0, ground)
  at(215, 10, ground)
  at(216, 10, "0000AA")
  at(300, 131, "0000AA")
  at(300, 132, "00AAAA")
  at(431, 263, "00AAAA")
end)

test("the tile codes 13, 14, 19 and 234 under the party give the other ground", function()
  steps.arena()
  plain_sheets(3)
  for code, colour in pairs { [13] = other_ground, [14] = other_ground, [19] = other_ground, [234] = other_ground,
    [7] = ground, [12] = ground, [20] = ground, [235] = ground } do
    set("MapTile[6][6]", code)
    steps.battle_with(3, 1)
    at(10, 10, colour, "tile " .. code)
    paint("Battle.Picture7", "000001")
    paint("Battle.Picture11", "000002")
    steps.strike()
    at(430, 260, colour == ground and "000001" or "000002", "restored cells on tile " .. code)
    at(10, 10, colour, "other cells on tile " .. code)
    steps.flee()
    paint("Battle.Picture7", ground)
    paint("Battle.Picture11", other_ground)
  end
end)

test("the last boss has a ground of his own, whatever the tile, also where cells are restored", function()
  for _, code in ipairs { 7, 13 } do
    steps.arena()
    plain_sheets(18)
    set("MapTile[14][2]", code)
    steps.last_boss()
    expect(get("TileHere"), code)
    at(10, 10, last_ground)
    at(431, 263, last_ground)
    paint("Battle.Picture12", "000003")
    steps.strike()
    at(430, 260, "000003", "behind the heroes")
    at(72, 34, "000003", "behind the boss")
    at(10, 10, last_ground)
  end
end)

test("the acting hero walks out in frames 2 and 4 and the ground behind is restored", function()
  battle(4, 1)
  commit()
  tick("Battle.Timer1")
  filled(361, 140, 40, 56, man[2])
  at(360, 140, ground)
  at(403, 150, ground)
  tick("Battle.Timer1")
  filled(357, 140, 40, 56, man[1])
  at(356, 150, ground)
  at(397, 150, ground)
  stands(385, 200, 40, 56, woman[0], ground)
end)

test("the second hero walks out on her own line", function()
  battle(4, 1)
  tab("Battle.SSTab1", 1)
  commit()
  tick("Battle.Timer1")
  filled(381, 200, 40, 56, woman[2])
  at(421, 210, ground)
  tick("Battle.Timer1")
  filled(377, 200, 40, 56, woman[1])
  at(417, 210, ground)
  stands(365, 140, 40, 56, man[0], ground)
end)

test("after a stroke the first hero steps back in two frames and stands at rest", function()
  battle(4, 2)
  commit()
  steps.play_to(26)
  filled(357, 140, 40, 56, man[2])
  at(397, 150, ground)
  tick("Battle.Timer1")
  filled(361, 140, 40, 56, man[1])
  at(401, 150, ground)
  tick("Battle.Timer1")
  filled(365, 140, 40, 56, man[0])
  at(364, 150, ground)
  at(405, 150, ground)
  filled(385, 200, 40, 56, woman[0])
end)

test("after a stroke the second hero steps back in two frames", function()
  battle(4, 2)
  tab("Battle.SSTab1", 1)
  commit()
  steps.play_to(26)
  filled(377, 200, 40, 56, woman[2])
  at(417, 210, ground)
  tick("Battle.Timer1")
  filled(381, 200, 40, 56, woman[1])
  tick("Battle.Timer1")
  stands(385, 200, 40, 56, woman[0], ground)
end)

test("a trail that no routine covers stays on the scene", function()
  battle(4, 2)
  commit()
  steps.play_to(28)
  tick("Battle.Timer1")
  -- The cells restored begin at column 360, the walking figure at 357.
  for x = 357, 359 do at(x, 150, man[2]) end
  at(360, 150, ground)
end)

test("the enemy struck stands 10 pixels to the left until frame 26", function()
  for row = 1, 4 do
    battle(4, 4)
    commit(row)
    steps.play_to(4)
    filled(slots[row][1], slots[row][2], 64, 64, enemy)
    for _ = 6, 24, 2 do
      tick("Battle.Timer1")
      stands(slots[row][1] - 10, slots[row][2], 64, 64, enemy, ground, "recoil of " .. row)
    end
    tick("Battle.Timer1")
    for slot = 1, 4 do stands(slots[slot][1], slots[slot][2], 64, 64, enemy, ground, "slot " .. slot) end
  end
end)

test("the hit mark stands on the enemy of the slot, 48 by 48, and goes with frame 26", function()
  local marks = { { 50, 110 }, { 80, 200 }, { 140, 110 }, { 170, 200 } }
  for row = 1, 4 do
    battle(4, 4)
    effect(6, 1, "00FFFF")
    commit(row)
    steps.play_to(4)
    at(marks[row][1], marks[row][2], enemy)
    tick("Battle.Timer1")
    filled(marks[row][1], marks[row][2], 48, 48, "00FFFF")
    at(marks[row][1] - 1, marks[row][2], enemy)
    at(marks[row][1], marks[row][2] - 1, enemy)
    at(marks[row][1] + 48, marks[row][2] + 10, ground)
    steps.play_to(26)
    at(marks[row][1] + 20, marks[row][2] + 20, enemy)
    at(marks[row][1] + 47, marks[row][2] + 10, ground)
  end
end)

test("against a big enemy the hit mark is fixed", function()
  steps.arena()
  plain_sheets(13)
  effect(6, 1, "00FFFF")
  steps.bone_dragon()
  commit()
  steps.play_to(6)
  stands(110, 170, 48, 48, "00FFFF", enemy)
end)

test("a big enemy is drawn 160 by 240, a dragon enlarged, the others as they are", function()
  for n, enter in pairs { [0] = steps.boss, [18] = steps.last_boss, [13] = steps.bone_dragon } do
    steps.arena()
    plain_sheets(n)
    local sheet = ("Battle.Picture6(%d)"):format(n)
    paint(sheet, "0000FF", n == 0 and 64 or 80, 0, n == 0 and 64 or 80, n == 0 and 96 or 120)
    enter()
    local around = n == 18 and last_ground or ground
    filled(75, 30, 80, 240, enemy, "left half of " .. n)
    at(74, 100, around)
    at(100, 29, around)
    filled(155, 30, 78, 120, "0000FF", "upper right of " .. n)
    filled(155, 150, 78, 114, enemy, "lower right of " .. n)
    at(235, 40, around)
  end
end)

test("each round's dragon has its own sheet", function()
  for round = 1, 3 do
    steps.arena(round)
    plain_sheets()
    for n = 0, 2 do plain_enemy(n, 128, ("0000%d0"):format(n + 1)) end
    steps.boss()
    filled(75, 30, 160, 240, ("0000%d0"):format(round))
  end
end)

test("a big enemy struck stands 10 pixels to the left, and leaves a trail beside its cells", function()
  for n, enter in pairs { [0] = steps.boss, [18] = steps.last_boss, [13] = steps.bone_dragon } do
    steps.arena()
    plain_sheets(n)
    steps.strengthen()
    enter()
    local around = n == 18 and last_ground or ground
    commit()
    steps.play_to(6)
    filled(65, 34, 158, 230, enemy)
    at(64, 100, around)
    steps.play_to(26)
    at(75, 100, enemy)
    for x = 72, 74 do at(x, 100, around, "restored") end
    for x = 65, 71 do at(x, 100, enemy, "trail") end
  end
end)

test("the sheet of row 6 is 50 high, and the lower rows of its place stay as they were", function()
  battle(6, 1)
  local _, height = picture_size("Battle.Picture6(6)")
  expect(height, 50)
  filled(30, 90, 64, 50, enemy)
  filled(30, 140, 64, 14, ground)
end)

test("the sheet of row 13 is 318 wide, and the last two columns get no mask", function()
  steps.arena()
  plain_sheets(13)
  paint("Battle.Picture7", "F0F0F0")
  paint("Battle.Picture6(13)", "3C3C3C", 0, 0, 160, 240)
  expect(picture_size("Battle.Picture6(13)"), 318)
  steps.bone_dragon()
  at(232, 100, "3C3C3C")
  at(233, 100, "303030")
  at(234, 100, "303030")
  at(235, 100, "F0F0F0")
end)

test("the sheet of row 7 is 127 wide, and the last column gets no mask", function()
  steps.arena()
  plain_sheets(7)
  paint("Battle.Picture7", "F0F0F0")
  plain_enemy(7, 64, "3C3C3C")
  expect(picture_size("Battle.Picture6(7)"), 127)
  steps.battle_with(7, 1)
  at(92, 100, "3C3C3C")
  at(93, 100, "303030")
  at(94, 100, "F0F0F0")
end)

test("the sheets have their sizes", function()
  start()
  local sizes = { Picture2 = { 144, 128 }, Picture3 = { 144, 128 }, Picture7 = { 480, 288 }, Picture8 = { 384, 144 },
    Picture11 = { 480, 288 }, Picture12 = { 480, 288 }, ["Picture6(13)"] = { 318, 240 }, ["Picture6(18)"] = { 320, 240 },
    ["Picture6(100)"] = { 129, 64 } }
  for n = 0, 2 do sizes[("Picture6(%d)"):format(n)] = { 256, 192 } end
  for n = 3, 17 do
    if n ~= 13 then
      sizes[("Picture6(%d)"):format(n)] = { n == 7 and 127 or n == 12 and 129 or 128, n == 6 and 50 or 64 }
    end
  end
  for name, size in pairs(sizes) do
    local width, height = picture_size("Battle." .. name)
    expect(width, size[1], name)
    expect(height, size[2], name)
  end
end)

test("an enemy that falls is wiped out, and exactly the living are drawn", function()
  battle(4, 4)
  for index = 0, 3 do set("EnemyLife[" .. index .. "]", 1) end
  commit(2)
  steps.play_to(28)
  filled(60, 180, 64, 64, enemy)
  tick("Battle.Timer1")
  filled(60, 180, 64, 64, ground)
  steps.strike(3)
  for slot = 1, 4 do
    filled(slots[slot][1], slots[slot][2], 64, 64, (slot == 1 or slot == 4) and enemy or ground, "slot " .. slot)
  end
  steps.strike(1)
  filled(30, 90, 64, 64, ground)
  filled(150, 180, 64, 64, enemy)
end)

test("a big enemy that falls is still drawn by the end of the stroke", function()
  steps.arena()
  plain_sheets(13)
  steps.attack(0, 100)
  steps.bone_dragon()
  set("EnemyLife[4]", 1)
  steps.strike()
  expect(get("EnemyAlive[4]"), 0)
  filled(75, 34, 150, 230, enemy)
end)

test("an even roll throws the first hero back by 10 pixels until frame 36", function()
  battle(4, 1)
  steps.to_enemy_phase()
  steps.play_to(14)
  filled(365, 140, 40, 56, man[0])
  steps.play_with(16, 0.45)
  filled(375, 140, 40, 56, man[0])
  at(374, 150, ground)
  filled(385, 200, 40, 56, woman[0])
  steps.play_to(34)
  filled(375, 140, 40, 56, man[0])
  tick("Battle.Timer1")
  filled(365, 140, 40, 56, man[0])
  at(405, 150, ground)
end)

test("an odd roll throws the second hero back by 10 pixels", function()
  battle(4, 1)
  steps.to_enemy_phase()
  steps.play_with(16, 0.55)
  filled(395, 200, 40, 56, woman[0])
  at(394, 210, ground)
  filled(365, 140, 40, 56, man[0])
  steps.play_to(34)
  tick("Battle.Timer1")
  stands(385, 200, 40, 56, woman[0], ground)
end)

test("every frame of a stroke is presented", function()
  battle(4, 1)
  commit()
  for _ = 2, 30, 2 do
    tick("Battle.Timer1")
    for _, x in ipairs { 20, 30, 90, 358, 362, 364, 398, 402, 404 } do
      expect(shown_pixel(scene, x, 150), pixel(scene, x, 150), "frame " .. get("ActionState"))
    end
  end
  expect(shown_pixel(scene, 366, 150), man[0])
end)

local function cast(spell, target)
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", spell)
  if target then choose("Battle.List2", target) end
end

local function skilled(kind, count)
  steps.arena((kind - 3) // 5 + 1)
  steps.learn_all()
  plain_sheets(kind)
  steps.battle_with(kind, count)
  steps.strengthen()
end

test("a spell lights its one target up as a white shape, until the scene is drawn anew at frame 26", function()
  skilled(4, 3)
  cast(1, 2)
  steps.play_to(4)
  filled(60, 180, 64, 64, enemy)
  tick("Battle.Timer1")
  stands(60, 180, 64, 64, "FFFFFF", ground)
  filled(30, 90, 64, 64, enemy)
  filled(120, 90, 64, 64, enemy)
  steps.play_to(24)
  filled(60, 180, 64, 64, "FFFFFF")
  tick("Battle.Timer1")
  filled(60, 180, 64, 64, enemy)
end)

test("a spell on all lights up the living enemies alone", function()
  skilled(4, 4)
  steps.leave_alive(1, 4)
  cast(4)
  steps.play_to(6)
  filled(30, 90, 64, 64, "FFFFFF")
  filled(150, 180, 64, 64, "FFFFFF")
  filled(60, 180, 64, 64, enemy, "the picture of a slot emptied without a stroke")
  tick("Battle.Timer1", 10)
  expect(get("ActionState"), 26)
  filled(60, 180, 64, 64, ground)
end)

test("a spell lights a big enemy up as a whole", function()
  for n, enter in pairs { [0] = steps.boss, [18] = steps.last_boss, [13] = steps.bone_dragon } do
    steps.arena()
    steps.learn_all()
    plain_sheets(n)
    enter()
    cast(1, 1)
    steps.play_to(6)
    filled(75, 30, 158, 240, "FFFFFF", "row " .. n)
    at(74, 100, n == 18 and last_ground or ground)
    steps.play_to(26)
    filled(75, 34, 150, 230, enemy, "row " .. n)
  end
end)

test("a hero holds 10 pixels forward while the numbers of a skill stand, and steps back", function()
  skilled(4, 2)
  click("Battle.Command3")
  choose("Battle.List1", 1)
  choose("Battle.List2", 1)
  for frame = 26, 44, 2 do
    steps.play_to(frame)
    filled(355, 140, 40, 56, man[0], "frame " .. frame)
    at(354, 150, ground)
    at(395, 150, ground)
    filled(385, 200, 40, 56, woman[0])
  end
  tick("Battle.Timer1")
  filled(357, 140, 40, 56, man[1])
  tick("Battle.Timer1")
  filled(361, 140, 40, 56, man[0])
  tick("Battle.Timer1")
  filled(365, 140, 40, 56, man[0])
  at(364, 150, ground)
end)

test("the second hero holds and steps back on her own line", function()
  skilled(4, 2)
  cast(1, 1)
  for frame = 26, 44, 2 do
    steps.play_to(frame)
    stands(375, 200, 40, 56, woman[0], ground, "frame " .. frame)
    filled(365, 140, 40, 56, man[0])
  end
  tick("Battle.Timer1")
  filled(377, 200, 40, 56, woman[1])
  tick("Battle.Timer1")
  filled(381, 200, 40, 56, woman[0])
  tick("Battle.Timer1")
  filled(385, 200, 40, 56, woman[0])
  at(384, 210, ground)
end)

test("a healer stands at rest from frame 26 and steps back at the end", function()
  skilled(4, 1)
  cast(3)
  steps.play_to(26)
  filled(385, 200, 40, 56, woman[0])
  steps.play_to(46)
  filled(377, 200, 40, 56, woman[1])
  tick("Battle.Timer1")
  filled(381, 200, 40, 56, woman[0])
end)

test("a hero who used an item does not walk back", function()
  battle(4, 1)
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(4)
  filled(357, 140, 40, 56, man[1])
  for frame = 26, 48, 2 do
    steps.play_to(frame)
    filled(365, 140, 40, 56, man[0], "frame " .. frame)
  end
end)

test("the fire rises as a trail beside the heroes and is gone at frame 36", function()
  steps.arena(2)
  plain_sheets(1)
  effect(4, 4, "FF8000")
  steps.strengthen()
  steps.boss()
  steps.to_enemy_phase(0.3)
  steps.play_to(14)
  filled(385, 200, 40, 56, woman[0])
  tick("Battle.Timer1")
  filled(345, 226, 72, 72, "FF8000")
  at(344, 240, ground)
  at(350, 225, ground)
  tick("Battle.Timer1")
  filled(362, 186, 72, 72, "FF8000")
  at(361, 190, ground)
  at(345, 262, "FF8000", "the trail")
  tick("Battle.Timer1")
  filled(359, 146, 72, 72, "FF8000")
  at(356, 150, ground)
  steps.play_to(36)
  at(345, 262, ground)
  at(359, 146, ground)
  filled(365, 140, 40, 56, man[0])
  filled(385, 200, 40, 56, woman[0])
  filled(75, 30, 160, 240, enemy)
end)

test("the last special opens a widening band from red to magenta", function()
  steps.arena()
  plain_sheets(18)
  steps.strengthen()
  steps.last_boss()
  steps.to_enemy_phase(0.3)
  steps.play_to(14)
  at(10, 146, last_ground)
  for frame = 16, 34, 2 do
    tick("Battle.Timer1")
    local half, colour = (frame - 10) * 4, ("FF00%02X"):format((frame - 10) * 10)
    for _, x in ipairs { 0, 200, 370, 431 } do
      at(x, 146, colour, "frame " .. frame)
      at(x, 146 - half + 1, colour, "frame " .. frame)
      at(x, 146 + half - 1, colour, "frame " .. frame)
    end
    at(10, 146 - half - 2, last_ground)
    at(10, 146 + half + 2, last_ground)
  end
  tick("Battle.Timer1")
  at(10, 146, last_ground)
  filled(75, 30, 160, 240, enemy)
  stands(365, 140, 40, 56, man[0], last_ground)
  filled(385, 200, 40, 56, woman[0])
end)

test("eleven sparks of the last special take their place and size from draws in this order", function()
  steps.arena()
  plain_sheets(18)
  effect(1, 3, "00FFFF")
  steps.strengthen()
  steps.last_boss()
  steps.to_enemy_phase(0.3)
  steps.play_to(14)
  random_clear()
  random(0.5, 0.25, 0.75)
  for _ = 1, 9 do random(0.999, 0.999, 0.999) end
  random(0, 0, 0)
  tick("Battle.Timer1")
  expect(random_left(), 0)
  filled(330, 107, 60, 60, "00FFFF")
  at(329, 130, "FF003C")
  at(390, 130, "FF003C")
  filled(230, 50, 24, 24, "00FFFF")
  at(229, 60, enemy)
  at(254, 60, last_ground)
end)

test("the sparks' first draw reaches from 230 to 429", function()
  steps.arena()
  plain_sheets(18)
  effect(1, 3, "00FFFF")
  steps.strengthen()
  steps.last_boss()
  steps.to_enemy_phase(0.3)
  steps.play_to(14)
  random_clear()
  for _ = 1, 11 do random(0.999, 0, 0) end
  tick("Battle.Timer1")
  filled(429, 50, 24, 24, "00FFFF")
  at(428, 60, last_ground)
end)
