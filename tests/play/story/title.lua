local steps = require "lib.steps"

test("start-up stands on the title with a fresh record", function()
  start()
  expect(active(), "Main")
  expect(get("Main.Caption"), "Orvane")
  expect(get("Main.Width"), 496)
  expect(get("Main.Height"), 303)
  expect(get("GameStarted"), 0)
  expect(get("HeroX"), 192)
  expect(get("HeroY"), 96)
  expect(get("MapA"), 3)
  expect(get("MapB"), 3)
  expect(get("Main.Label2.Caption"), "Copyright (C) 2001 Kelmark")
  for _, timer in ipairs { "Timer1", "Timer2", "Timer3" } do
    expect(get("Main." .. timer .. ".Enabled"), false)
  end
  expect(#sounds(), 0)
  expect(get("Battle.Loaded"), true)
  expect(get("Battle.Visible"), false)
  expect(get("Battle.Timer1.Interval"), 15)
end)

test("the title's menus offer loading and the end alone", function()
  start()
  expect(can_click("Main.m11"), true)
  expect(can_click("Main.m14"), true)
  expect(can_click("Main.m12"), false)
  expect(can_click("Main.m21"), false)
  expect(can_click("Main.m32"), false)
end)

test("the title picture is stretched by 1.5 and 2 in place", function()
  start()
  local colours, count = {}, 0
  for y = 0, 303 do
    for x = 0, 479 do
      local here = pixel("Main.Picture1", x, y)
      expect(shown_pixel("Main.Picture1", x, y), here)
      if x % 3 == 1 then expect(here, pixel("Main.Picture1", x - 1, y), ("column %d is that before it"):format(x)) end
      if y % 2 == 1 then expect(here, pixel("Main.Picture1", x, y - 1), ("row %d is that before it"):format(y)) end
      if not colours[here] then colours[here], count = true, count + 1 end
    end
  end
  expect(count > 8, true, "a picture, not a plain ground")
  local seams = 0
  for x = 3, 477, 3 do
    if pixel("Main.Picture1", x, 100) ~= pixel("Main.Picture1", x - 1, 100) then seams = seams + 1 end
  end
  expect(seams > 8, true, "no column is wider than two")
  expect(picture_size("Main.Picture1"), 481)
end)

-- What a new game writes, and what stood there before.
local function dirty()
  for hero = 0, 1 do
    for _, name in ipairs { "Level", "HP", "MaxHP", "MP", "MaxMP", "BaseAttack", "Attack", "BaseDefence", "Defence", "Spirit",
      "WeaponAttack", "ArmourDefence", "BookSkill", "Exp" } do set(name .. "[" .. hero .. "]", 77) end
    for _, name in ipairs { "WeaponName", "ArmourName", "BookName" } do set(name .. "[" .. hero .. "]", "old") end
  end
  for i = 0, 9 do
    set("WazaKnown[" .. i .. "]", -1)
    set("MagicKnown[" .. i .. "]", -1)
  end
  for i = 0, 15 do set("TreasureLeft[" .. i .. "]", 5) end
  for i = 0, 4 do set("BookLeft[" .. i .. "]", 5) end
  for i = 0, 20 do set("Items[" .. i .. "]", 5) end
  for _, name in ipairs { "MapA", "MapB", "Round", "StoryNo", "SaveX", "SaveY", "ItemCount", "TreasureNo", "BookNo", "ActionState",
    "KeyUpWaiting", "KeyDownWaiting", "KeyLeftWaiting", "KeyRightWaiting", "OnRecovery", "OnChest", "HeroX", "HeroY",
    "SaveMapA", "SaveMapB", "SaveRound", "SaveLevel[0]", "WazaKnown[10]", "Level[2]" } do set(name, 5) end
  set("SaveName[1]", "old")
  set("HeroName[0]", "old")
  set("Battle.Timer1.Interval", 3)
  set("Main.Timer1.Enabled", true)
end

test("a new game overwrites what it sets, and nothing else", function()
  start()
  dirty()
  click("Main.Command1")
  for _, name in ipairs { "KeyUpWaiting", "KeyDownWaiting", "KeyLeftWaiting", "KeyRightWaiting", "OnRecovery", "OnChest",
    "ActionState", "TreasureNo", "StoryNo" } do expect(get(name), 0, name) end
  for name, value in pairs { MapA = 3, MapB = 3, Round = 1, SaveX = 13, SaveY = 7, ItemCount = 3 } do
    expect(get(name), value, name)
  end
  local starts = { Level = { 1, 1 }, HP = { 120, 80 }, MaxHP = { 120, 80 }, MP = { 10, 30 }, MaxMP = { 10, 30 }, BaseAttack = { 8, 4 },
    Attack = { 8, 4 }, BaseDefence = { 4, 6 }, Defence = { 4, 6 }, Spirit = { 1, 12 }, WeaponAttack = { 0, 0 },
    ArmourDefence = { 0, 0 }, BookSkill = { 0, 0 }, Exp = { 0, 0 } }
  for name, values in pairs(starts) do
    for hero = 0, 1 do expect(get(name .. "[" .. hero .. "]"), values[hero + 1], name .. " " .. hero) end
  end
  for hero = 0, 1 do
    for _, name in ipairs { "WeaponName", "ArmourName", "BookName" } do
      expect(get(name .. "[" .. hero .. "]"), "なし" .. (" "):rep(18), name .. " " .. hero)
    end
  end
  for i = 0, 9 do
    expect(get("WazaKnown[" .. i .. "]"), 0)
    expect(get("MagicKnown[" .. i .. "]"), 0)
  end
  for i = 0, 15 do expect(get("TreasureLeft[" .. i .. "]"), i < 15 and -1 or 5, "chest " .. i) end
  for i = 0, 4 do expect(get("BookLeft[" .. i .. "]"), i < 4 and -1 or 5, "book chest " .. i) end
  for i = 0, 20 do expect(get("Items[" .. i .. "]"), i < 3 and 47 or i < 20 and 99 or 5, "slot " .. i) end
  for name, value in pairs { BookNo = 5, HeroX = 5, HeroY = 5, SaveMapA = 5, SaveMapB = 5, SaveRound = 5, ["SaveLevel[0]"] = 5,
    ["WazaKnown[10]"] = 5, ["Level[2]"] = 5, ["SaveName[1]"] = "old     ", ["HeroName[0]"] = "old     " } do
    expect(get(name), value, name)
  end
  expect(get("Battle.Timer1.Interval"), 15)
  expect(get("Main.Timer1.Enabled"), false)
end)

test("start-up reads the fifty things, and the last one stays in the buffer", function()
  prepare()
  write_file("Item.dat", read_file("Item.dat"):sub(1, 49 * 32) .. string.pack("<i4c20i4i4", 9, "Last" .. (" "):rep(16), 6, 123))
  start { keep = true }
  expect(get("ItemRec.Name"), "Last" .. (" "):rep(16))
  expect(get("ItemRec.Kind"), 6)
  expect(get("ItemRec.Value"), 123)
end)

test("a new game fills the record", function()
  start()
  click("Main.Command1")
  local expected = {
    ["Level[0]"] = 1, ["HP[0]"] = 120, ["MaxHP[0]"] = 120, ["MP[0]"] = 10, ["MaxMP[0]"] = 10,
    ["BaseAttack[0]"] = 8, ["Attack[0]"] = 8, ["BaseDefence[0]"] = 4, ["Defence[0]"] = 4, ["Spirit[0]"] = 1,
    ["Level[1]"] = 1, ["HP[1]"] = 80, ["MaxHP[1]"] = 80, ["MP[1]"] = 30, ["MaxMP[1]"] = 30,
    ["BaseAttack[1]"] = 4, ["Attack[1]"] = 4, ["BaseDefence[1]"] = 6, ["Defence[1]"] = 6, ["Spirit[1]"] = 12,
    ["Exp[0]"] = 0, ["Exp[1]"] = 0, ["Round"] = 1, ["StoryNo"] = 0, ["ItemCount"] = 3,
    ["Items[0]"] = 47, ["Items[2]"] = 47, ["Items[3]"] = 99, ["Items[19]"] = 99,
    ["TreasureLeft[0]"] = -1, ["TreasureLeft[14]"] = -1, ["BookLeft[3]"] = -1, ["WazaKnown[9]"] = 0,
  }
  for name, value in pairs(expected) do expect(get(name), value, name) end
  for _, name in ipairs { "WeaponName[0]", "ArmourName[1]", "BookName[0]" } do
    expect(get(name), "なし" .. (" "):rep(18), name)
  end
end)

test("a new game keeps the proficiency counters", function()
  start()
  set("WazaUse[3]", 77)
  set("MagicUse[9]", 5)
  click("Main.Command1")
  expect(get("WazaUse[3]"), 77)
  expect(get("MagicUse[9]"), 5)
end)

test("a click on the title picture moves the opening one line on", function()
  start()
  for _ = 1, 3 do click("Main.Picture1") end
  expect(get("StoryNo"), 3)
  steps.enter_names()
  expect(get("StoryNo"), 0, "the name entry sets a new game up")
end)

test("twenty clicks on the title end the opening before it begins", function()
  start()
  for _ = 1, 20 do click("Main.Picture1") end
  expect(get("OpeningDone"), -1)
  expect(get("StoryNo"), 21)
  for _, menu in ipairs { "m1", "m2", "m3", "m12" } do expect(get("Main." .. menu .. ".Enabled"), true, menu) end
  expect(get("Main.Timer1.Enabled"), true)
  tick("Main.Timer1")
  expect(get("FieldFrame"), 0, "on the title a tick does nothing")
  expect(#sounds(), 0)
  expect(get("GameStarted"), 0)
  expect(get("Main.Label1.Visible"), true)
  steps.enter_names()
  expect(get("Main.Timer3.Enabled"), false, "the game goes directly to the field")
  expect(get("Main.Timer1.Enabled"), true)
  expect(get("StoryNo"), 0)
  tick("Main.Timer1")
  expect(get("FieldFrame"), 1)
end)

test("a click on a label of the title is none on its picture", function()
  start()
  click("Main.Picture1", 200, 100)
  expect(get("StoryNo"), 0)
  click("Main.Picture1", 20, 20)
  expect(get("StoryNo"), 1)
end)

test("quitting closes all channels in order and ends the program", function()
  start()
  answer("OK")
  click("Main.m14")
  expect(ended(), true)
  expect(exit_status(), 0)
  local box = boxes()[1]
  expect(box.text, "終了しますか？")
  expect(box.title, "ゲームの終了")
  expect(box.buttons, "OKCancel")
  local sent = sounds()
  expect(#sent, 18)
  expect(sent[1], "close bgm1")
  expect(sent[8], "close bgm8")
  expect(sent[9], "close snd1")
  expect(sent[18], "close snd10")
end)

test("a cancelled quit starts the walk, whatever stood before", function()
  start()
  answer("Cancel")
  click("Main.m14")
  expect(get("Main.Timer1.Enabled"), true)
  tick("Main.Timer1")
  expect(get("FieldFrame"), 0)
end)

test("while the quit question stands the walk is off", function()
  steps.field()
  local during
  answer(function()
    during = get("Main.Timer1.Enabled")
    return "Cancel"
  end)
  click("Main.m14")
  expect(during, false)
  expect(get("Main.Timer1.Enabled"), true)
end)

test("the window's own close control asks the same and leaves the timers as they were", function()
  start()
  answer("Cancel")
  close("Main")
  expect(boxes()[1].text, "終了しますか？")
  expect(get("Main.Timer1.Enabled"), false)
  expect(ended(), false)
  steps.field()
  answer("Cancel")
  close("Main")
  expect(get("Main.Timer1.Enabled"), true, "whoever walked walks on")
  answer("OK")
  close("Main")
  expect(ended(), true)
  expect(exit_status(), 0)
end)

test("names of blanks count as empty", function()
  start()
  answer("OK")
  steps.enter_names("   ", "リナ")
  expect(boxes()[1].text, "名前を入力してください。")
  expect(boxes()[1].title, "警告")
  expect(boxes()[1].buttons, "OK")
  expect(active(), "InputName")
  expect(get("InputName.Text1(1).Text"), "リナ", "the text stays in the fields")
end)

test("names of full-width blanks alone count as empty, and a blank within a name counts", function()
  start()
  answer("OK", "OK")
  steps.enter_names("　　", "リナ")
  expect(boxes()[1].text, "名前を入力してください。")
  enter("InputName.Text1(0)", "カ　イ")
  enter("InputName.Text1(1)", "　 　")
  click("InputName.OKButton")
  expect(boxes()[2].text, "名前を入力してください。")
  enter("InputName.Text1(1)", "　リナ")
  click("InputName.OKButton")
  expect(get("HeroNameText[0]"), "カ　イ")
  expect(get("HeroNameText[1]"), "　リナ")
end)

test("names that differ in blanks at their ends are the same", function()
  start()
  answer("OK")
  steps.enter_names("カイ ", " カイ")
  expect(boxes()[1].text, "同じ名前です。")
end)

test("the checks run in the order empty, same, length", function()
  start()
  answer("OK", "OK", "OK")
  steps.enter_names("あいうえおかき", "あいうえおかき")
  expect(boxes()[1].text, "同じ名前です。")
  enter("InputName.Text1(1)", "あいうえおかく")
  click("InputName.OKButton")
  expect(boxes()[2].text, "文字制限を超えています。")
  enter("InputName.Text1(0)", "")
  click("InputName.OKButton")
  expect(boxes()[3].text, "名前を入力してください。")
end)

test("six characters pass and seven do not", function()
  start()
  answer("OK")
  steps.enter_names("あいうえおかき", "リナ")
  expect(boxes()[1].text, "文字制限を超えています。")
  enter("InputName.Text1(0)", "あいうえおか")
  click("InputName.OKButton")
  expect(get("GameStarted"), -1)
  expect(get("HeroName[0]"), "あいうえおか  ")
  expect(get("HeroNameText[0]"), "あいうえおか")
end)

test("the second name may not be longer either", function()
  start()
  answer("OK")
  steps.enter_names("カイ", "あいうえおかき")
  expect(boxes()[1].text, "文字制限を超えています。")
  expect(get("GameStarted"), 0)
end)

test("a cancelled name entry leaves the title as it was and keeps no name", function()
  start()
  click("Main.Command1")
  enter("InputName.Text1(0)", "カイ")
  enter("InputName.Text1(1)", "リナ")
  click("InputName.CancelButton")
  expect(active(), "Main")
  expect(get("GameStarted"), 0)
  expect(get("Main.Command1.Visible"), true)
  expect(get("HeroName[0]"), (" "):rep(8))
  expect(get("InputName.Text1(0).Text"), "")
  expect(get("InputName.Text1(1).Text"), "")
  set("HP[0]", 5)
  set("Main.Timer1.Enabled", true)
  click("Main.Command1")
  expect(get("InputName.Text1(0).Text"), "")
  expect(get("InputName.Text1(1).Text"), "")
  expect(get("HP[0]"), 120, "each opening sets a new game up")
  expect(get("Main.Timer1.Enabled"), false)
end)

test("the name entry is modal", function()
  start()
  click("Main.Command1")
  expect(can_click("Main.Picture1"), false)
  expect(can_click("Main.m11"), false)
end)

test("the names lead straight into the opening", function()
  start()
  steps.enter_names()
  expect(active(), "Main")
  expect(get("InputName.Loaded"), false)
  expect(get("Main.Timer3.Enabled"), true)
  expect(get("Main.Timer1.Enabled"), false)
  expect(get("Main.Label1.Visible"), false)
  expect(get("Main.Command1.Visible"), false)
  expect(get("Main.Picture6.Visible"), true)
  for _, menu in ipairs { "m1", "m2", "m3" } do expect(get("Main." .. menu .. ".Enabled"), false) end
  expect(get("Main.m11.Enabled"), false)
  expect(get("Main.m12.Enabled"), false)
  expect(get("Main.Label5(0).Caption"), "HP ：120/120")
  expect(get("Main.Label5(3).Caption"), "MP ：30/30")
end)

test("closing a dialog on the title changes nothing", function()
  start()
  click("Main.m11")
  close("Load")
  expect(active(), "Main")
  expect(get("GameStarted"), 0)
  expect(get("Main.Label1.Visible"), true)
  expect(get("Main.Picture6.Visible"), false)
end)

test("a missing or short item file ends the program with the error box", function()
  prepare()
  delete_file("Item.dat")
  start { keep = true }
  expect(ended(), true)
  expect(error_kind(), "file")
  expect(exit_status() ~= 0, true)
  expect(error_text():find("Item.dat", 1, true) ~= nil, true)
  prepare()
  write_file("Item.dat", (" "):rep(50 * 32 - 1))
  start { keep = true }
  expect(error_kind(), "file")
  expect(#boxes(), 0, "the error box is not among the boxes")
end)

test("a missing, short or broken map ends the program at the first activation", function()
  for text, kind in pairs { ["1,2,3"] = "file", ["x"] = "type", ["99999 1"] = "overflow" } do
    prepare()
    write_file("Mapdata/map3-3.dat", text)
    start { keep = true }
    expect(ended(), false)
    steps.enter_names()
    expect(error_kind(), kind, text)
  end
  prepare()
  delete_file("Mapdata/map3-3.dat")
  start { keep = true }
  steps.enter_names()
  expect(error_kind(), "file")
end)

test("opening a menu takes the hero off his way but leaves the waiting keys", function()
  steps.field()
  key_down("Up")
  key_down("Right")
  click("Main.m2")
  expect(get("KeyRight"), 0)
  expect(get("LastKey"), 0)
  expect(get("KeyUpWaiting"), -1)
end)
