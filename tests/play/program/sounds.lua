local steps = require "lib.steps"
local canvas = require "lib.canvas"

local files = { snd2 = "Cut", snd3 = "Fire", snd4 = "Atomic", snd5 = "Fresh", snd6 = "Quake", snd7 = "Win",
  snd8 = "Thunder", snd9 = "Bom", snd10 = "Ice" }

local function open(alias, file)
  return ([[open "PATH\Sound\%s" alias %s]]):format(file, alias)
end

-- All effects of a battle, in the order in which they are opened.
local function effects()
  local list = {}
  for channel = 2, 10 do
    local alias = "snd" .. channel
    list[#list + 1] = open(alias, files[alias] .. ".wav")
  end
  return table.concat(list, "|")
end

-- What entering a battle sends, after the field's own commands of that tick.
local function entry(round, boss)
  steps.plain_world()
  set("Round", round)
  if boss then set("BossFight", -1) end
  tick("Main.Timer1")
  clear_sounds()
  steps.battle(0, 0)
  local sent = sounds()
  table.remove(sent, 1)
  return table.concat(sent, "|")
end

test("a battle of a round closes that round's music and opens its own and nine effects", function()
  for round = 1, 3 do
    expect(entry(round), "close bgm" .. round .. "|" .. open("bgm4", "Battle1.mid") .. "|" .. effects())
  end
end)

test("a dragon's battle opens the dragon's music", function()
  for round = 1, 3 do
    expect(entry(round, true), "close bgm" .. round .. "|" .. open("bgm5", "Boss.mid") .. "|" .. effects())
  end
end)

test("a battle of round 4 that is not the last closes no music", function()
  steps.plain_world()
  set("Round", 4)
  clear_sounds()
  steps.battle(0, 0)
  expect(table.concat(sounds(), "|"), open("bgm4", "Battle1.mid") .. "|" .. effects())
end)

test("the last battle closes the cave's music and opens its own", function()
  canvas.last_boss()
  local sent = sounds()
  local text = table.concat(sent, "|")
  local wanted = "close bgm8|" .. open("bgm6", "LastBoss.mid") .. "|" .. effects()
  expect(text:sub(-#wanted), wanted)
end)

test("the battle's music is only opened at the entry, its own timer plays it", function()
  steps.plain_world()
  steps.battle(0, 0)
  expect(sound_mode("bgm4"), "stopped")
  wait(99)
  expect(sound_mode("bgm4"), "stopped")
  wait(1)
  expect(sound_mode("bgm4"), "playing")
end)

test("after a battle the field's music starts from its beginning", function()
  steps.plain_world()
  tick("Main.Timer1")
  expect(sound_mode("bgm1"), "playing")
  steps.battle_with(4, 1)
  expect(sound_mode("bgm1"), "")
  set("EnemyLife[0]", 1)
  steps.strike(1)
  click("Battle.Picture1", 10, 200)
  expect(active(), "Main")
  clear_sounds()
  tick("Main.Timer1")
  expect(table.concat(sounds { status = true }, "|"),
    open("bgm1", "Round1.mid") .. "|status bgm1 mode|play bgm1 from 0")
end)

test("an open of an open channel changes nothing", function()
  steps.plain_world()
  tick("Main.Timer1", 5)
  expect(steps.sent(open("bgm1", "Round1.mid")), 5)
  expect(steps.sent("play bgm1 from 0"), 1)
  expect(sound_mode("bgm1"), "playing")
end)

test("a piece that has ended starts again on the next tick", function()
  steps.plain_world()
  tick("Main.Timer1")
  end_sound("bgm1")
  tick("Main.Timer1")
  expect(steps.sent("play bgm1 from 0"), 2)
end)

test("while a message stands the field's music is not looped, and afterwards it is", function()
  steps.plain_world()
  set("MapTile[12][6]", 36)
  tick("Main.Timer1")
  expect(get("Main.Timer2.Enabled"), true)
  end_sound("bgm1")
  clear_sounds()
  wait(500)
  expect(steps.sent("play bgm1 from 0"), 0)
  click("Main.Picture1")
  tick("Main.Timer1")
  expect(steps.sent("play bgm1 from 0"), 1)
end)

test("during a scene no music is asked for", function()
  start()
  steps.enter_names()
  wait(1000)
  expect(#sounds { status = true }, 0)
end)

test("without sound files the game goes on in silence", function()
  prepare()
  for _, name in ipairs(list_files("Sound/*")) do delete_file(name) end
  expect(#list_files("Sound/*"), 0)
  steps.field { keep = true }
  wait(100)
  expect(steps.sent("play bgm1 from 0"), 0)
  expect(sound_mode("bgm1"), "")
  steps.battle_with(4, 1)
  set("EnemyLife[0]", 1)
  wait(300)
  expect(steps.sent("play bgm4 from 0"), 0)
  steps.strike(1)
  click("Battle.Picture1", 10, 200)
  expect(active(), "Main")
  expect(#boxes(), 0)
  expect(ended(), false)
end)
