local steps = require "lib.steps"
local plain = require "lib.plain"
local scene, ground, last_ground, enemy = plain.scene, plain.ground, plain.last_ground, plain.enemy
local man, woman, plain_sheets, effect = plain.man, plain.woman, plain.plain_sheets, plain.effect
local at, filled, stands, slots, battle = plain.at, plain.filled, plain.stands, plain.slots, plain.battle
local commit, cast, skilled = plain.commit, plain.cast, plain.skilled

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

test("what is restored behind a hero is the ground of that place", function()
  for hero = 0, 1 do
    steps.arena()
    plain_sheets(4)
    local width, height = picture_size("Battle.Picture7")
    for x = 0, width - 1, 4 do
      for y = 0, height - 1, 4 do paint("Battle.Picture7", ("%02X%02X80"):format(x % 256, y % 256), x, y, 4, 4) end
    end
    steps.battle_with(4, 1)
    tab("Battle.SSTab1", hero)
    local places, before = {}, {}
    for x = hero == 0 and 408 or 426, 431 do
      for y = 132, 263 do
        places[#places + 1] = { x, y }
        before[#places] = pixel(scene, x, y)
      end
    end
    commit()
    tick("Battle.Timer1", 2)
    for i, place in ipairs(places) do
      local now = pixel(scene, place[1], place[2])
      if now ~= before[i] then at(place[1], place[2], before[i], "hero " .. hero) end
    end
  end
end)

test("after a stroke the first hero steps back in two frames and stands at rest", function()
  battle(4, 2)
  commit()
  steps.play_to(26)
  filled(357, 140, 40, 56, man[2])
  at(397, 150, ground)
  tick("Battle.Timer1")
  filled(361, 140, 40, 56, man[1])
  at(360, 150, ground, "where he stood before")
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
  at(380, 210, ground, "where she stood before")
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
