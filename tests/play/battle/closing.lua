local steps = require "lib.steps"

test("closing the window abandons the battle without a result", function()
  steps.arena()
  steps.battle(0, 0.99)
  steps.strike()
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  steps.play_to(10)
  for _, name in ipairs { "KeyUp", "KeyDown", "KeyLeft", "KeyRight" } do set(name, -1) end
  set("KeyLeftWaiting", -1)
  for _, name in ipairs { "FieldFrame", "MessageFrame", "StoryFrame" } do set(name, 7) end
  clear_sounds()
  close("Battle")
  expect(active(), "Main")
  steps.state {
    ActionKind = 0, ActionState = 0, FieldFrame = 0, MessageFrame = 0, StoryFrame = 0, KeyUp = 0, KeyDown = 0,
    KeyLeft = 0, KeyRight = 0, KeyLeftWaiting = -1, ["Battle.Loaded"] = false, ["Main.Visible"] = true,
    ["Main.Timer1.Enabled"] = true, HeroesActed = 2, ["HeroFainted[1]"] = -1, ["HP[1]"] = 0, ["Exp[0]"] = 0,
    ["EnemyAlive[3]"] = -1,
  }
  expect(#sounds(), 0, "the music stays open")
  expect(#boxes(), 0)
end)

test("closing the window lets the field go on and its music start anew beside the battle's", function()
  steps.arena()
  steps.battle()
  tick("Battle.Timer2")
  close("Battle")
  clear_sounds()
  tick("Main.Timer1")
  expect(sound_mode("bgm4"), "playing")
  expect(sound_mode("bgm1"), "playing")
  wait(500)
  expect(steps.sent("play bgm4 from 0"), 0)
end)

test("a screen created anew forms its group twice, and the second stands", function()
  steps.arena()
  steps.battle(0, 0)
  close("Battle")
  steps.flatten()
  steps.put(100, 100)
  steps.meet(steps.encounter, 0.1, 0.99, 0.5, 0.3)
  expect(random_left(), 0)
  steps.state { EnemyKind = 5, EnemyCount = 2, ["EnemyLife[0]"] = 200, ["EnemyLife[1]"] = 200, ["EnemyLife[2]"] = 280,
    ["EnemyAlive[2]"] = 0, ["Battle.Loaded"] = true }
  -- Nothing is left on the scene of the four that came first: the places of slots 3 and 4 are bare.
  for _, spot in ipairs { { 120, 90 }, { 150, 180 } } do
    for x = spot[1], spot[1] + 63, 3 do
      for y = spot[2], spot[2] + 63, 3 do
        expect(shown_pixel("Battle.Picture1", x, y), pixel("Battle.Picture7", x * 480 // 432, y * 288 // 264))
      end
    end
  end
end)

test("a screen that stayed in memory forms its group once", function()
  steps.arena()
  steps.battle(0, 0)
  steps.flee()
  steps.meet(steps.encounter, 0.1, 0.99, 0.5, 0.3)
  expect(random_left(), 2)
  steps.state { EnemyKind = 3, EnemyCount = 4 }
end)

test("a new screen plays its actions at the design interval of 1 ms, its music at 100", function()
  steps.arena()
  steps.battle(0, 0)
  expect(get("Battle.Timer1.Interval"), 15)
  close("Battle")
  steps.flatten()
  steps.put(100, 100)
  steps.battle(0, 0)
  expect(get("Battle.Timer1.Interval"), 1)
  expect(get("Battle.Timer2.Interval"), 100)
  expect(get("Battle.Timer2.Enabled"), true)
  steps.state { ["Battle.SSTab1.Tab"] = 0, ["Battle.Command1.Enabled"] = true, ["Battle.Command2.Enabled"] = false }
end)

test("a hero who fainted in an abandoned battle is still down in the next", function()
  steps.arena()
  steps.battle(0, 0)
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  close("Battle")
  steps.flatten()
  steps.put(100, 100)
  steps.battle(0, 0)
  steps.state { ["HeroFainted[1]"] = -1, ["HP[1]"] = 0 }
  expect(steps.trimmed(get("Battle.SSTab1.TabCaption(1)")), "リナ")
  steps.strike()
  steps.state { ["Battle.SSTab1.Tab"] = 0, ["Battle.SSTab1.TabEnabled(1)"] = false }
end)

test("closing the window on a dragon leaves its flag, and the walk runs beside the scene", function()
  steps.arena()
  steps.boss()
  close("Battle")
  steps.state { BossFight = -1, ["Main.Timer3.Enabled"] = true, ["Main.Timer1.Enabled"] = true, ["Exp[0]"] = 0 }
end)

test("closing the window on the last boss does not count as his fall", function()
  steps.arena()
  steps.last_boss()
  close("Battle")
  steps.state { LastBossFight = -1, LastBossDown = 0, ["Main.Timer3.Enabled"] = false, ["Main.Timer1.Enabled"] = true }
end)

test("a window left open and clicked during a battle does not form the group again", function()
  steps.arena()
  click("Main.m32")
  answer("Cancel")
  click("Main.m14")
  steps.flatten()
  steps.battle(0, 0.99)
  set("EnemyLife[0]", 5)
  steps.strike(2)
  expect(get("Battle.SSTab1.Tab"), 1)
  activate("Chardata")
  expect(active(), "Chardata")
  activate("Battle")
  expect(active(), "Battle")
  steps.state { ["EnemyLife[0]"] = 5, ["Battle.SSTab1.Tab"] = 1, HeroesActed = 1 }
end)

test("a screen closed in the middle of an action comes back with its timer off", function()
  steps.arena()
  steps.battle(0, 0)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  steps.play_to(4)
  close("Battle")
  set("Main.Timer1.Enabled", false)
  set("ActionKind", 2)
  clear_sounds()
  wait(500)
  steps.state { ActionState = 0, ["EnemyLife[0]"] = 280 }
  expect(#sounds(), 0)
  set("Main.Timer1.Enabled", true)
  steps.flatten()
  steps.put(100, 100)
  set("HeroesActed", 0)
  steps.battle(0, 0)
  steps.state { ["Battle.Timer1.Enabled"] = false, ActionState = 0, ["Battle.List2.ListCount"] = 0 }
  steps.strike()
  expect(get("HeroesActed"), 1)
end)
