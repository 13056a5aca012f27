-- Dictated and seeded chance.
local begin = require "begin"

test("values are taken in order by the program's draws", function()
  begin.field()
  random(0.25, 0.5)
  expect(random_left(), 2)
  random(0.75)
  expect(random_left(), 3)
  random_clear()
  expect(random_left(), 0)
  -- Twice the same walk with the same roll.
  set("HeroX", 240)
  set("HeroY", 128)
  key_down("Right")
  random(0.5)
  tick("Main.Timer1", 4)
  expect(random_left(), 0)
  expect(get("EncounterRoll") >= 0, true)
end)

test("only single-precision numbers in [0, 1) are draws", function()
  for _, value in ipairs { 1, -0.1, 1.5, 0.99999999999, 0 / 0, 1 / 0, "0.5", true } do
    expect(begin.fails(random, value), true)
    expect(begin.fails(random, 0.5, value), true)
  end
  expect(random_left(), 0, "all or nothing")
  random(0, 0.99999)
  expect(random_left(), 2)
end)

local function walk()
  begin.field()
  set("HeroX", 240)
  set("HeroY", 128)
  local rolls = {}
  key_down("Right")
  for _ = 1, 12 do
    if active() ~= "Main" then break end
    tick("Main.Timer1")
    rolls[#rolls + 1] = get("EncounterRoll")
  end
  return table.concat(rolls, " ")
end

test("the same seed gives the same draws, over the program's own reseeding", function()
  seed(7)
  local first = walk()
  seed(7)
  expect(walk(), first)
  seed(8)
  expect(walk() ~= first, true)
  expect(begin.fails(seed, 0.5), true)
  expect(begin.fails(seed), true)
  seed(-123456789012)
end)

test("nothing is left of another test's values", function()
  expect(random_left(), 0)
end)
