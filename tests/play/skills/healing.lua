local steps = require "lib.steps"
local skills = require "lib.skills"

local mastery, tough_group = skills.mastery, skills.tough_group
local begin_magic, begin_item = skills.begin_magic, skills.begin_item

test("a healing spell gives an eighth and a ninth of the maxima and the spirit times the row", function()
  for row, use in pairs { [3] = 50, [8] = 250 } do
    for _, uses in ipairs { use - 1, use } do
      local factor = uses == use and mastery or 1
      tough_group(1, { ["MaxHP[0]"] = 1215, ["MaxHP[1]"] = 917, ["Spirit[1]"] = 21, ["HP[0]"] = 100, ["HP[1]"] = 50,
        ["MP[1]"] = 90, ["MaxMP[1]"] = 90, ["MagicUse[" .. row - 1 .. "]"] = uses })
      begin_magic(row)
      steps.play_to(24)
      expect(get("HP[0]"), 100)
      tick("Battle.Timer1")
      local first = math.floor((151 + 21 * row) * factor)
      local second = math.floor((101 + 21 * row) * factor)
      expect(get("HealAmount[0]"), first, "spell " .. row)
      expect(get("HealAmount[1]"), second, "spell " .. row)
      expect(get("HP[0]"), 100 + first)
      expect(get("HP[1]"), 50 + second)
      expect(get("Battle.Label16(0).Caption"), ("%d"):format(first))
      expect(get("Battle.Label16(1).Caption"), ("%d"):format(second))
    end
  end
end)

test("a mastered healing spell of 10 gives 12, for the factor lies below 1.3", function()
  tough_group(1, { ["MaxHP[0]"] = 80, ["HP[0]"] = 1, ["MaxHP[1]"] = 90, ["HP[1]"] = 1, ["Spirit[1]"] = 0,
    ["MagicUse[2]"] = 50 })
  begin_magic(3)
  steps.play_to(26)
  expect(get("HealAmount[0]"), 12)
  expect(get("HealAmount[1]"), 12)
end)

test("a healing spell at full HP shows what it would give, and HP stays at the maximum", function()
  tough_group(1)
  begin_magic(3)
  steps.play_to(26)
  expect(get("Battle.Label16(0).Caption"), "51", "15 + 36")
  expect(get("Battle.Label16(1).Caption"), "44", "8 + 36")
  expect(get("HP[0]"), 120)
  expect(get("HP[1]"), 80)
end)

test("a healing spell revives at once, and the tab bears the name again", function()
  tough_group(1)
  set("HeroFainted[0]", -1)
  set("HP[0]", 0)
  set("Battle.SSTab1.TabCaption(0)", "気絶")
  begin_magic(3)
  steps.play_to(24)
  expect(get("HeroFainted[0]"), -1)
  tick("Battle.Timer1")
  expect(get("HeroFainted[0]"), 0)
  expect(get("HP[0]"), 51)
  expect((get("Battle.SSTab1.TabCaption(0)"):gsub(" +$", "")), "カイ")
end)

test("a hero revived by a healing spell acts next", function()
  tough_group(1)
  set("HeroFainted[0]", -1)
  set("HP[0]", 0)
  begin_magic(3)
  run("Battle.Timer1")
  expect(get("Battle.SSTab1.Tab"), 0)
  expect(get("Battle.SSTab1.TabEnabled(0)"), true)
  expect(can_click("Battle.Command3"), true)
end)

test("healing numbers are green and hop, and the next hit on the same label is white", function()
  tough_group(1, { ["MP[1]"] = 30 })
  begin_magic(3)
  steps.play_to(24)
  expect(get("Battle.Label16(0).ForeColor"), "FFFFFF")
  for i, move in ipairs { -9, -16, -21, -24, -25, -24, -21, -16, -9, 0 } do
    tick("Battle.Timer1")
    for hero, top in pairs { [0] = 184, [1] = 240 } do
      local label = "Battle.Label16(" .. hero .. ")."
      expect(get(label .. "ForeColor"), "00FF00")
      expect(get(label .. "Visible"), true)
      expect(get(label .. "Top"), top + move, "frame " .. 24 + 2 * i)
    end
  end
  tick("Battle.Timer1")
  expect(get("Battle.Label16(0).Visible"), false)
  expect(get("Battle.Label16(1).Visible"), false)
  expect(get("Battle.Picture9.Visible"), false)
  expect(get("Battle.Label16(0).ForeColor"), "00FF00")
  tick("Battle.Timer1", 2)
  expect(get("Battle.Label16(0).ForeColor"), "FFFFFF")
  expect(get("Battle.Label16(1).ForeColor"), "FFFFFF")
end)

test("points above 32767 end the program, by a spell and by a thing", function()
  local rich = { ["HP[0]"] = 32000, ["MaxHP[0]"] = 32000, ["Items[0]"] = 49 }
  tough_group(1, rich)
  begin_magic(3)
  steps.play_to(24)
  tick("Battle.Timer1")
  expect(error_kind(), "overflow")
  tough_group(1, rich)
  begin_item(1, 1)
  steps.play_to(24)
  tick("Battle.Timer1")
  expect(error_kind(), "overflow")
end)

test("the spirit times the row is a 16-bit product", function()
  for spirit, kind in pairs { [3000] = false, [4096] = "overflow" } do
    tough_group(1, { ["Spirit[1]"] = spirit, ["MP[1]"] = 60, ["MaxMP[1]"] = 60, ["HP[0]"] = 1, ["HP[1]"] = 1 })
    begin_magic(8)
    steps.play_to(24)
    tick("Battle.Timer1")
    expect(error_kind() or false, kind, "spirit " .. spirit)
  end
end)
