local steps = require "lib.steps"
local plain = require "lib.plain"
local ground, other_ground, last_ground = plain.ground, plain.other_ground, plain.last_ground
local enemy, man, woman, plain_enemy = plain.enemy, plain.man, plain.woman, plain.plain_enemy
local plain_sheets, at, filled, stands = plain.plain_sheets, plain.at, plain.filled, plain.stands
local slots, battle, commit = plain.slots, plain.battle, plain.commit

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
