local steps = require "lib.steps"
local records = require "lib.records"

test("the opening shows its lines by clicks, even lines the man's, odd lines the woman's", function()
  start()
  steps.enter_names()
  paint("Main.Picture7", "AA0000")
  paint("Main.Picture8", "00AA00")
  tick("Main.Timer3")
  expect(get("Main.Picture5.Visible"), true)
  expect(get("Main.Label8.Caption"), "いてててて。")
  expect(pixel("Main.Picture9", 10, 10), "AA0000")
  expect(shown_pixel("Main.Picture9", 10, 10), "AA0000")
  click("Main.Picture1")
  tick("Main.Timer3")
  expect(get("Main.Label8.Caption"), "いった～い。")
  expect(pixel("Main.Picture9", 10, 10), "00AA00")
  expect(#sounds(), 0, "a scene has no music")
end)

test("the arrow blinks two ticks on and three off", function()
  start()
  steps.enter_names()
  local shown = ""
  for _ = 1, 10 do
    tick("Main.Timer3")
    shown = shown .. (get("Main.Label7.Visible") and "1" or "0")
  end
  expect(shown, "0011000110")
end)

test("the scene hides the message labels and brings them back", function()
  start()
  steps.enter_names()
  tick("Main.Timer3")
  expect(get("Main.Label6(0).Visible"), false)
  expect(get("Main.Label8.Visible"), true)
  for _ = 1, 20 do click("Main.Picture1") end
  expect(get("Main.Label6(0).Visible"), true)
  expect(get("Main.Label8.Visible"), false)
  expect(get("Main.Picture9.Visible"), false)
  expect(get("Main.Picture5.Visible"), false)
end)

test("twenty clicks end the opening on line 21 and the party walks", function()
  start()
  steps.enter_names()
  for _ = 1, 19 do click("Main.Picture1") end
  expect(get("OpeningDone"), 0)
  click("Main.Picture1")
  expect(get("StoryNo"), 21)
  expect(get("OpeningDone"), -1)
  expect(get("Main.Timer3.Enabled"), false)
  expect(get("Main.Timer1.Enabled"), true)
  for _, menu in ipairs { "m1", "m2", "m3", "m12" } do expect(get("Main." .. menu .. ".Enabled"), true) end
  expect(get("Main.m11.Enabled"), false)
end)

test("while the opening is not done a click is the opening's, whatever else is set", function()
  for _, flag in ipairs { "BossFight", "LastBossDown" } do
    start()
    steps.enter_names()
    set(flag, -1)
    set("StoryNo", 22)
    click("Main.Picture1")
    steps.state { StoryNo = 23, Round = 1, [flag] = -1 }
  end
end)

test("the hero is not drawn during a scene", function()
  start()
  steps.enter_names()
  paint("Main.Picture4", "778899")
  tick("Main.Timer3")
  expect(pixel("Main.Picture1", get("HeroX"), get("HeroY") - 4), "778899")
  expect(shown_pixel("Main.Picture1", get("HeroX"), get("HeroY") - 4), "778899")
end)

test("a recovery message is closed first, even where the last scene waits", function()
  steps.field()
  set("LastBossDown", -1)
  set("StoryNo", 40)
  set("RecoveryShown", -1)
  set("Main.Picture5.Visible", true)
  click("Main.Picture1")
  expect(get("StoryNo"), 40)
  expect(get("RecoveryShown"), 0)
  expect(get("Main.Picture5.Visible"), false)
  click("Main.Picture1")
  expect(get("StoryNo"), 41)
end)

local function closing(round, story)
  steps.field()
  set("Round", round)
  set("StoryNo", story)
  set("BossFight", -1)
  click("Main.m32")
  click("Chardata.Command1")
  expect(get("Main.Timer3.Enabled"), true)
  expect(get("Main.Timer1.Enabled"), false)
  expect(get("Main.m1.Enabled"), false)
  expect(get("Main.m12.Enabled"), false)
end

test("a screen left open over a dragon's fall starts no walk beside the scene when it closes", function()
  for item, screen in pairs { m12 = "Save", m21 = "Wepon", m22 = "Item", m32 = "Chardata", m33 = "Custom", m35 = "Version" } do
    steps.field()
    click("Main." .. item)
    set("BossFight", -1)
    set("StoryNo", 21)
    close(screen)
    expect(active(), "Main", screen)
    expect(get("Main.Timer3.Enabled"), true, screen)
    expect(get("Main.Timer1.Enabled"), false, screen)
  end
end)

test("the end of a dragon's scene starts the next round", function()
  closing(1, 21)
  for i = 0, 15 do set("TreasureLeft[" .. i .. "]", 0) end
  for i = 0, 4 do set("BookLeft[" .. i .. "]", 0) end
  write_map("Mapdata/map3-3.dat", 26)
  set("WazaKnown[1]", -1)
  set("MagicKnown[6]", -1)
  set("Items[0]", 21)
  set("Items[19]", 30)
  set("ItemCount", 4)
  set("Level[1]", 9)
  for _, counter in ipairs { "FieldFrame", "MessageFrame", "StoryFrame", "ActionState" } do set(counter, 9) end
  set("MapA", 4)
  set("MapB", 1)
  click("Main.Picture1")
  expect(get("StoryNo"), 22)
  click("Main.Picture1")
  expect(get("StoryNo"), 24)
  expect(get("Round"), 2)
  expect(get("BossFight"), 0)
  expect(get("MapA"), 3)
  expect(get("MapB"), 3)
  expect(get("HeroX"), 208)
  expect(get("HeroY"), 112)
  for _, counter in ipairs { "FieldFrame", "MessageFrame", "StoryFrame", "ActionState" } do expect(get(counter), 0, counter) end
  for i = 0, 15 do expect(get("TreasureLeft[" .. i .. "]"), i < 15 and -1 or 0) end
  for i = 0, 4 do expect(get("BookLeft[" .. i .. "]"), i < 4 and -1 or 0) end
  expect(get("MapTile[29][15]"), 26, "the map has been read")
  expect(get("WazaKnown[1]"), -1, "what was learned stays")
  expect(get("MagicKnown[6]"), -1)
  expect(get("WazaKnown[2]"), 0)
  for slot, item in pairs { [0] = 21, [1] = 47, [2] = 47, [3] = 99, [19] = 30 } do
    expect(get("Items[" .. slot .. "]"), item, "the bag carries over")
  end
  expect(get("ItemCount"), 4)
  expect(get("Level[1]"), 9)
  expect(get("Main.Timer1.Enabled"), true)
  expect(get("Main.Timer3.Enabled"), false)
end)

test("a game loaded in round 2 goes on with line 24 after the next dragon", function()
  records.title { ["Save01.sav"] = records.small_record() }
  records.load()
  expect(get("StoryNo"), 24)
  steps.boss()
  steps.win()
  steps.leave()
  expect(get("Main.Timer3.Enabled"), true)
  tick("Main.Timer3")
  expect(get("Main.Label8.Caption"), "よし！あと１体だ！")
end)

test("the line that ends a scene is never shown", function()
  start()
  steps.enter_names()
  local seen = {}
  for _ = 1, 20 do
    tick("Main.Timer3")
    seen[#seen + 1] = get("Main.Label8.Caption")
    click("Main.Picture1")
  end
  for line = 0, 19 do expect(seen[line + 1], get("StoryText[" .. line .. "]"), "line " .. line) end
  expect(get("Main.Timer3.Enabled"), false)
  for round, story in pairs { 21, 24, 28 } do
    closing(round, story)
    while get("Main.Timer3.Enabled") do
      tick("Main.Timer3")
      expect(get("Main.Label8.Caption") ~= "", true)
      click("Main.Picture1")
    end
    expect(get("Round"), round + 1)
  end
end)

test("the second dragon's scene has three lines", function()
  closing(2, 24)
  for _ = 1, 2 do click("Main.Picture1") end
  expect(get("Round"), 2)
  click("Main.Picture1")
  expect(get("Round"), 3)
  expect(get("StoryNo"), 28)
end)

test("the third dragon's scene leads to the last stage, where the first save is possible", function()
  closing(3, 28)
  write_map("Mapdata/map0-0.dat", 27)
  for _ = 1, 3 do click("Main.Picture1") end
  expect(get("MapTile[0][15]"), 27, "the map has been read")
  expect(get("Round"), 4)
  expect(get("StoryNo"), 32)
  expect(get("MapA"), 0)
  expect(get("MapB"), 0)
  expect(get("HeroX"), 232)
  expect(get("HeroY"), 224)
  expect(get("LastBossFight"), -1)
  expect(get("BossFight"), 0)
  expect(get("Main.m12.Enabled"), true)
  click("Main.m32")
  click("Chardata.Command1")
  expect(get("Main.m12.Enabled"), false, "until the first activation")
end)

test("the last scene opens the ending and closes Main", function()
  steps.field()
  set("Round", 4)
  set("LastBossFight", -1)
  set("LastBossDown", -1)
  set("StoryNo", 44)
  click("Main.m32")
  click("Chardata.Command1")
  click("Main.Picture1")
  expect(get("StoryNo"), 45)
  expect(active(), "Ending")
  expect(get("Main.Visible"), false)
  expect(get("Main.Loaded"), false)
  expect(get("Ending.Timer1.Enabled"), true)
end)

test("a click on the message window or the status panel is none on the field", function()
  start()
  steps.enter_names()
  tick("Main.Timer3")
  click("Main.Picture1", 100, 40)
  expect(get("StoryNo"), 0)
  click("Main.Picture1", 100, 280)
  expect(get("StoryNo"), 0)
  click("Main.Picture1", 100, 120)
  expect(get("StoryNo"), 1)
end)
