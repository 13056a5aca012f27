local steps = require "lib.steps"
local wins = require "lib.wins"
local shown, text, group, next_group = wins.shown, wins.text, wins.group, wins.next_group

test("a group of four gives four times its experience to each standing hero, undivided", function()
  group(17, 4)
  steps.win()
  steps.state { ["Exp[0]"] = 3564, ["Exp[1]"] = 3564 }
  expect(text("Label21"), "経験値　3564ポイント獲得！")
end)

test("the enemies that fell earlier count too", function()
  group(3, 3)
  steps.leave_alive(2)
  steps.win()
  steps.state { ["Exp[0]"] = 186, ["Exp[1]"] = 186 }
end)

test("the last boss gives a panel of 0 points and no level", function()
  steps.arena()
  steps.last_boss()
  steps.win()
  expect(text("Label21"), "経験値　0ポイント獲得！")
  steps.state { ["Exp[0]"] = 0, ["Level[0]"] = 1, ["Level[1]"] = 1, EnemyKind = 18, LastBossDown = 0,
    ["Battle.Label22(0).Visible"] = false, ["Battle.Label22(1).Visible"] = false }
  steps.leave()
  steps.state { LastBossDown = -1, ["Main.Timer3.Enabled"] = true }
end)

test("a fainted hero ends a won battle with 1 point and no experience", function()
  group(3, 2)
  set("HP[1]", 0)
  set("HeroFainted[1]", -1)
  steps.win()
  steps.state { ["HP[1]"] = 1, ["HeroFainted[1]"] = 0, ["Exp[1]"] = 0, ["Exp[0]"] = 124, ["HP[0]"] = 120 }
end)

test("the panel stands with all buttons off, the actions' timer off, the music going on", function()
  group(3, 1)
  set("Battle.Command5.Enabled", true)
  clear_sounds()
  steps.win()
  for n = 1, 5 do expect(get("Battle.Command" .. n .. ".Enabled"), false, "Command" .. n) end
  steps.state { ["Battle.Timer1.Enabled"] = false, ["Battle.Timer2.Enabled"] = true, HeroesActed = 0, EnemyTurns = 0 }
  expect(steps.sent("play snd7 from 0"), 1)
  wait(100)
  expect(steps.sent("play bgm4 from 0"), 1)
  expect(shown("Picture10"), true)
end)

test("the messages have their colours", function()
  start()
  steps.state { ["Battle.Label21.ForeColor"] = "800080", ["Battle.Label22(0).ForeColor"] = "0000C0",
    ["Battle.Label22(1).ForeColor"] = "C00000", ["Battle.Label25(0).ForeColor"] = "0000FF",
    ["Battle.Label25(1).ForeColor"] = "FF0000" }
end)

test("while an enemy is left nothing is won", function()
  group(3, 2)
  set("EnemyLife[0]", 1)
  steps.strike(1)
  steps.state { ["EnemyAlive[0]"] = 0, ["Battle.Picture10.Visible"] = false, ["Exp[0]"] = 0 }
end)

test("a click on the scene without a panel does nothing", function()
  group(3, 1)
  click("Battle.Picture1", 20, 200)
  expect(active(), "Battle")
  click("Battle.Command1")
  choose("Battle.List2", 1)
  steps.play_to(10)
  click("Battle.Picture1", 20, 200)
  steps.state { ActionKind = 2, ActionState = 10, ["Battle.Timer2.Enabled"] = true }
end)

test("a click on the panel itself does nothing, one beside it leaves", function()
  group(3, 1)
  steps.win()
  for _, point in ipairs { { 48, 8 }, { 200, 50 }, { 385, 102 } } do
    click("Battle.Picture1", point[1], point[2])
    expect(active(), "Battle")
    expect(shown("Picture10"), true)
  end
  click("Battle.Picture1", 386, 50)
  expect(active(), "Main")
end)

test("leaving closes the fight's music and gives the field back", function()
  group(3, 1)
  tick("Battle.Timer2")
  steps.win()
  for _, name in ipairs { "KeyUp", "KeyDown", "KeyLeft", "KeyRight", "KeyDownWaiting" } do set(name, -1) end
  set("HeroBusy[0]", -1)
  set("Battle.SSTab1.TabEnabled(0)", false)
  clear_sounds()
  local x, y = get("HeroX"), get("HeroY")
  steps.leave()
  steps.state {
    ActionKind = 0, ["Battle.Picture10.Visible"] = false, KeyUp = 0, KeyDown = 0, KeyLeft = 0, KeyRight = 0,
    KeyDownWaiting = -1, LastBossDown = 0, ["Battle.Timer2.Enabled"] = false, ["Battle.Visible"] = false,
    ["Battle.Loaded"] = true, ["Battle.Command5.Enabled"] = true, ["HeroBusy[0]"] = 0, ["HeroBusy[1]"] = 0,
    ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = true, ["Main.Visible"] = true,
    ["Main.Timer1.Enabled"] = true, HeroX = x, HeroY = y,
  }
  local sent = sounds()
  expect(#sent, 3)
  for i = 1, 3 do expect(sent[i], "close bgm" .. 3 + i) end
end)

test("the next battle shuts the flight that leaving has opened", function()
  group(3, 1)
  steps.win()
  steps.leave()
  expect(get("Battle.Command5.Enabled"), true)
  next_group(3, 1)
  expect(get("Battle.Command5.Enabled"), false)
end)

test("closing the window on the panel keeps what was won and revived", function()
  group(3, 2)
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  steps.win()
  close("Battle")
  steps.state { ["Exp[0]"] = 124, ["HP[1]"] = 1, ["Battle.Loaded"] = false, ["Main.Timer1.Enabled"] = true }
end)

test("a heal or an item cannot end a battle", function()
  group(3, 1, steps.learn_all)
  steps.strengthen()
  steps.kill_all()
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", 3)
  run("Battle.Timer1")
  steps.state { ["Battle.Picture10.Visible"] = false, HeroesActed = 1, ["Exp[0]"] = 0 }
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(48)
  tick("Battle.Timer1")
  steps.state { ["Battle.Picture10.Visible"] = false, ActionKind = 5, EnemyTurns = 0 }
end)
