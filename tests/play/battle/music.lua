local steps = require "lib.steps"

-- The commands to the music channels since the last clearing.
local function music()
  local found = {}
  for _, each in ipairs(sounds { status = true }) do
    if each:find("bgm", 1, true) then found[#found + 1] = each end
  end
  return table.concat(found, ", ")
end

test("the music starts on the first tick of the music timer, loops, and is never opened again", function()
  steps.arena()
  steps.battle()
  expect(sound_mode("bgm4"), "stopped")
  clear_sounds()
  wait(99)
  expect(music(), "")
  wait(1)
  expect(music(), "status bgm4 mode, play bgm4 from 0")
  expect(sound_mode("bgm4"), "playing")
  clear_sounds()
  wait(200)
  expect(music(), "status bgm4 mode, status bgm4 mode")
  end_sound("bgm4")
  clear_sounds()
  wait(100)
  expect(music(), "status bgm4 mode, play bgm4 from 0")
end)

test("a dragon has bgm5 and the last boss bgm6, a dragon in the last stage bgm5", function()
  for _, case in ipairs { { "bgm5", 1, 0 }, { "bgm6", 4, -1 }, { "bgm5", 3, -1 } } do
    steps.arena(case[2])
    set("LastBossFight", case[3])
    if case[2] == 4 then steps.last_boss() else steps.boss() end
    clear_sounds()
    tick("Battle.Timer2")
    expect(music(), ("status %s mode, play %s from 0"):format(case[1], case[1]))
  end
end)

test("the music goes on while an action plays", function()
  steps.arena()
  steps.battle()
  click("Battle.Command1")
  choose("Battle.List2", 1)
  clear_sounds()
  wait(100)
  expect(get("ActionState"), 12)
  expect(music(), "status bgm4 mode, play bgm4 from 0")
end)

test("music of an abandoned battle plays on into the next", function()
  steps.arena()
  steps.battle(0, 0)
  tick("Battle.Timer2")
  close("Battle")
  steps.flatten()
  steps.put(100, 100)
  steps.battle(0, 0)
  clear_sounds()
  tick("Battle.Timer2")
  expect(music(), "status bgm4 mode")
end)
