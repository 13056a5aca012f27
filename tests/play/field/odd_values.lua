-- Values that no play of the game makes, but a save file or a map may hold.
local steps = require "lib.steps"
local things = require "lib.things"
local ground = require "lib.ground"

test("before the first round a chest is empty but counts, as in the fourth", function()
  ground.on(36, 3, 3, 0)
  tick("Main.Timer1")
  expect(get("Items[3]"), 99)
  expect(get("ItemCount"), 4)
  expect(get("TreasureLeft[0]"), 0)
end)

test("a bag that is full though its count says otherwise takes nothing", function()
  ground.on(36)
  things.bag { 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1 }
  set("ItemCount", 3)
  tick("Main.Timer1")
  for slot = 0, 19 do expect(get("Items[" .. slot .. "]"), 1) end
  expect(get("ItemCount"), 4)
  expect(get("TreasureLeft[0]"), 0)
  expect(get("Main.Timer2.Enabled"), true)
end)

test("a room that is left over its top edge keeps the party's mark of being in one", function()
  steps.plain_world()
  set("MapTile[7][6]", 47)
  steps.put(112, 112)
  steps.walk("Up", 1)
  expect(get("InBook"), -1)
  steps.put(100, 20)
  steps.walk("Up", 1)
  steps.state { InBook = -1, MapA = 3, MapB = 2, HeroX = 100, HeroY = 226, ["Main.m12.Enabled"] = false }
end)

test("with an opening that is neither over nor to come the field stands still after a battle", function()
  for opening, walks in pairs { [-1] = true, [5] = false } do
    steps.arena()
    steps.battle()
    set("OpeningDone", opening)
    steps.flee()
    steps.state { ["Main.Timer1.Enabled"] = walks, ["Main.Timer3.Enabled"] = false }
  end
end)

test("a click on the field does nothing where no scene and no message is known", function()
  steps.plain_world()
  for _, marks in ipairs {
    { OpeningDone = 5 },
    { OpeningDone = -1, RecoveryShown = 5 },
    { OpeningDone = -1, RecoveryShown = 0, LastBossDown = 5 },
    { OpeningDone = -1, RecoveryShown = 0, LastBossDown = 0, BossFight = 5 },
  } do
    steps.state({ StoryNo = 21 })
    for name, value in pairs(marks) do set(name, value) end
    set("Main.Picture5.Visible", true)
    click("Main.Picture1", 5, 200)
    expect(get("StoryNo"), 21)
    expect(get("Main.Picture5.Visible"), true, "no message is closed")
  end
end)

test("tiles that change their sheet are drawn anew at the next tick", function()
  steps.plain_world()
  steps.put(100, 100)
  tick("Main.Timer1")
  local column, row = 6, 0  -- of tile 7
  paint("Main.Picture4", "123456", 16 * column, 16 * row, 16, 16)
  expect(shown_pixel("Main.Picture1", 400, 200) ~= "123456", true)
  tick("Main.Timer1")
  expect(shown_pixel("Main.Picture1", 400, 200), "123456")
end)
