local steps = require "lib.steps"
local casting = require "lib.casting"
local cast, use_item, skilled = casting.cast, casting.use_item, casting.skilled

test("a healing spell heals both, an eighth and a ninth of their points and the spirit times the row", function()
  -- Row, uses, first, second; points of 127 and 80, spirit 12.
  local cases = { { 3, 49, 51, 44 }, { 3, 50, 66, 57 }, { 8, 249, 111, 104 }, { 8, 250, 144, 135 } }
  for _, case in ipairs(cases) do
    skilled()
    set("Spirit[1]", 12)
    set("MaxHP[0]", 127)
    set("HP[0]", 1)
    set("HP[1]", 60)
    set("MagicUse[" .. case[1] - 1 .. "]", case[2])
    cast(case[1])
    steps.play_to(24)
    expect(get("HP[0]"), 1)
    tick("Battle.Timer1")
    steps.state { ["HealAmount[0]"] = case[3], ["HealAmount[1]"] = case[4],
      ["Battle.Label16(0).Caption"] = tostring(case[3]), ["Battle.Label16(1).Caption"] = tostring(case[4]),
      ["HP[0]"] = math.min(127, 1 + case[3]), ["HP[1]"] = 80 }
    local first = get("HP[0]")
    steps.play_to(48)
    tick("Battle.Timer1")
    expect(get("HP[0]"), first, "once only")
  end
end)

test("a healing spell writes its two numbers again in every later frame", function()
  skilled()
  cast(3)
  steps.play_to(26)
  set("Battle.Label16(0).Caption", "?")
  set("Battle.Label16(1).Caption", "?")
  tick("Battle.Timer1")
  expect(get("Battle.Label16(0).Caption"), tostring(15 + 15))
  expect(get("Battle.Label16(1).Caption"), tostring(8 + 15))
end)

test("a healing spell has no target list and strikes no enemy", function()
  skilled(2)
  set("MagicDamage[0]", 50)
  cast(3)
  expect(get("Battle.List2.ListCount"), 0)
  steps.play_to(48)
  tick("Battle.Timer1")
  steps.state { ["EnemyLife[0]"] = 280, ["EnemyLife[1]"] = 280, HeroesActed = 1, ["Battle.Timer1.Enabled"] = false }
end)

test("a healing spell revives the fainted hero at once and gives the pane its name back", function()
  skilled()
  set("HP[0]", 0)
  set("HeroFainted[0]", -1)
  set("HeroesActed", 1)
  cast(3)
  set("Battle.SSTab1.TabCaption(0)", "気絶")
  set("Battle.SSTab1.TabEnabled(0)", false)
  steps.play_to(24)
  expect(get("HeroFainted[0]"), -1)
  tick("Battle.Timer1")
  steps.state { ["HeroFainted[0]"] = 0, ["HP[0]"] = 30, ["Battle.SSTab1.TabEnabled(0)"] = false }
  expect(steps.trimmed(get("Battle.SSTab1.TabCaption(0)")), "カイ")
end)

test("a hero revived while the round is open gets the pane", function()
  skilled()
  set("HP[0]", 0)
  set("HeroFainted[0]", -1)
  cast(3)
  run("Battle.Timer1")
  steps.state { ["Battle.SSTab1.Tab"] = 0, ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.Command3.Enabled"] = true,
    HeroesActed = 1 }
end)

test("a healing number is green and the next stroke of an enemy on the label is white", function()
  skilled()
  cast(3)
  steps.play_to(26)
  for hero = 0, 1 do
    expect(get("Battle.Label16(" .. hero .. ").ForeColor"), "00FF00")
    expect(get("Battle.Label16(" .. hero .. ").Visible"), true)
    expect(get("Battle.Label16(" .. hero .. ").Top"), hero == 0 and 175 or 231)
  end
  steps.play_to(46)
  for hero = 0, 1 do expect(get("Battle.Label16(" .. hero .. ").Visible"), false) end
  tick("Battle.Timer1", 2)
  for hero = 0, 1 do expect(get("Battle.Label16(" .. hero .. ").ForeColor"), "FFFFFF") end
  steps.to_enemy_phase()
  steps.play_with(16, 0.45)
  steps.state { ["Battle.Label16(0).ForeColor"] = "FFFFFF", ["Battle.Label16(0).Visible"] = true }
end)

test("items 47, 48 and 49 give points of life and magic, held to their bounds, and show what they are worth", function()
  for _, case in ipairs { { 47, 200, 20 }, { 48, 500, 50 }, { 49, 9999, 999 } } do
    for hero = 0, 1 do
      steps.arena()
      set("Items[4]", case[1])
      for index = 0, 1 do
        set("MaxHP[" .. index .. "]", 9000)
        set("MaxMP[" .. index .. "]", 900)
        set("HP[" .. index .. "]", 5)
        set("MP[" .. index .. "]", 3)
      end
      steps.battle(0, 0)
      use_item(5, hero)
      steps.play_to(24)
      expect(get("HP[" .. hero .. "]"), 5)
      tick("Battle.Timer1")
      local label = "Battle.Label16(" .. hero .. ")."
      steps.state {
        ["HP[" .. hero .. "]"] = math.min(9000, 5 + case[2]), ["MP[" .. hero .. "]"] = math.min(900, 3 + case[3]),
        ["HP[" .. 1 - hero .. "]"] = 5, ["MP[" .. 1 - hero .. "]"] = 3, [label .. "Caption"] = tostring(case[2]),
        [label .. "ForeColor"] = "00FF00", [label .. "Visible"] = true,
        ["Battle.Label16(" .. 1 - hero .. ").Visible"] = false,
        ["Battle.Label3(" .. hero .. ").Caption"] = math.min(9000, 5 + case[2]) .. "/9000",
      }
    end
  end
end)

test("item 49 on a hero at 5 of 120 shows 9999 and leaves the hero at 120", function()
  steps.arena()
  set("HP[0]", 5)
  set("Items[0]", 49)
  steps.battle(0, 0)
  use_item(1, 0)
  steps.play_to(26)
  steps.state { ["Battle.Label16(0).Caption"] = "9999", ["HP[0]"] = 120, ["MP[0]"] = 10 }
end)

test("an item revives a fainted hero", function()
  steps.arena()
  set("HP[1]", 0)
  steps.battle(0, 0)
  set("HeroFainted[1]", -1)
  set("Battle.SSTab1.TabCaption(1)", "気絶")
  set("HeroesActed", 1)
  use_item(1, 1)
  steps.play_to(26)
  steps.state { ["HeroFainted[1]"] = 0, ["HP[1]"] = 80 }
  expect(steps.trimmed(get("Battle.SSTab1.TabCaption(1)")), "リナ")
end)

test("another item of number 47 and up has no effect", function()
  steps.arena()
  set("HP[1]", 0)
  set("MP[1]", 3)
  set("Items[0]", 50)
  steps.battle(0, 0)
  set("HeroFainted[1]", -1)
  use_item(1, 1)
  steps.play_to(28)
  steps.state { ["HeroFainted[1]"] = -1, ["HP[1]"] = 0, ["MP[1]"] = 3 }
end)

test("an item is spent on its last frame and leaves a hole", function()
  steps.arena()
  steps.battle(0, 0)
  use_item(2, 0)
  steps.play_to(48)
  steps.state { ["Items[1]"] = 47, ItemCount = 3 }
  tick("Battle.Timer1")
  steps.state { ["Items[0]"] = 47, ["Items[1]"] = 99, ["Items[2]"] = 47, ItemCount = 2,
    ["Battle.Label16(0).ForeColor"] = "FFFFFF" }
end)

test("the panes show an item at once and a healing spell at the end of its action", function()
  steps.arena()
  steps.learn_all()
  set("HP[0]", 5)
  set("HP[1]", 5)
  steps.battle_with(3, 4)
  cast(3)
  steps.play_to(48)
  steps.state { ["HP[0]"] = 56, ["Battle.Label3(0).Caption"] = "5/120" }
  tick("Battle.Timer1")
  steps.state { ["Battle.Label3(0).Caption"] = "56/120", ["Battle.Label3(1).Caption"] = "49/80" }
  use_item(1, 1)
  steps.play_to(26)
  expect(get("Battle.Label3(1).Caption"), "80/80")
end)

test("the spirit times the row is a 16-bit product", function()
  skilled()
  set("Spirit[1]", 4096)
  cast(8)
  steps.play_to(24)
  expect(ended(), false)
  tick("Battle.Timer1")
  expect(error_kind(), "overflow")
end)
