-- Plain sheets for a battle: every cell has one colour, its mask is full, and every ground is plain.
local sheets = {}

sheets.heroes = { [0] = { [0] = "A00000", "B00000", "C00000" }, { [0] = "00A000", "00B000", "00C000" } }
sheets.back = "A0A000"
sheets.ground = { [false] = "203040", [true] = "305020" }
sheets.lair = "503010"

function sheets.enemy(row) return ("D0%02X70"):format(0x20 + row * 9) end
function sheets.effect(column, row) return ("%02X%02XFE"):format(0x10 + column * 0x18, 0x08 + row * 0x20) end

function sheets.paint()
  paint("Battle.Picture7", sheets.ground[false])
  paint("Battle.Picture11", sheets.ground[true])
  paint("Battle.Picture12", sheets.lair)
  for row = 0, 18 do
    local name = "Battle.Picture6(" .. row .. ")"
    local _, height = picture_size(name)
    paint(name, "FFFFFF")
    paint(name, sheets.enemy(row), 0, 0, row <= 2 and 128 or (row == 13 or row == 18) and 160 or 64, height)
  end
  for hero = 0, 1 do
    local name = "Battle.Picture" .. 2 + hero
    for column = 0, 2 do
      paint(name, sheets.heroes[hero][column], 24 * column, 96, 24, 32)
      paint(name, "FFFFFF", 72 + 24 * column, 96, 24, 32)
    end
  end
  paint("Battle.Picture2", sheets.back, 0, 32, 24, 32)
  paint("Battle.Picture2", "FFFFFF", 72, 32, 24, 32)
  paint("Battle.Picture8", "FFFFFF")
  for column = 0, 7 do
    for row = 0, 5 do paint("Battle.Picture8", sheets.effect(column, row), 24 * column, 24 * row, 24, 24) end
  end
end

return sheets
