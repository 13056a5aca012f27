local steps = require "lib.steps"
local canvas = require "lib.canvas"

local red, green, blue = "C00000", "00C000", "0000C0"
local shaken = 20 / 15
local moved = 50 / 15

local function plays(number, when)
  return when and ("play snd%d from 0"):format(number) or ""
end

-- Frame 26 of a damage spell brings the whole background back.
local function expect_redrawn()
  tick("Battle.Timer1")
  canvas.scene():check("frame 26")
end

test("each spell shows its name from its first frame until frame 46", function()
  local names = { "ファイヤーブレズ", "絶対零度", "リフレッシュ", "アースクエイク", "爆雷降臨",
    "サンプレゼンター", "ダークプレッシャー", "風の癒し", "アトミックボム", "ジオ･スプリート" }
  for row, name in ipairs(names) do
    steps.plain_world()
    steps.battle_with(4, 1)
    canvas.begin_magic(row)
    steps.play_to(4)
    expect(get("Battle.Picture9.Visible"), false, name)
    tick("Battle.Timer1")
    expect(get("Battle.Picture9.Visible"), true, name)
    expect(get("Battle.Label20.Caption"), name)
    steps.play_to(44)
    expect(get("Battle.Picture9.Visible"), true, name)
    tick("Battle.Timer1")
    expect(get("Battle.Picture9.Visible"), false, name)
  end
end)

test("the first spell burns on its target in all ten frames", function()
  for slot, spot in pairs { { 30, 90 }, { 60, 180 }, { 120, 90 }, { 150, 180 } } do
    canvas.group(4)
    canvas.cell(4, 4, red)
    canvas.begin_magic(1, slot)
    local scene = canvas.scene()
    canvas.play(function(c, sent)
      scene:rect(spot[1], spot[2], 96, 96, red)
      scene:check("slot " .. slot .. ", frame " .. c)
      expect(sent, plays(3, c == 6))
      expect(get("MagicX"), spot[1])
      expect(get("MagicY"), spot[2])
    end)
    expect_redrawn()
  end
end)

-- The second spell's four crystals around (x, y) in frame `c`.
local function crystals(scene, c, x, y)
  local d = c <= 12 and c or 16
  for k = 0, 3 do
    local right, down = k % 2, k // 2
    scene:rect(x + (right == 0 and -60 + 4 * d or 60 - 4 * d), y + (down == 0 and -60 + 4 * d or 60 - 4 * d), 48, 48,
      blue)
  end
end

test("against a single big enemy the first two spells strike at 120, 140, whatever the row", function()
  for name, enter in pairs { boss = canvas.boss, last = canvas.last_boss, dragon = canvas.bone_dragon } do
    for row = 1, 2 do
      enter()
      canvas.cell(4, 4, red)
      canvas.cell(4, 5, blue)
      canvas.begin_magic(row, 1)
      local scene = canvas.scene()
      canvas.play(function(c)
        if row == 1 then scene:rect(120, 140, 96, 96, red) else crystals(scene, c, 120, 140) end
        scene:check(("%s, spell %d, frame %d"):format(name, row, c))
      end)
      expect(get("MagicBossX"), 120)
      expect(get("MagicBossY"), 140)
    end
  end
end)

test("the second spell's four crystals run in from the corners, leap once, and hold", function()
  canvas.group(3)
  canvas.cell(4, 5, blue)
  canvas.begin_magic(2, 3)
  local scene = canvas.scene()
  canvas.play(function(c, sent)
    crystals(scene, c, 120, 90)
    scene:check("frame " .. c)
    expect(sent, plays(10, c == 14))
  end)
  expect_redrawn()
end)

test("at frame 12 the crystals have come 48 pixels, at frame 14 they have come 64", function()
  canvas.group(3)
  canvas.cell(4, 5, blue)
  canvas.begin_magic(2, 3)
  steps.play_to(10)
  paint("Battle.Picture1", canvas.ground)
  tick("Battle.Timer1")
  expect(shown_pixel("Battle.Picture1", 108, 78), blue)
  expect(shown_pixel("Battle.Picture1", 107, 77), canvas.ground)
  paint("Battle.Picture1", canvas.ground)
  tick("Battle.Timer1")
  expect(shown_pixel("Battle.Picture1", 116, 86), blue, "the fourth, four pixels off the target")
  expect(shown_pixel("Battle.Picture1", 115, 85), canvas.ground)
  expect(shown_pixel("Battle.Picture1", 171, 141), blue, "the first")
  expect(shown_pixel("Battle.Picture1", 172, 142), canvas.ground)
end)

-- Draws that put sparkles on the corners of their box and in between.
local draws = { 0, 0.9990234375, 0.5, 0.25, 0.75, 0.125, 0.9990234375, 0, 0.0625, 0.875, 0.375, 0.625 }

test("the third spell strews six sparkles over the heroes in each frame", function()
  canvas.group(1)
  canvas.cell(1, 0, green)
  canvas.begin_magic(3)
  local scene = canvas.scene()
  tick("Battle.Timer1", 2)
  for c = 6, 24, 2 do
    random(table.unpack(draws))
    clear_sounds()
    tick("Battle.Timer1")
    expect(random_left(), 0)
    for i = 1, 11, 2 do
      scene:rect(math.floor(draws[i] * 58 + 355), math.floor(draws[i + 1] * 108 + 130), 24, 24, green)
    end
    scene:check("frame " .. c)
    expect(table.concat(sounds(), "|"), plays(5, c == 6))
    table.insert(draws, table.remove(draws, 1))
  end
end)

test("the eighth spell strews six pairs, first one sparkle and then the other", function()
  canvas.group(1)
  canvas.cell(1, 0, green)
  canvas.cell(1, 4, red)
  canvas.begin_magic(8)
  local scene = canvas.scene()
  tick("Battle.Timer1", 2)
  for c = 6, 24, 2 do
    local queue = {}
    for i = 0, 23 do queue[i + 1] = (i * 7 + c) % 32 / 32 end
    random(table.unpack(queue))
    clear_sounds()
    tick("Battle.Timer1")
    expect(random_left(), 0)
    for i = 1, 21, 4 do
      scene:rect(math.floor(queue[i] * 58 + 355), math.floor(queue[i + 1] * 108 + 130), 24, 24, green)
      scene:rect(math.floor(queue[i + 2] * 58 + 355), math.floor(queue[i + 3] * 108 + 130), 24, 24, red)
    end
    scene:check("frame " .. c)
    expect(table.concat(sounds(), "|"), plays(5, c == 6))
  end
end)

test("after a healing spell's frames only the heroes' cells are drawn anew", function()
  canvas.group(1)
  canvas.cell(1, 0, green)
  canvas.begin_magic(3)
  steps.play_to(22)
  random(0, 0, 0, 0.5, 0, 0.9, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5)
  paint("Battle.Picture1", canvas.ground)
  tick("Battle.Timer1", 2)
  expect(shown_pixel("Battle.Picture1", 355, 140), green, "left of the cells")
  expect(shown_pixel("Battle.Picture1", 359, 140), green)
  expect(shown_pixel("Battle.Picture1", 360, 140), canvas.ground)
  expect(shown_pixel("Battle.Picture1", 365, 131), green, "above the cells")
  expect(shown_pixel("Battle.Picture1", 365, 132), canvas.ground)
end)

test("the fourth spell shakes the scene sideways, draws nothing, and leaves it where it was", function()
  canvas.group(2)
  canvas.begin_magic(4)
  local scene = canvas.scene()
  local left = get("Battle.Picture1.Left")
  expect(left, 8)
  canvas.play(function(c, sent)
    expect_near(get("Battle.Picture1.Left"), c // 2 % 2 == 1 and 8 - moved or 8, 1e-4, "frame " .. c)
    expect(get("Battle.Picture1.Top"), 8)
    expect(sent, plays(6, c == 6))
    scene:check("frame " .. c)
  end)
  expect_near(get("Battle.Picture1.Left"), 8, 1e-9)
end)

test("the fifth spell is a white flash at frame 10 alone, that stays until frame 26", function()
  canvas.group(2)
  canvas.begin_magic(5)
  local scene = canvas.scene()
  canvas.play(function(c, sent)
    if c == 10 then scene:rect(0, 0, 432, 264, "FFFFFF") end
    scene:check("frame " .. c)
    expect(sent, plays(8, c == 10))
    if c == 12 then
      paint("Battle.Picture1", red, 100, 100, 20, 20)
      scene:rect(100, 100, 20, 20, red)
    end
  end)
  expect_redrawn()
end)

test("the sixth spell's sun grows over the scene, which shakes up and down", function()
  canvas.group(2)
  canvas.cell(0, 3, red)
  canvas.begin_magic(6)
  local scene = canvas.scene()
  canvas.play(function(c, sent)
    scene:rect(150 - 8 * c, 140 - 8 * c, 16 * c + 48, 16 * c + 48, red)
    scene:check("frame " .. c)
    expect(sent, plays(3, true))
    expect_near(get("Battle.Picture1.Top"), c // 2 % 2 == 1 and 8 - shaken or 8, 1e-4, "frame " .. c)
    expect(get("Battle.Picture1.Left"), 8)
  end)
  expect_near(get("Battle.Picture1.Top"), 8, 1e-9)
  expect_redrawn()
end)

test("the seventh spell's white rings come down, one pixel wide, and the scene shakes", function()
  canvas.group(2)
  canvas.begin_magic(7)
  local centres = {}
  local function near_ring(x, y)
    for _, centre in ipairs(centres) do
      local dx, dy = x - centre[1], y - centre[2]
      if math.abs(math.sqrt(dx * dx + dy * dy) - 250) < 1 then return true end
    end
    return false
  end
  canvas.play(function(c, sent)
    local centre_x, centre_y = 300 - 2 * c, 10 * c - 150
    centres[#centres + 1] = { centre_x, centre_y }
    local note = "frame " .. c
    if centre_y + 250 < 264 then
      expect(shown_pixel("Battle.Picture1", centre_x, centre_y + 250), "FFFFFF", note)
    end
    if centre_y >= 0 then expect(shown_pixel("Battle.Picture1", centre_x - 250, centre_y), "FFFFFF", note) end
    for _, y in ipairs { 4, 61, 133, 247 } do
      local seen = {}
      for x = 0, 431 do
        local colour = shown_pixel("Battle.Picture1", x, y)
        seen[x] = colour == "FFFFFF"
        if not seen[x] then expect(colour, canvas.ground, note) end
        if seen[x] then expect(near_ring(x, y), true, ("%s, white at %d, %d"):format(note, x, y)) end
      end
      local reach = 250 * 250 - (y - centre_y) ^ 2
      if reach > 0 then
        for _, side in ipairs { -1, 1 } do
          local x = canvas.round(centre_x + side * math.sqrt(reach))
          if x >= 1 and x <= 430 then
            expect(seen[x - 1] or seen[x] or seen[x + 1], true, ("%s, ring at %d, %d"):format(note, x, y))
          end
        end
      end
    end
    expect(sent, plays(9, true))
    expect_near(get("Battle.Picture1.Top"), c // 2 % 2 == 1 and 8 - shaken or 8, 1e-4, note)
  end)
  expect_near(get("Battle.Picture1.Top"), 8, 1e-9)
  expect_redrawn()
end)

test("the ninth spell lays eleven blasts on a widening ellipse, by radians", function()
  canvas.group(2)
  local colours = { [0] = red, [1] = "808080", [2] = green, [3] = "909090" }
  for row, colour in pairs(colours) do canvas.cell(0, row, colour) end
  canvas.begin_magic(9)
  local scene = canvas.scene()
  canvas.play(function(c, sent)
    for k = 0, 10 do
      local angle = 20 * k + c
      scene:rect(canvas.round(math.cos(angle) * 6 * c + 150), canvas.round(math.sin(angle) * 4 * c + 140), 64, 64,
        c % 4 == 0 and red or green)
    end
    scene:check("frame " .. c)
    expect(sent, plays(4, c == 6))
  end)
  expect_redrawn()
end)

test("the tenth spell shakes, widens a yellow band and scatters eleven blasts", function()
  canvas.group(2)
  canvas.cell(0, 3, red)
  canvas.begin_magic(10)
  local scene = canvas.scene()
  tick("Battle.Timer1", 2)
  for c = 6, 24, 2 do
    local queue = {}
    for i = 0, 32 do queue[i + 1] = (i * 11 + c) % 64 / 64 end
    random(table.unpack(queue))
    clear_sounds()
    tick("Battle.Timer1")
    expect(random_left(), 0)
    scene:band(146 - 4 * c, 146 + 4 * c, ("FFFF%02X"):format(10 * c))
    for i = 1, 31, 3 do
      local size = math.floor(queue[i + 2] * 48 + 24)
      scene:rect(math.floor(queue[i] * 350), math.floor(queue[i + 1] * 230 + 50), size, size, red)
    end
    scene:check("frame " .. c)
    expect(table.concat(sounds(), "|"), plays(4, true))
    expect_near(get("Battle.Picture1.Top"), c // 2 % 2 == 1 and 8 - shaken or 8, 1e-4, "frame " .. c)
  end
  expect_near(get("Battle.Picture1.Top"), 8, 1e-9)
  expect_redrawn()
end)

test("a cast lights up the enemies that it will strike, and no others", function()
  local white = "FFFFFF"
  local function lit(row, target, count, dead)
    canvas.group(count)
    canvas.enemy(4, red)
    canvas.begin_magic(row, target)
    if dead then set("EnemyAlive[" .. dead - 1 .. "]", 0) end
    steps.play_to(4)
    paint("Battle.Picture1", canvas.ground)
    tick("Battle.Timer1")
    local scene = canvas.scene()
    local function slot(n, is_lit)
      local spot = ({ { 30, 90 }, { 60, 180 }, { 120, 90 }, { 150, 180 } })[n]
      if is_lit then scene:rect(spot[1], spot[2], 64, 64, white) end
    end
    for n = 1, count do slot(n, n ~= dead and (row > 2 or n == target)) end
    scene:check("row " .. row)
  end
  lit(1, 2, 3)
  lit(5, nil, 4, 3)
  for name, enter in pairs { boss = canvas.boss, last = canvas.last_boss, dragon = canvas.bone_dragon } do
    enter()
    for _, row in ipairs { 0, 13, 18 } do canvas.enemy(row, red) end
    canvas.begin_magic(4)
    steps.play_to(4)
    paint("Battle.Picture1", canvas.ground)
    tick("Battle.Timer1")
    expect(shown_pixel("Battle.Picture1", 75, 30), white, name)
    expect(shown_pixel("Battle.Picture1", 74, 29), canvas.ground, name)
    expect(shown_pixel("Battle.Picture1", 230, 263), white, name)
    expect(shown_pixel("Battle.Picture1", 235, 263), canvas.ground, name)
  end
end)
