local steps = require "lib.steps"
local commands = require "lib.commands"
local tabs, visible = commands.tabs, commands.visible

test("flight succeeds at once, revives with 1 point and closes the fight's music", function()
  steps.arena()
  steps.bone_dragon()
  tick("Battle.Timer2")
  for hero = 0, 1 do set("HeroFainted[" .. hero .. "]", hero - 1) end
  set("HP[0]", 0)
  for _, name in ipairs { "KeyUp", "KeyDown", "KeyLeft", "KeyRight", "KeyUpWaiting" } do set(name, -1) end
  set("HeroBusy[0]", -1)
  set("HeroBusy[1]", -1)
  set("Battle.SSTab1.TabEnabled(0)", false)
  clear_sounds()
  random_clear()
  click("Battle.Command5")
  expect(active(), "Main")
  steps.state {
    ["HP[0]"] = 1, ["HP[1]"] = 80, ["HeroFainted[0]"] = 0, ["HeroFainted[1]"] = 0, KeyUp = 0, KeyDown = 0, KeyLeft = 0,
    KeyRight = 0, KeyUpWaiting = -1, ["Battle.Timer1.Enabled"] = false, ["Battle.Timer2.Enabled"] = false,
    ["Battle.Visible"] = false, ["Battle.Loaded"] = true, ["Main.Visible"] = true, ["Main.Timer1.Enabled"] = true,
    ["Battle.Command5.Enabled"] = true, ["HeroBusy[0]"] = 0, ["HeroBusy[1]"] = 0, ["Exp[0]"] = 0, ["Exp[1]"] = 0,
  }
  tabs(true, true)
  local sent = sounds()
  expect(#sent, 3)
  for i = 1, 3 do expect(sent[i], "close bgm" .. 3 + i) end
end)

test("a flight revives both heroes, and one who stands keeps his points", function()
  steps.arena()
  steps.bone_dragon()
  set("HP[0]", 55)
  set("HP[1]", 0)
  set("HeroFainted[1]", -1)
  click("Battle.Command5")
  steps.state { ["HP[0]"] = 55, ["HP[1]"] = 1, ["HeroFainted[1]"] = 0 }
end)

test("a flight gives neither experience nor proficiency", function()
  steps.arena()
  set("BookSkill[0]", 1)
  set("BookSkill[1]", 2)
  steps.bone_dragon()
  click("Battle.Command5")
  steps.state { ["WazaUse[0]"] = 0, ["MagicUse[1]"] = 0, ["Exp[0]"] = 0, ["Level[0]"] = 1 }
end)

test("a flight after one hero's action makes the next battle's first action bring the enemies", function()
  steps.arena()
  steps.bone_dragon()
  steps.strike()
  expect(get("HeroesActed"), 1)
  click("Battle.Command5")
  expect(get("HeroesActed"), 1)
  steps.flatten()
  steps.put(100, 100)
  set("Round", 1)
  steps.battle_with(6, 3)
  steps.strengthen()
  click("Battle.Command1")
  choose("Battle.List2", 1)
  tick("Battle.Timer1", 15)
  steps.state { ActionKind = 5, EnemyTurns = 3, HeroesActed = 0, ["Battle.Timer1.Enabled"] = true }
end)

test("heroes who have acted before count on, and do not keep the enemies from their turn", function()
  for acted = 1, 3 do
    steps.arena()
    steps.battle_with(6, 3)
    steps.strengthen()
    set("HeroesActed", acted)
    click("Battle.Command1")
    choose("Battle.List2", 1)
    tick("Battle.Timer1", 15)
    steps.state { ActionKind = 5, HeroesActed = 0, ["Battle.Timer1.Enabled"] = true }
  end
end)

test("no command does anything while an action plays, flight included", function()
  steps.arena()
  steps.bone_dragon()
  tab("Battle.SSTab1", 1)
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(8)
  for n = 1, 5 do set("Battle.Command" .. n .. ".Enabled", true) end
  for n = 1, 5 do
    click("Battle.Command" .. n)
    visible()
    expect(active(), "Battle")
    steps.state { ActionKind = 7, ActionState = 8, HeroesActed = 1, ["Battle.Timer1.Enabled"] = true }
  end
end)
