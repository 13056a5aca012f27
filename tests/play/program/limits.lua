-- Numbers at their very edges: the last value on one side, the first on the other.
local steps = require "lib.steps"

local function stands_at(x, y, note)
  expect(get("HeroX"), x, note)
  expect(get("HeroY"), y, note)
end

-- One step from a place of plain ground.
local function step_from(x, y, key)
  steps.put(x, y)
  steps.walk(key, 1)
end

test("the last place from which a step leads on, and the first from which none does", function()
  for _, case in ipairs {
    { "Up", 100, 18, 100, 224 }, { "Up", 100, 17, 100, 17 },
    { "Down", 100, 248, 100, 42 }, { "Down", 100, 249, 100, 249 },
    { "Left", 18, 100, 461, 100 }, { "Left", 17, 100, 17, 100 },
    { "Right", 462, 100, 19, 100 }, { "Right", 463, 100, 463, 100 },
  } do
    steps.plain_world()
    set("MapTile[6][16]", 7)  -- below the map's last row nothing is walkable by itself
    step_from(case[2], case[3], case[1])
    stands_at(case[4], case[5], ("%s from %d, %d"):format(case[1], case[2], case[3]))
    expect(get("MapA") ~= 3 or get("MapB") ~= 3, case[2] ~= case[4] or case[3] ~= case[5])
  end
end)

test("a step without a way on draws no lot", function()
  steps.plain_world()
  steps.put(463, 100)
  random(0.5)
  key_down("Right")
  tick("Main.Timer1")
  expect(random_left(), 1)
end)

test("the edges lie at 17 above, 240 below, 17 on the left and 463 on the right", function()
  for _, case in ipairs {
    { "Up", 100, 22, 3, 3 }, { "Up", 100, 21, 3, 2 },
    { "Down", 100, 235, 3, 3 }, { "Down", 100, 236, 3, 4 },
    { "Left", 22, 100, 3, 3 }, { "Left", 21, 100, 2, 3 },
    { "Right", 458, 100, 3, 3 }, { "Right", 459, 100, 4, 3 },
  } do
    steps.plain_world()
    step_from(case[2], case[3], case[1])
    expect(get("MapA"), case[4], case[1] .. " from " .. case[2] .. ", " .. case[3])
    expect(get("MapB"), case[5], case[1] .. " from " .. case[2] .. ", " .. case[3])
  end
end)

test("a blocked hero stands in the first frame, facing the way that is closed", function()
  steps.plain_world()
  paint("Main.Picture2", "FFFFFF", 72, 0, 72, 128)
  for frame, colour in pairs { [0] = "100000", [1] = "200000", [2] = "300000" } do
    paint("Main.Picture2", colour, frame * 24, 96, 24, 32)
  end
  set("MapTile[5][6]", 1)
  steps.put(100, 100)
  key_down("Left")
  for _ = 1, 3 do
    tick("Main.Timer1")
    expect(shown_pixel("Main.Picture1", 100, 100), "100000")
  end
  expect(get("HeroX"), 100)
end)

test("the resting place lies behind the doors of two maps alone", function()
  for _, case in ipairs { { 1, 1, 9 }, { 3, 5, 9 }, { 1, 5, 8 }, { 3, 1, 8 }, { 1, 3, 8 }, { 2, 5, 8 }, { 5, 1, 8 } } do
    steps.plain_world()
    write_map("Mapdata/Book1.dat", 8)
    write_map("Mapdata/Fresh.dat", 9)
    set("MapA", case[1]); set("MapB", case[2])
    set("MapTile[7][6]", 116)
    set("Main.m11.Enabled", true)
    steps.put(112, 112)
    steps.walk("Up", 1)
    expect(get("MapTile[0][0]"), case[3], case[1] .. ", " .. case[2])
    expect(get("Main.m11.Enabled"), false)
  end
end)

test("the last dragon's strip is 17 pixels wide and ends at 48", function()
  for _, case in ipairs { { 224, 48, true }, { 240, 48, true }, { 223, 48, false }, { 241, 48, false }, { 232, 49, false } } do
    steps.plain_world()
    set("LastBossFight", -1)
    set("Round", 4)
    set("MapA", 0); set("MapB", 0)
    step_from(case[1], case[2], "Right")
    expect(active() == "Battle", case[3], case[1] .. ", " .. case[2])
  end
end)

test("the dragon's strip is on its own map alone, whatever the round", function()
  for _, case in ipairs { { 4, 1, 1 }, { 4, 1, 2 }, { 4, 1, 3 }, { 4, 2, 1, false }, { 3, 1, 1, false } } do
    steps.plain_world()
    set("MapA", case[1]); set("MapB", case[2]); set("Round", case[3])
    step_from(232, 100, "Right")
    expect(active() == "Battle", case[4] == nil, table.concat({ case[1], case[2], case[3] }, ", "))
  end
end)

test("below the map's last row nothing is walkable", function()
  steps.plain_world()
  step_from(100, 240, "Down")
  stands_at(100, 240, "no map below has been asked for")
  expect(get("TileDown"), 0)
end)
