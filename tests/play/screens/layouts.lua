local steps = require "lib.steps"

-- Compares controls with { name, left, top, width, height, caption }; nil means that any will do.
local function expect_layout(screen, rows)
  for _, row in ipairs(rows) do
    local name = screen .. "." .. row[1]
    for i, property in ipairs { "Left", "Top", "Width", "Height", "Caption" } do
      local wanted = row[i + 1]
      if wanted then expect(get(name .. "." .. property), wanted, name .. "." .. property) end
    end
  end
end

local function dialog_rows(save)
  return {
    { "Label1", 8, 8, 185, 17, save and "セーブするファイルの選択" or "ロードするファイルの選択" },
    { "File1", 8, 32, 137, 54 },
    { "OKButton", 152, 56, 81, 25, save and "セーブ" or "ロード" },
    { "Frame1", 8, 88, 225, 137, save and "セーブするデータ" or "ロードするデータ" },
    { "Label4", 72, 48, 81, 17 },
    { "Picture1(0)", 8, 32, 48, 48 }, { "Picture1(1)", 152, 32, 48, 48 },
    { "Label2(0)", 8, 88, 73, 17 }, { "Label2(1)", 152, 88, 65, 17 },
    { "Label3(0)", 8, 112, 73, 17 }, { "Label3(1)", 152, 112, 65, 17 },
  }
end

test("the save dialog's controls stand in their places", function()
  steps.plain_world()
  click("Main.m12")
  expect(get("Save.Caption"), "ファイルのセーブ")
  expect_layout("Save", dialog_rows(true))
  expect(get("Save.Label1.ForeColor"), "804040")
end)

test("the load dialog's controls stand in the same places", function()
  start()
  click("Main.m11")
  expect(get("Load.Caption"), "ファイルのロード")
  expect_layout("Load", dialog_rows(false))
  expect(get("Load.Label1.ForeColor"), "804040")
end)

test("the message window's controls stand in their places and colours", function()
  steps.plain_world()
  expect_layout("Main", {
    { "Picture5", 64, 8, 338, 66 },
    { "Label6(0)", 32, 24, 161, 25 },
    { "Label6(1)", 200, 24, 121, 25 },
    { "Label7", 312, 40, 17, 17, "↓" },
  })
  local faces = { ["Label6(0)"] = { "0000C0", 14.25 }, ["Label6(1)"] = { "000000", 14.25 }, ["Label7"] = { "FF8080", 12 } }
  for name, face in pairs(faces) do
    local label = "Main." .. name .. "."
    expect(get(label .. "ForeColor"), face[1], name)
    expect(get(label .. "FontSize"), face[2], name)
    expect(get(label .. "FontBold"), true, name)
  end
  expect(get("Main.Label6(0).FontName"), "ＭＳ Ｐゴシック")
  expect(get("Main.Label6(1).FontName"), "ＭＳ Ｐゴシック")
end)

test("the gear screen's controls stand in their places, the same for both heroes", function()
  steps.plain_world()
  click("Main.m21")
  local rows = {
    { "Label5", 32, 24, 113, 17, "アイテムリスト" },
    { "List1", 8, 48, 137, 172 },
    { "SSTab1", 160, 8, 305, 225 },
    { "Picture1", 240, 144, 50, 50 }, { "Picture2", 240, 144, 50, 50 },
  }
  for _, names in ipairs { { "Command1", "Command2", "Command5" }, { "Command3", "Command4", "Command6" } } do
    rows[#rows + 1] = { names[1], 8, 40, 89, 33, "装備 >>" }
    rows[#rows + 1] = { names[2], 8, 88, 89, 41, "<< すべて　　はずす" }
    rows[#rows + 1] = { names[3], 8, 184, 89, 25, "閉じる" }
  end
  local captions = {
    Label1 = { "武器 ：", "防具 ：", "本  ：" }, Label6 = { "武器 ：", "防具 ：", " 本  ：" },
    Label3 = { "攻撃力 ：", "守備力 ：", "精神力 ：" }, Label8 = { "攻撃力 ：", "守備力 ：", "精神力 ：" },
  }
  for row = 0, 2 do
    local at, worn, numbers = "(" .. row .. ")", 40 + 24 * row, 128 + 24 * row
    for _, name in ipairs { "Label1", "Label6" } do rows[#rows + 1] = { name .. at, 112, worn, 65, 17, captions[name][row + 1] } end
    for _, name in ipairs { "Label2", "Label7" } do rows[#rows + 1] = { name .. at, 160, worn, 137, 17 } end
    for _, name in ipairs { "Label3", "Label8" } do rows[#rows + 1] = { name .. at, 112, numbers, 65, 17, captions[name][row + 1] } end
    for _, name in ipairs { "Label4", "Label9" } do rows[#rows + 1] = { name .. at, 180, numbers, 117, 17 } end
  end
  expect_layout("Wepon", rows)
end)

test("the bag's controls stand in their places", function()
  steps.plain_world()
  click("Main.m22")
  expect_layout("Item", {
    { "Label1", 40, 8, 113, 25, "アイテムリスト" },
    { "List1", 8, 32, 153, 124 },
    { "Command1", 176, 40, 73, 33, "使う" },
    { "Command2", 176, 80, 73, 33, "捨てる" },
    { "Command8", 176, 120, 73, 33, "整理" },
  })
end)

test("the question for the hero stands in its places", function()
  steps.plain_world()
  click("Main.m22")
  choose("Item.List1", 0)
  click("Item.Command1")
  expect_layout("ItemUse", {
    { "Label3", 48, 8, 133, 16, "誰に使いますか？" },
    { "Label4", 24, 40, 169, 25 },
    { "Label5", 32, 64, 161 },
    { "Frame1", 8, 80, 217, 193 },
    { "Picture1", 16, 16, 50, 50 }, { "Picture2", 16, 104, 50, 50 },
    { "Command1(0)", 8, 72, 65, 25 }, { "Command1(1)", 8, 160, 65, 25 },
    { "Label1(0)", 80, 24, 129, 25 }, { "Label2(0)", 80, 48, 129, 25 },
    { "Label1(1)", 80, 112, 129, 25 }, { "Label2(1)", 80, 136, 129, 25 },
  })
end)

test("the character data's areas stand in their places, the skills 24 pixels apart", function()
  steps.plain_world()
  click("Main.m32")
  local rows = {
    { "SSTab1", 0, 0, 401, 441 },
    { "Picture1", 16, 40, 84, 84 }, { "Picture2", 16, 40, 84, 84 },
    { "Frame3", 8, 128, 137, 169, "ステータス" }, { "Frame4", 8, 128, 137, 169, "ステータス" },
    { "Frame1", 8, 304, 161, 81, "装備" }, { "Frame5", 8, 304, 161, 81, "装備" },
    { "Frame7", 176, 40, 217, 41, "次のレベルまであと" }, { "Frame8", 176, 40, 217, 41, "次のレベルまであと" },
    { "Frame2", 176, 96, 217, 289, "技" }, { "Frame6", 176, 96, 217, 289, "魔法" },
    { "Command1", 152, 400, 81, 25, "閉じる" }, { "Command2", 152, 400, 81, 25, "閉じる" },
    { "Label16(0)", 16, 16, 129, 17 }, { "Label16(1)", 8, 16, 129, 17 },
  }
  for row = 0, 9 do
    local at, top = "(" .. row .. ")", 48 + 24 * row
    for _, names in ipairs { "Label21", "Label24" } do rows[#rows + 1] = { names .. at, 8, top, 105, 17 } end
    for _, counts in ipairs { "Label23", "Label28" } do rows[#rows + 1] = { counts .. at, 120, top, 41, 17 } end
    for _, masters in ipairs { "Label22", "Label27" } do rows[#rows + 1] = { masters .. at, 152, top, 57, 17 } end
  end
  for row = 0, 8 do
    rows[#rows + 1] = { "Label10(" .. row .. ")", 64, 24 + 16 * row, 65, 16 }
    rows[#rows + 1] = { "Label11(" .. row .. ")", 64, 24 + 16 * row, 65, 16 }
  end
  for row = 0, 2 do
    rows[#rows + 1] = { "Label14(" .. row .. ")", 48, 16 + 20 * row, 109, 17 }
    rows[#rows + 1] = { "Label15(" .. row .. ")", 48, 16 + 20 * row, 109, 17 }
  end
  expect_layout("Chardata", rows)
end)

test("the settings' controls stand in their places", function()
  steps.plain_world()
  click("Main.m33")
  expect_layout("Custom", {
    { "Frame2", 16, 8, 265, 105, "名前の変更" },
    { "Text1(0)", 64, 24, 129, 18 }, { "Text1(1)", 72, 72, 129, 18 },
    { "Picture1(0)", 8, 16, 48, 48 }, { "Picture1(1)", 208, 48, 48, 48 },
    { "Frame1", 16, 120, 265, 81, "バトルスピード" },
    { "Slider1", 8, 40, 241, 33 },
    { "Label1", 16, 24, nil, nil, "速い" }, { "Label2", 224, 24, nil, nil, "遅い" },
    { "Command1", 296, 16, 81, 33, "変更" },
  })
end)

test("the version's controls stand in their places", function()
  steps.plain_world()
  click("Main.m35")
  expect_layout("Version", {
    { "lblTitle", 8, 8, 259, 32, "Orvane" },
    { "lblVersion", 104, 40, 83, 15, "Ver：1.04" },
    { "cmdOK", 88, 104, 92, 23, "OK" },
  })
end)

test("the title's controls stand in their places, faces and colours", function()
  start()
  expect_layout("Main", {
    { "Picture1", 8, 0, 481, 304 },
    { "Label1", 96, 88, 301, 48, "Orvane" },
    { "Label4", 97, 90, 303, 48, "Orvane" },
    { "Label3", 188, 144, 113, 13, "- オルベイン -" },
    { "Label2", 8, 264, 161, 36 },
    { "Command1", 176, 184, 137, 33, "始めから" },
  })
  local faces = {
    Label1 = { "E0E0E0", "ＭＳ Ｐ明朝", 36, true }, Label4 = { "808080", "ＭＳ Ｐ明朝", 36, true },
    Label3 = { "00C0C0", "ＭＳ Ｐゴシック", 9.75, false },
  }
  for name, face in pairs(faces) do
    for i, property in ipairs { "ForeColor", "FontName", "FontSize", "FontBold" } do
      expect(get("Main." .. name .. "." .. property), face[i], name .. "." .. property)
    end
  end
  for _, hidden in ipairs { "Picture2", "Picture3", "Picture4", "Picture5", "Picture6", "Picture9", "Label8" } do
    expect(get("Main." .. hidden .. ".Visible"), false, hidden)
  end
end)

test("the menu bar has its captions", function()
  start()
  local captions = { m1 = "ファイル", m11 = "ロード", m12 = "保存", m13 = "-", m14 = "終了", m2 = "アイテム", m21 = "装備・はずす",
    m22 = "使う・捨てる", m3 = "情報", m32 = "キャラデータ", m33 = "環境設定", m34 = "-", m35 = "バージョン情報" }
  for item, caption in pairs(captions) do expect(get("Main." .. item .. ".Caption"), caption, item) end
end)

test("the status panel and the story's line stand in their places", function()
  steps.plain_world()
  expect_layout("Main", {
    { "Picture6", 0, 256, 482, 50 },
    { "Picture7", 0, 0, 50, 50 }, { "Picture8", 240, 0, 50, 50 },
    { "Label5(0)", 64, 8, 169, 17 }, { "Label5(1)", 64, 24, 169, 17 },
    { "Label5(2)", 304, 8, 169, 17 }, { "Label5(3)", 304, 24, 169, 17 },
    { "Label8", 8, 8, 233, 49 }, { "Picture9", 264, 8, 48, 48 },
  })
  for _, name in ipairs { "Label5(0)", "Label5(1)", "Label5(2)", "Label5(3)", "Label8" } do
    local label = "Main." .. name .. "."
    expect(get(label .. "FontName"), "ＭＳ Ｐゴシック", name)
    expect(get(label .. "FontSize"), 9.75, name)
    expect(get(label .. "FontBold"), true, name)
    expect(get(label .. "ForeColor"), "000000", name)
  end
end)

test("the name entry's controls stand in their places", function()
  start()
  click("Main.Command1")
  expect_layout("InputName", {
    { "Label1", nil, nil, nil, nil, "キャラクターの名前を入力してください" },
    { "Label4", 216, 32, 73, 17, "（６文字以内）" },
    { "Label2", 88, 48, 73, 17, "主人公（男）" },
    { "Text1(0)", 88, 64, 129, 18 },
    { "Label3", 88, 104, 65, 17, "主人公（女）" },
    { "Text1(1)", 88, 120, 129, 18 },
    { "Picture1", 24, 40, 50, 50 }, { "Picture2", 24, 96, 50, 50 },
    { "OKButton", 240, 80, 81, 25, "OK" },
    { "CancelButton", 240, 112, 81, 25, "ｷｬﾝｾﾙ" },
  })
end)

test("every sheet and surface has its size", function()
  start()
  local sizes = {
    ["Main.Picture1"] = { 481, 304 }, ["Main.Picture2"] = { 144, 128 }, ["Main.Picture3"] = { 144, 128 },
    ["Main.Picture4"] = { 480, 128 }, ["Main.Picture5"] = { 336, 64 }, ["Main.Picture6"] = { 480, 48 },
    ["Main.Picture7"] = { 48, 48 }, ["Main.Picture8"] = { 48, 48 }, ["Main.Picture9"] = { 48, 48 },
    ["Ending.Picture2"] = { 454, 300 }, ["Ending.Picture1"] = { 402, 386 }, ["Ending"] = { 451, 295 },
    ["InputName.Picture1"] = { 48, 48 }, ["ItemUse.Picture2"] = { 48, 48 }, ["Custom.Picture1(1)"] = { 48, 48 },
    ["Save.Picture1(0)"] = { 48, 48 }, ["Load.Picture1(1)"] = { 48, 48 },
    ["Chardata.Picture1"] = { 80, 80 }, ["Chardata.Picture2"] = { 80, 80 },
  }
  for name, size in pairs(sizes) do
    local width, height = picture_size(name)
    expect(width, size[1], name)
    expect(height, size[2], name)
  end
end)
