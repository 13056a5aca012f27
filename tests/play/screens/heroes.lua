local steps = require "lib.steps"

local function opened(changes)
  steps.plain_world()
  for name, value in pairs(changes or {}) do set(name, value) end
  click("Main.m32")
  expect(active(), "Chardata")
end

local function caption(label)
  return get("Chardata." .. label .. ".Caption")
end

test("the screen shows nine values of each hero, in their order", function()
  local changes = {}
  local wanted = {}
  for hero = 0, 1 do
    local base = 100 * (hero + 1)
    local values = { Level = base + 1, HP = base + 2, MP = base + 3, MaxHP = base + 4, MaxMP = base + 5,
      Spirit = base + 8, Exp = base + 9, BaseAttack = base, WeaponAttack = 6, BaseDefence = base, ArmourDefence = 7 }
    for name, value in pairs(values) do changes[name .. "[" .. hero .. "]"] = value end
    wanted[hero] = base
  end
  opened(changes)
  expect(get("Chardata.Caption"), "キャラデータ")
  expect(get("Chardata.Width"), 403)
  expect(get("Chardata.Height"), 444)
  for hero, label in pairs { [0] = "Label10", [1] = "Label11" } do
    for row = 0, 8 do
      expect(caption(label .. "(" .. row .. ")"), tostring(wanted[hero] + row + 1), label .. ", row " .. row)
    end
  end
  expect((get("Chardata.SSTab1.TabCaption(0)"):gsub(" +$", "")), "カイ")
  expect((get("Chardata.SSTab1.TabCaption(1)"):gsub(" +$", "")), "リナ")
end)

test("attack and defence are put together anew when the screen comes up", function()
  opened { ["BaseAttack[0]"] = 30, ["WeaponAttack[0]"] = 12, ["Attack[0]"] = 1, ["BaseDefence[1]"] = 20,
    ["ArmourDefence[1]"] = 5, ["Defence[1]"] = 2 }
  expect(get("Attack[0]"), 42)
  expect(get("Defence[1]"), 25)
  expect(caption "Label10(5)", "42")
  expect(caption "Label11(6)", "25")
end)

test("a fresh game needs 150 and 155 points, and wears nothing", function()
  opened()
  expect(caption "Label16(0)", "150")
  expect(caption "Label16(1)", "155")
  for row = 0, 2 do
    expect(caption("Label14(" .. row .. ")"), "なし" .. (" "):rep(18))
    expect(caption("Label15(" .. row .. ")"), "なし" .. (" "):rep(18))
  end
end)

test("at level 3 with 1300 points 50 and 95 are left", function()
  opened { ["Level[0]"] = 3, ["Level[1]"] = 3, ["Exp[0]"] = 1300, ["Exp[1]"] = 1300 }
  expect(caption "Label16(0)", "50")
  expect(caption "Label16(1)", "95")
end)

test("a high level's distance is a plain number", function()
  opened { ["Level[0]"] = 200, ["Level[1]"] = 300, ["Exp[0]"] = 0, ["Exp[1]"] = 950000 }
  expect(caption "Label16(0)", "6000000")
  expect(caption "Label16(1)", "13000000")
end)

test("the worn things stand with all their twenty characters", function()
  opened { ["WeaponName[0]"] = "Sword", ["ArmourName[0]"] = "Mail", ["BookName[0]"] = "Tome",
    ["WeaponName[1]"] = "Staff", ["ArmourName[1]"] = "Robe", ["BookName[1]"] = "Book" }
  for row, name in ipairs { "Sword", "Mail", "Tome" } do
    expect(caption("Label14(" .. row - 1 .. ")"), name .. (" "):rep(20 - #name))
  end
  for row, name in ipairs { "Staff", "Robe", "Book" } do
    expect(caption("Label15(" .. row - 1 .. ")"), name .. (" "):rep(20 - #name))
  end
end)

local panes = {
  { skill = "Waza", names = "Label21", masters = "Label22", counts = "Label23" },
  { skill = "Magic", names = "Label24", masters = "Label27", counts = "Label28" },
}

test("a skill at its master value is MASTER with a star, one point below it shows the numbers", function()
  for _, pane in ipairs(panes) do
    for row, master in ipairs { 20, 30, 50, 100, 150, 180, 200, 250, 300, 500 } do
      local at = "[" .. row - 1 .. "]"
      local label = "(" .. row - 1 .. ")"
      opened { [pane.skill .. "Known" .. at] = -1, [pane.skill .. "Use" .. at] = master - 1 }
      expect(caption(pane.names .. label), get(pane.skill .. "Name" .. at))
      expect(get("Chardata." .. pane.names .. label .. ".FontSize"), 11)
      expect(caption(pane.masters .. label), "/" .. master)
      expect(caption(pane.counts .. label), tostring(master - 1))
      click("Chardata.Command1")
      set(pane.skill .. "Use" .. at, master)
      click("Main.m32")
      expect(caption(pane.masters .. label), "MASTER")
      expect(caption(pane.counts .. label), "★")
      expect(caption(pane.names .. label), get(pane.skill .. "Name" .. at))
    end
  end
end)

test("the counter of a mastered skill is not seen, however far it has grown", function()
  opened { ["WazaKnown[3]"] = -1, ["WazaUse[3]"] = 4321 }
  expect(caption "Label22(3)", "MASTER")
  expect(caption "Label23(3)", "★")
end)

test("an unknown skill is an empty row in its place, whatever its counter", function()
  opened { ["WazaKnown[2]"] = -1, ["WazaUse[4]"] = 35, ["MagicKnown[7]"] = -1, ["MagicUse[7]"] = 35, ["MagicUse[0]"] = 99 }
  for row = 0, 9 do
    local label = "(" .. row .. ")"
    expect(caption("Label21" .. label), row == 2 and "パワーブレイク" or "", "technique " .. row)
    expect(caption("Label22" .. label), row == 2 and "/50" or "", "technique " .. row)
    expect(caption("Label23" .. label), row == 2 and "0" or "", "technique " .. row)
    expect(caption("Label24" .. label), row == 7 and "風の癒し" or "", "spell " .. row)
    expect(caption("Label27" .. label), row == 7 and "/250" or "", "spell " .. row)
    expect(caption("Label28" .. label), row == 7 and "35" or "", "spell " .. row)
  end
end)

test("the faces are drawn over themselves, 80 pixels square, each pixel repeated", function()
  opened()
  for _, face in ipairs { "Picture1", "Picture2" } do
    local name = "Chardata." .. face
    local same, other = 0, 0
    for y = 0, 79 do
      for x = 0, 78 do
        local here, beside = pixel(name, x, y), pixel(name, x + 1, y)
        if x * 48 // 80 == (x + 1) * 48 // 80 then
          expect(here, beside, ("%s at %d, %d"):format(face, x, y))
          same = same + 1
        elseif here ~= beside then
          other = other + 1
        end
      end
    end
    expect(same, 32 * 80)
    expect(other > 100, true, "a face, not a plain square")
    expect(shown_pixel(name, 79, 79), pixel(name, 79, 79), face)
  end
end)

test("the faces are those of the heroes, their corner in the corner", function()
  opened()
  for face, own in pairs { Picture1 = "Main.Picture7", Picture2 = "Main.Picture8" } do
    local width, height = picture_size("Chardata." .. face)
    for y = 0, height - 1 do
      for x = 0, width - 1 do
        local here, there = pixel("Chardata." .. face, x, y), pixel(own, x * 48 // 80, y * 48 // 80)
        if here ~= there then expect(here, there, ("%s at %d, %d"):format(face, x, y)) end
      end
    end
  end
end)

test("the spare skill of the record is none that is shown", function()
  opened { ["WazaKnown[10]"] = -1, ["MagicKnown[10]"] = -1 }
  expect(ended(), false)
  expect(caption "Label21(9)", "")
  expect(pcall(caption, "Label21(10)"), false)
end)

test("either button and the window's close control lead back to the walk", function()
  for _, way in ipairs { "Command1", "Command2", "close" } do
    opened()
    expect(get("Main.Timer1.Enabled"), false)
    if way == "close" then
      close("Chardata")
    else
      if way == "Command2" then tab("Chardata.SSTab1", 1) end
      click("Chardata." .. way)
    end
    expect(active(), "Main", way)
    expect(get("Chardata.Loaded"), false)
    expect(get("Main.Timer1.Enabled"), true)
  end
end)

test("the screen is filled anew when it comes to the front again", function()
  opened()
  activate("Main")
  set("HP[0]", 17)
  activate("Chardata")
  expect(caption "Label10(1)", "17")
end)

test("the screen changes nothing in the record but the two sums", function()
  steps.plain_world()
  set("HP[0]", 3)
  set("Exp[1]", 77)
  click("Main.m32")
  click("Chardata.Command1")
  for name, value in pairs { ["HP[0]"] = 3, ["Exp[1]"] = 77, ["Level[0]"] = 1, ["Attack[0]"] = 8, ["Defence[1]"] = 6,
    ItemCount = 3, StoryNo = 21 } do
    expect(get(name), value, name)
  end
end)
