local steps = require "lib.steps"
local canvas = require "lib.canvas"
local skills = require "lib.skills"

local tough_group, begin_item = skills.tough_group, skills.begin_item

test("things 47, 48 and 49 give 200 and 20, 500 and 50, 9999 and 999", function()
  for item, gift in pairs { [47] = { 200, 20 }, [48] = { 500, 50 }, [49] = { 9999, 999 } } do
    for hero = 0, 1 do
      tough_group(1, { ["Items[2]"] = item })
      for each = 0, 1 do
        set("MaxHP[" .. each .. "]", 20000); set("MaxMP[" .. each .. "]", 20000)
        set("HP[" .. each .. "]", 11); set("MP[" .. each .. "]", 3)
      end
      begin_item(3, hero + 1)
      steps.play_to(24)
      expect(get("HP[" .. hero .. "]"), 11)
      tick("Battle.Timer1")
      expect(get("HP[" .. hero .. "]"), 11 + gift[1], "thing " .. item)
      expect(get("MP[" .. hero .. "]"), 3 + gift[2], "thing " .. item)
      expect(get("HP[" .. 1 - hero .. "]"), 11)
      expect(get("MP[" .. 1 - hero .. "]"), 3)
      expect(get("Battle.Label16(" .. hero .. ").Caption"), tostring(gift[1]))
      expect(get("Battle.Label16(" .. hero .. ").Visible"), true)
      expect(get("Battle.Label16(" .. hero .. ").ForeColor"), "00FF00")
      expect(get("Battle.Label16(" .. 1 - hero .. ").Visible"), false)
      expect(get("Battle.Label3(" .. hero .. ").Caption"), ("%d/20000"):format(11 + gift[1]))
      steps.play_to(46)
      expect(get("Battle.Label16(" .. hero .. ").Visible"), false)
      steps.play_to(48)
      tick("Battle.Timer1")
      expect(get("Battle.Label16(" .. hero .. ").ForeColor"), "FFFFFF")
    end
  end
end)

test("thing 49 on a hero with 5 of 120 HP shows 9999 and leaves 120", function()
  tough_group(1, { ["Items[0]"] = 49, ["HP[0]"] = 5, ["MP[0]"] = 0 })
  begin_item(1, 1)
  steps.play_to(26)
  expect(get("Battle.Label16(0).Caption"), "9999")
  expect(get("HP[0]"), 120)
  expect(get("MP[0]"), 10)
  expect(get("Battle.Label3(0).Caption"), "120/120")
end)

test("a thing revives, and the tab bears the name again", function()
  tough_group(1, { ["Items[0]"] = 47 })
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  set("Battle.SSTab1.TabCaption(1)", "気絶")
  begin_item(1, 2)
  steps.play_to(26)
  expect(get("HeroFainted[1]"), 0)
  expect(get("HP[1]"), 80)
  expect((get("Battle.SSTab1.TabCaption(1)"):gsub(" +$", "")), "リナ")
end)

test("a thing is spent on frame 50 alone, and leaves a hole in the bag", function()
  tough_group(1)
  expect(get("ItemCount"), 3)
  begin_item(2, 1)
  steps.play_to(48)
  expect(get("Items[1]"), 47)
  expect(get("ItemCount"), 3)
  tick("Battle.Timer1")
  expect(get("Items[0]"), 47)
  expect(get("Items[1]"), 99)
  expect(get("Items[2]"), 47)
  expect(get("ItemCount"), 2)
end)

test("any other thing of 47 and above does nothing but is spent", function()
  tough_group(1, { ["Items[0]"] = 50, ["HP[0]"] = 5, ["MP[0]"] = 2 })
  begin_item(1, 1)
  run("Battle.Timer1")
  expect(get("HP[0]"), 5)
  expect(get("MP[0]"), 2)
  expect(get("Items[0]"), 99)
  expect(get("ItemCount"), 2)
end)

test("a thing sounds once and sparkles over its target alone", function()
  for hero, top in pairs { 130, 184 } do
    canvas.group(1)
    canvas.cell(1, 0, "00C000")
    begin_item(1, hero)
    clear_sounds()
    tick("Battle.Timer1", 2)
    local scene = canvas.scene()
    for c = 6, 24, 2 do
      local queue = {}
      for i = 0, 11 do queue[i + 1] = (i * 5 + c) % 16 / 16 end
      random(table.unpack(queue))
      tick("Battle.Timer1")
      expect(random_left(), 0)
      for i = 1, 11, 2 do
        scene:rect(math.floor(queue[i] * 58 + 355), math.floor(queue[i + 1] * 54 + top), 24, 24, "00C000")
      end
      scene:check("hero " .. hero .. ", frame " .. c)
    end
    expect(table.concat(sounds(), "|"), "play snd5 from 0")
    expect(get("Battle.Picture9.Visible"), false, "a thing shows no name")
  end
end)

test("a thing that is spent beside the open item screen cannot be thrown away as well", function()
  steps.arena()
  click("Main.m22")
  activate("Main")
  steps.battle_with(4, 1)
  steps.strengthen()
  set("EnemyLife[0]", 1000000)
  begin_item(2, 1)
  steps.play_to(48)
  choose("Item.List1", 1)
  tick("Battle.Timer1")
  expect(get("Items[1]"), 99)
  expect(get("ItemCount"), 2)
  answer("OK")
  click("Item.Command2")
  expect(get("ItemCount"), 2)
end)
