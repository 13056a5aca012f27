local steps = require "lib.steps"
local canvas = require "lib.canvas"

local ground = "102030"

-- The strips, in their order: index, start, x, width, height, where they lie on the sheet (first the
-- shape, then the picture on it), and the plain colour that a scenario gives them.
local strips = {
  { 0, 330, 24, 400, 64, { 0, 64 }, { 0, 0 }, "C00000" },
  { 1, 450, 130, 200, 32, { 0, 160 }, { 0, 128 }, "00C000" },
  { 5, 650, 130, 200, 32, { 200, 160 }, { 200, 128 }, "0000C0" },
  { 2, 510, 130, 200, 32, { 0, 192 }, nil, "909000" },
  { 3, 550, 130, 200, 32, { 200, 192 }, nil, "009090" },
  { 4, 590, 130, 200, 32, { 0, 224 }, nil, "900090" },
  { 6, 710, 130, 200, 32, { 200, 224 }, nil, "A0A0A0" },
  { 7, 750, 130, 200, 32, { 0, 256 }, nil, "804000" },
  { 8, 790, 130, 200, 32, { 200, 256 }, nil, "408000" },
  { 9, 850, 24, 400, 32, { 0, 320 }, { 0, 288 }, "004080" },
  { 10, 910, 24, 400, 32, { 0, 352 }, nil, "F08040" },
}

-- The closing story after the last enemy has fallen, on its last line.
local function last_line()
  canvas.last_boss()
  set("EnemyLife[4]", -100)
  steps.strike(1)
  click("Battle.Picture1", 10, 200)
  expect(active(), "Main")
  expect(get("LastBossDown"), -1)
  set("StoryNo", 44)
  clear_sounds()
end

-- The credits, opened by the last click of the story.
local function opened()
  last_line()
  click("Main.Picture1")
  expect(active(), "Ending")
end

-- Plain sheets: white shapes under a plain picture, or a plain shape alone, on black.
local function paint_plain(backdrop)
  paint("Ending.Picture2", backdrop)
  paint("Ending.Picture1", "000000")
  for _, strip in ipairs(strips) do
    local shape, picture, colour = strip[6], strip[7], strip[8]
    paint("Ending.Picture1", picture and "FFFFFF" or colour, shape[1], shape[2], strip[4], strip[5])
    if picture then paint("Ending.Picture1", colour, picture[1], picture[2], strip[4], strip[5]) end
  end
end

local function blend_or(one, other)
  return ("%06X"):format(tonumber(one, 16) | tonumber(other, 16))
end

-- The colour that must stand at a point after `ticks` ticks.
local function wanted_at(x, y, ticks, backdrop)
  for _, strip in ipairs(strips) do
    local top = strip[2] - ticks
    if y >= top and y < top + strip[5] and x >= strip[3] and x < strip[3] + strip[4] then
      return strip[7] and strip[8] or blend_or(backdrop, strip[8])
    end
  end
  return backdrop
end

local function check_screen(ticks, backdrop)
  local columns = { 0, 23, 24, 129, 130, 329, 330, 423, 424, 450 }
  local lines = { [0] = true, [150] = true, [294] = true }
  for _, strip in ipairs(strips) do
    local top = strip[2] - ticks
    for _, y in ipairs { top - 1, top, top + strip[5] - 1, top + strip[5] } do lines[y] = true end
  end
  for y in pairs(lines) do
    if y >= 0 and y <= 294 then
      for _, x in ipairs(columns) do
        expect(shown_pixel("Ending", x, y), wanted_at(x, y, ticks, backdrop),
          ("tick %d at %d, %d"):format(ticks, x, y))
      end
    end
  end
end

test("the last line of the story opens the credits and closes the field", function()
  opened()
  expect(get("StoryNo"), 45)
  expect(get("Ending.Caption"), "ENDING")
  expect(get("Ending.Width"), 451)
  expect(get("Ending.Height"), 295)
  expect(get("Main.Visible"), false)
  expect(get("Main.Timer3.Enabled"), false)
  expect(get("Main.Timer1.Enabled"), false)
  expect(get("Ending.Timer1.Enabled"), true)
  expect(get("Ending.Timer1.Interval"), 50)
  expect(get("Ending.CreditsDone"), 0)
  for _, label in ipairs { "Label1", "Label2(0)", "Label2(1)" } do
    expect(get("Ending." .. label .. ".Visible"), false)
  end
  expect(#sounds(), 0)
end)

test("the strips start at their places and rise by one a tick", function()
  opened()
  for _, strip in ipairs(strips) do expect(get("Ending.CreditY(" .. strip[1] .. ")"), strip[2]) end
  tick("Ending.Timer1")
  expect(get("Ending.CreditStep"), 1)
  for _, strip in ipairs(strips) do expect(get("Ending.CreditY(" .. strip[1] .. ")"), strip[2] - 1) end
  wait(500)
  for _, strip in ipairs(strips) do expect(get("Ending.CreditY(" .. strip[1] .. ")"), strip[2] - 11) end
end)

test("each strip stands where it must at every height, and leaves no trace", function()
  opened()
  paint_plain(ground)
  for ticks = 1, 959 do
    tick("Ending.Timer1")
    if ticks % 23 == 0 then check_screen(ticks, ground) end
  end
  check_screen(959, ground)
end)

test("the first strip is seen at tick 36, on the last line", function()
  opened()
  paint_plain(ground)
  tick("Ending.Timer1", 35)
  expect(shown_pixel("Ending", 200, 294), ground)
  tick("Ending.Timer1")
  expect(shown_pixel("Ending", 200, 294), "C00000")
  expect(shown_pixel("Ending", 200, 293), ground)
end)

test("after the last strip has left, the still picture stands empty for 18 ticks", function()
  opened()
  paint_plain(ground)
  tick("Ending.Timer1", 941)
  expect(get("Ending.CreditY(10)"), -31)
  expect(shown_pixel("Ending", 200, 0), blend_or(ground, "F08040"))
  for _ = 1, 18 do
    tick("Ending.Timer1")
    for _, y in ipairs { 0, 30, 93, 150, 294 } do expect(shown_pixel("Ending", 200, y), ground) end
    expect(get("Ending.CreditsDone"), 0)
    expect(get("Ending.Label1.Visible"), false)
  end
  expect(get("Ending.CreditY(10)"), -49)
end)

test("at tick 960 the last card stands, with the title at rest and three lines", function()
  opened()
  paint_plain(ground)
  expect(run("Ending.Timer1"), 960)
  expect(get("Ending.CreditY(10)"), -50)
  expect(get("Ending.CreditsDone"), -1)
  for _, corner in ipairs { { 24, 30 }, { 423, 30 }, { 24, 93 }, { 423, 93 } } do
    expect(shown_pixel("Ending", corner[1], corner[2]), "C00000")
  end
  for _, outside in ipairs { { 23, 30 }, { 424, 93 }, { 24, 29 }, { 423, 94 }, { 0, 0 }, { 450, 294 } } do
    expect(shown_pixel("Ending", outside[1], outside[2]), ground)
  end
  local lines = {
    ["Label1"] = { "Presented by Kelmark 2001 ", "E0E0E0", 12, 64, 264 },
    ["Label2(0)"] = { "Thank you for playing", "FFFFFF", 15.75, 112, 112 },
    ["Label2(1)"] = { "To be continue...?", "FFFFFF", 15.75, 152, 152 },
  }
  for name, line in pairs(lines) do
    local label = "Ending." .. name .. "."
    expect(get(label .. "Visible"), true, name)
    expect(get(label .. "Caption"), line[1])
    expect(get(label .. "ForeColor"), line[2])
    expect(get(label .. "FontSize"), line[3])
    expect(get(label .. "FontBold"), true)
    expect(get(label .. "FontName"), "ＭＳ Ｐゴシック")
    expect(get(label .. "Left"), line[4])
    expect(get(label .. "Top"), line[5])
  end
end)

test("the whole of the credits takes 48 seconds", function()
  opened()
  wait(47999)
  expect(get("Ending.CreditsDone"), 0)
  wait(1)
  expect(get("Ending.CreditsDone"), -1)
end)

test("each tick opens the tune, and the first one plays it", function()
  opened()
  tick("Ending.Timer1", 3)
  local open = [[open "PATH\Sound\Ending.mid" alias bgm7]]
  local query = "status bgm7 mode"
  expect(table.concat(sounds { status = true }, "|"),
    table.concat({ open, query, "play bgm7 from 0", open, query, open, query }, "|"))
end)

test("a tune that has ended starts again on the next tick, but not after the last card", function()
  opened()
  tick("Ending.Timer1", 5)
  end_sound("bgm7")
  clear_sounds()
  wait(50)
  expect(steps.sent("play bgm7 from 0"), 1)
  run("Ending.Timer1")
  expect(steps.sent("play bgm7 from 0"), 1)
  expect(sound_mode("bgm7"), "playing", "the last card leaves it running")
  end_sound("bgm7")
  clear_sounds()
  wait(1000)
  expect(#sounds { status = true }, 0)
end)

test("without the tune's file the credits run in silence", function()
  last_line()
  delete_file("Sound/Ending.mid")
  click("Main.Picture1")
  expect(run("Ending.Timer1"), 960)
  expect(steps.sent("play bgm7 from 0"), 0)
  expect(get("Ending.CreditsDone"), -1)
end)

local function expect_closed()
  expect(ended(), true)
  expect(exit_status(), 0)
  expect(#boxes(), 0)
  local wanted = {}
  for channel = 1, 7 do wanted[#wanted + 1] = "close bgm" .. channel end
  for channel = 1, 10 do wanted[#wanted + 1] = "close snd" .. channel end
  expect(table.concat(sounds(), "|"), table.concat(wanted, "|"))
end

test("a press before the last card does nothing", function()
  opened()
  press("Ending")
  tick("Ending.Timer1", 959)
  clear_sounds()
  press("Ending")
  expect(ended(), false)
  expect(#sounds(), 0)
  expect(get("Ending.Timer1.Enabled"), true)
end)

test("a press on the last card closes seventeen channels and ends the program", function()
  opened()
  run("Ending.Timer1")
  clear_sounds()
  press("Ending")
  expect_closed()
end)

test("closing the window ends the program the same way, at any time", function()
  for _, ticks in ipairs { 0, 500, 960 } do
    opened()
    tick("Ending.Timer1", ticks)
    clear_sounds()
    close("Ending")
    expect_closed()
  end
end)

test("nothing of the game is changed or saved by the credits", function()
  opened()
  local before = read_file("Save01.sav")
  set("HP[0]", 17)
  run("Ending.Timer1")
  expect(get("HP[0]"), 17)
  expect(get("Round"), 4)
  expect(get("StoryNo"), 45)
  expect(read_file("Save01.sav"), before)
end)

test("nothing of the field goes on under the credits, though the walk ran beside the last scene", function()
  last_line()
  set("Main.Timer1.Enabled", true)
  click("Main.Picture1")
  clear_sounds()
  wait(1000)
  expect(get("Main.Timer1.Enabled"), false)
  for _, command in ipairs(sounds()) do expect(command:find("bgm7", 1, true) ~= nil, true, command) end
  expect(active(), "Ending")
end)
