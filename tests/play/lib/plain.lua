-- Plain sheets for the battle, and what must stand on its scene then.
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

return {
  scene = scene,
  ground = ground,
  other_ground = other_ground,
  last_ground = last_ground,
  enemy = enemy,
  man = man,
  woman = woman,
  plain_enemy = plain_enemy,
  plain_sheets = plain_sheets,
  effect = effect,
  at = at,
  filled = filled,
  stands = stands,
  slots = slots,
  battle = battle,
  commit = commit,
  cast = cast,
  skilled = skilled,
}
