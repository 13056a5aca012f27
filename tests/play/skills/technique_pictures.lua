local steps = require "lib.steps"
local canvas = require "lib.canvas"

local hero, back, red, green = "5050E0", "A0A000", "C00000", "00C000"

local function plays(number, when)
  return when and ("play snd%d from 0"):format(number) or ""
end

-- Into a group of four, blank but for the hero, and technique `row` on slot `target` begun.
local function begin(row, target, count)
  canvas.group(count or 4)
  canvas.pose(hero)
  canvas.begin_waza(row, target)
  return canvas.scene()
end

local function home(scene)
  scene:rect(355, 140, 40, 56, hero)
end

-- Frame 26 brings the background back and lets the two heroes stand.
local function expect_redrawn()
  tick("Battle.Timer1")
  local scene = canvas.scene()
  home(scene)
  scene:check("frame 26")
end

test("each technique shows its name from its first frame until frame 46", function()
  local names = { "炎舞剣", "氷岩断絶剣", "パワーブレイク", "大地の剣", "召雷斬", "一刀両断",
    "ダークスラッシュ", "円陣斬", "必殺撃", "奥義･真魔神斬" }
  for row, name in ipairs(names) do
    steps.plain_world()
    steps.battle_with(4, 1)
    canvas.begin_waza(row)
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

for row, kind in ipairs { { cell = 4, sound = 3 }, { cell = 5, sound = 10 } } do
  test("technique " .. row .. " crosses two blades over the target", function()
    for slot, spot in pairs { { 30, 90 }, { 60, 180 }, { 120, 90 }, { 150, 180 } } do
      local scene = begin(row, slot)
      canvas.cell(4, kind.cell, red)
      canvas.play(function(c, sent)
        home(scene)
        scene:rect(spot[1] + 70 - 3 * c, spot[2] - 30 + 3 * c, 24, 24, red)
        scene:rect(spot[1] - 25 + 3 * c, spot[2] - 30 + 3 * c, 24, 24, red)
        scene:check("slot " .. slot .. ", frame " .. c)
        expect(sent, plays(kind.sound, c == 6))
      end)
      expect_redrawn()
    end
  end)
end

test("the third technique breaks in four frames and flies off in four shards", function()
  local scene = begin(3, 3)
  local columns = { [6] = 1, [8] = 3, [10] = 5, [12] = 7 }
  local colours = { red, "111111", green, "222222", "C0C000", "333333", "00C0C0" }
  for column = 1, 7 do canvas.cell(column, 4, colours[column]) end
  local x, y = 120, 90
  canvas.play(function(c, sent)
    home(scene)
    if c <= 12 then
      scene:rect(x, y, 64, 64, colours[columns[c]])
    else
      scene:rect(x + 10 - 2 * c, y + 10 - 2 * c, 36, 36, red)
      scene:rect(x + 10 + 2 * c, y + 10 - 2 * c, 36, 36, red)
      scene:rect(x + 10 - 2 * c, y + 10 + 2 * c, 36, 36, red)
      scene:rect(x + 10 + 2 * c, y + 10 + 2 * c, 36, 36, red)
    end
    scene:check("frame " .. c)
    expect(sent, plays(9, c <= 13))
  end)
  expect_redrawn()
end)

test("the fourth technique lifts two rocks, and ends its first sound by closing it", function()
  for target, place in ipairs { { 30, 90 }, { 60, 180 } } do
    local scene = begin(4, target)
    canvas.cell(2, 0, red)
    canvas.cell(3, 0, green)
    local x, y = table.unpack(place)
    canvas.play(function(c, sent)
      home(scene)
      local wanted = ""
      if c < 16 then
        scene:rect(x - 20, y + 20 - (c - 6) * 10, 64, 64, red)
        wanted = plays(9, true)
      else
        scene:rect(x + 20, y + 20 - (c - 16) * 10, 64, 64, green)
        if c == 16 then wanted = "close snd9|play snd10 from 0" end
        if c == 24 then wanted = [[open "PATH\Sound\Bom.wav" alias snd9]] end
      end
      scene:check("frame " .. c)
      expect(sent, wanted, "frame " .. c)
      expect(sound_mode("snd9"), c < 16 and "playing" or c < 24 and "" or "stopped", "frame " .. c)
    end)
    expect_redrawn()
  end
end)

-- The fifth technique's leap: what frame `c` adds.
local function leap(scene, c, x, y)
  for j = 0, 3 do
    if c <= 12 then
      scene:rect(355, 140 - (j + c - 5) * 15, 40, 56, hero)
    elseif c <= 22 then
      if c == 22 then scene:rect(x + 20, y + 20, 48, 48, red) end
      scene:rect(355 - (j + c - 12) * 30, (j + c - 12) * 10 + 35, 40, 56, hero)
    else
      scene:rect(355 + c - j, 2 * c + 30 - j, 40, 56, hero)
    end
  end
end

test("the fifth technique leaps up, falls across the field and comes back, four poses a frame", function()
  local scene = begin(5, 2)
  canvas.cell(6, 1, red)
  canvas.play(function(c, sent)
    leap(scene, c, 60, 180)
    scene:check("frame " .. c)
    expect(sent, c == 22 and ("play snd2 from 0|"):rep(3) .. "play snd2 from 0" or "", "frame " .. c)
  end)
  expect_redrawn()
end)

test("the fifth technique holds the screen for 400 ms at frame 14, and at no other", function()
  begin(5, 1)
  tick("Battle.Timer1", 2)
  for c = 6, 48, 2 do
    local before = clock()
    tick("Battle.Timer1")
    expect(clock() - before, c == 14 and 400 or 0, "frame " .. c)
  end
end)

test("while the fifth technique holds the screen no timer ticks", function()
  begin(5, 1)
  steps.play_to(12)
  clear_sounds()
  tick("Battle.Timer1")
  expect(#sounds { status = true }, 0)
  expect(get("ActionState"), 14)
end)

test("the sixth technique runs at the enemy with three afterimages", function()
  local scene = begin(6, 1)
  canvas.cell(6, 1, red)
  canvas.play(function(c, sent)
    if c < 15 then
      home(scene)
    else
      for s = 0, 3 do scene:rect(355 - (c - s) * 20, 140, 40, 56, hero) end
    end
    if c > 20 then scene:rect(50, 110, 48, 48, red) end
    scene:check("frame " .. c)
    expect(sent, plays(2, c == 20))
  end)
  expect_redrawn()
end)

test("at frame 20 the sixth technique sounds without its cut, and the seventh sounds with it", function()
  for row, cut in pairs { [6] = false, [7] = true } do
    begin(row, 1)
    canvas.cell(6, 1, red)
    steps.play_to(18)
    clear_sounds()
    tick("Battle.Timer1")
    expect(steps.sent("play snd2 from 0"), 1)
    expect(shown_pixel("Battle.Picture1", 95, 112) == red, cut, "technique " .. row)
    tick("Battle.Timer1")
    expect(shown_pixel("Battle.Picture1", 95, 112), red)
    expect(steps.sent("play snd2 from 0"), row == 6 and 1 or 2)
  end
end)

test("the seventh technique widens a black band, and nobody stands in it", function()
  local scene = begin(7, 3)
  canvas.cell(6, 1, red)
  canvas.play(function(c, sent)
    scene:band(146 - 4 * c, 146 + 4 * c, "000000")
    if c >= 20 then scene:rect(140, 110, 48, 48, red) end
    scene:check("frame " .. c)
    expect(sent, plays(2, c == 20 or c == 22))
  end)
  expect_redrawn()
end)

test("the eighth technique jumps around its target in thirteen poses a frame, by radians", function()
  local scene = begin(8, 4)
  canvas.cell(4, 4, red)
  local x, y = 150, 180
  canvas.play(function(c, sent)
    scene:rect(canvas.round(math.cos(c) * 10 + x + 20), canvas.round(math.sin(c) * 5 + y + 20), 48, 48, red)
    for a = 0, 360, 30 do
      scene:rect(canvas.round(math.cos(a * c) * 50 + 10 + x), canvas.round(math.sin(a * c) * 50 + y), 48, 64, hero)
    end
    scene:check("frame " .. c)
    expect(sent, plays(2, true))
  end)
  expect_redrawn()
end)

-- The ninth technique's blows from frame 16 on around (x, y); the enemy's cells are drawn before.
local function blows(scene, c, x, y)
  for s = 0, 5 do
    scene:rect(x + 50 - s * c - 16, y + 4 + (s % 2 == 0 and c or -c), 48, 48, red)
  end
  scene:rect(x + 64, y, 40, 56, hero)
end

test("the ninth technique stands beside its target, that is thrown back by ten pixels", function()
  local scene = begin(9, 2)
  canvas.enemy(4, green)
  canvas.cell(4, 1, red)
  canvas.play(function(c, sent)
    if c < 16 then
      home(scene)
    else
      scene:cells(1, 5, 3, 3)
      scene:rect(50, 180, 64, 64, green)
      blows(scene, c, 60, 180)
    end
    scene:check("frame " .. c)
    expect(sent, plays(9, c >= 16))
  end)
end)

test("against a big enemy the ninth technique's blows fall around 120, 140", function()
  for name, enter in pairs { boss = canvas.boss, last = canvas.last_boss, dragon = canvas.bone_dragon } do
    enter()
    canvas.pose(hero)
    canvas.cell(4, 1, red)
    canvas.begin_waza(9, 1)
    local scene = canvas.scene()
    canvas.play(function(c)
      if c < 16 then
        home(scene)
      else
        scene:cells(2, 1, 4, 7)
        blows(scene, c, 120, 140)
      end
      scene:check(name .. ", frame " .. c)
    end)
    expect(get("WazaX"), 120)
    expect(get("WazaY"), 140)
    expect(get("WazaBossX"), 120)
    expect(get("WazaBossY"), 140)
  end
end)

test("every technique that looks for its target finds a big enemy at 120, 140", function()
  -- For each: a frame to look at, the cell, and where its top left corner must be.
  local looks = {
    { row = 1, frame = 20, cell = { 4, 4 }, at = { 130, 170 } },
    { row = 2, frame = 20, cell = { 4, 5 }, at = { 130, 170 } },
    { row = 3, frame = 6, cell = { 1, 4 }, at = { 120, 140 } },
    { row = 4, frame = 8, cell = { 2, 0 }, at = { 100, 140 } },
    { row = 5, frame = 22, cell = { 6, 1 }, at = { 140, 160 } },
    { row = 6, frame = 22, cell = { 6, 1 }, at = { 140, 160 } },
    { row = 7, frame = 20, cell = { 6, 1 }, at = { 140, 160 } },
    { row = 10, frame = 16, cell = { 1, 3 }, at = { 152, 156 } },
  }
  for _, look in ipairs(looks) do
    canvas.boss()
    canvas.cell(look.cell[1], look.cell[2], red)
    canvas.begin_waza(look.row, 1)
    steps.play_to(look.frame - 2)
    paint("Battle.Picture1", canvas.ground)
    tick("Battle.Timer1")
    local x, y = look.at[1], look.at[2]
    local note = "technique " .. look.row
    expect(pixel("Battle.Picture1", x, y), red, note)
    expect(pixel("Battle.Picture1", x - 1, y) == red, false, note)
    expect(pixel("Battle.Picture1", x, y - 1) == red, false, note)
  end
end)

test("the tenth technique closes in from four corners, through a flash, and bursts", function()
  local scene = begin(10, 1)
  canvas.pose(back, 32)
  canvas.cell(1, 3, red)
  local x, y = 30, 90
  canvas.play(function(c, sent)
    local wanted = ""
    if c < 16 then
      if c == 6 then wanted = "play snd10 from 0" end
      if c == 8 then scene:rect(0, 0, 432, 264, "FFFFFF") end
      for d = 0, 1 do
        local v = d == 0 and (c - 5) * 11 or 210 - (c - 5) * 11
        scene:rect(390 - (c - 5) * 20, v, 40, 56, hero)
        scene:rect((c - 5) * 20, v, 40, 56, back)
      end
    else
      local grown = c - 16
      scene:rect(x + 32 - grown * 15, y + 16 - grown * 15, grown * 30 + 48, grown * 30 + 48, red)
      if c == 16 then wanted = "close snd10|play snd4 from 0" end
      if c == 24 then wanted = [[open "PATH\Sound\Ice.wav" alias snd10]] end
    end
    scene:check("frame " .. c)
    expect(sent, wanted, "frame " .. c)
    expect(sound_mode("snd10"), c < 16 and "playing" or c < 24 and "" or "stopped", "frame " .. c)
  end)
  expect_redrawn()
end)

test("a channel that a technique has closed plays again in the same battle", function()
  canvas.group(4)
  for slot = 0, 3 do set("EnemyLife[" .. slot .. "]", 1000000) end
  canvas.begin_waza(4, 1)
  run("Battle.Timer1")
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", 7)
  steps.play_to(6)
  expect(sound_mode("snd9"), "playing")
  run("Battle.Timer1")
  click("Battle.Command3")
  choose("Battle.List1", 10)
  choose("Battle.List2", 1)
  run("Battle.Timer1")
  expect(sound_mode("snd10"), "stopped")
  click("Battle.Command2")
  choose("Battle.List1", 2)
  choose("Battle.List2", 1)
  steps.play_to(14)
  expect(sound_mode("snd10"), "playing")
end)

test("a skill's last frame leaves the channels as the battle opened them", function()
  for _, row in ipairs { 4, 10 } do
    canvas.group(1)
    set("EnemyLife[0]", 1000000)
    canvas.begin_waza(row, 1)
    run("Battle.Timer1")
    for channel = 2, 10 do expect(sound_mode("snd" .. channel) ~= "", true, "snd" .. channel) end
  end
end)

test("ticks that fell into the fifth technique's pause are not made up for", function()
  begin(5, 1)
  wait(7 * 15 - 1)
  expect(get("ActionState"), 12)
  clear_sounds()
  local before = clock()
  wait(1)
  wait(1)
  expect(clock() - before >= 400, true)
  expect(get("ActionState") >= 14, true)
  expect(get("ActionState") <= 16, true, "one late tick at most")
  local queries = 0
  for _, command in ipairs(sounds { status = true }) do
    if command == "status bgm4 mode" then queries = queries + 1 end
  end
  expect(queries <= 1, true, "and one of the music's timer")
end)
