local steps = require "lib.steps"

test("the life of a slot that a battle does not fill is what the last battle left", function()
  steps.arena()
  steps.battle_with(7, 4)
  steps.flee()
  steps.battle_with(4, 2)
  steps.state {
    ["EnemyLife[0]"] = 230, ["EnemyLife[1]"] = 230, ["EnemyLife[2]"] = 300, ["EnemyLife[3]"] = 300,
    ["EnemyAlive[0]"] = -1, ["EnemyAlive[1]"] = -1, ["EnemyAlive[2]"] = 0, ["EnemyAlive[3]"] = 0,
    ["EnemyAlive[4]"] = 0, EnemyCount = 2,
  }
end)

test("a fight against a single big enemy has a count of 1 and an empty slot 1", function()
  steps.arena()
  steps.bone_dragon()
  steps.state { EnemyCount = 1, ["EnemyAlive[0]"] = 0, ["EnemyAlive[4]"] = -1, ["EnemyLife[4]"] = 42000 }
end)

test("the flag of the round's dragon goes before that of the last boss", function()
  steps.arena(2)
  set("LastBossFight", -1)
  steps.boss(0.5)
  steps.state { EnemyCount = 1, ["EnemyAlive[4]"] = -1, ["EnemyLife[4]"] = 23000 }
  click("Battle.Command1")
  expect(get("Battle.List2.List(1)"), steps.padded("炎龍", 16))
end)

test("the flag of the last boss goes before row 13", function()
  steps.arena()
  set("EnemyKind", 13)
  steps.last_boss()
  steps.state { EnemyKind = 13, ["EnemyLife[4]"] = 150000, ["Battle.Command5.Enabled"] = false }
  click("Battle.Command1")
  expect(get("Battle.List2.List(1)"), steps.padded("神龍", 16))
end)

test("each command sets the kind of its action", function()
  steps.arena()
  steps.learn_all()
  steps.battle(0, 0)
  steps.strengthen()
  local function cancelled(command, list)
    click("Battle." .. command)
    local kind = get("ActionKind")
    choose("Battle." .. list, 0)
    return kind
  end
  expect(cancelled("Command1", "List2"), 2)
  expect(cancelled("Command3", "List1"), 4)
  tab("Battle.SSTab1", 1)
  expect(cancelled("Command1", "List2"), 2)
  expect(cancelled("Command2", "List1"), 3)
  click("Battle.Command2")
  choose("Battle.List1", 8)
  expect(get("ActionKind"), 6)
end)

test("an item's kind is set by the choice of the target, not by the command", function()
  steps.arena()
  steps.battle(0, 0)
  set("ActionKind", 2)
  click("Battle.Command4")
  choose("Battle.List3", 1)
  expect(get("ActionKind"), 2)
  choose("Battle.List4", 1)
  expect(get("ActionKind"), 7)
end)

test("a hero's kind stays after the action and does nothing with the timer off", function()
  steps.arena()
  steps.battle(0, 0)
  steps.strike()
  steps.state { ActionKind = 2, ActionState = 0, ["Battle.Timer1.Enabled"] = false }
  local life = get("EnemyLife[0]")
  wait(1000)
  steps.state { ActionKind = 2, ActionState = 0, ["EnemyLife[0]"] = life }
end)

test("heroes count as having acted from the commit on", function()
  steps.arena()
  steps.battle(0, 0.99)
  click("Battle.Command1")
  expect(get("HeroesActed"), 0)
  choose("Battle.List2", 1)
  expect(get("HeroesActed"), 1)
  run("Battle.Timer1")
  expect(get("HeroesActed"), 1)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  expect(get("HeroesActed"), 2)
  steps.play_to(28)
  expect(get("HeroesActed"), 2)
  tick("Battle.Timer1")
  expect(get("HeroesActed"), 0)
end)

test("the frame counter grows by 2 on each tick and the runner sees the new value", function()
  steps.arena()
  steps.battle(0, 0)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  expect(get("ActionState"), 0)
  for tick_number = 1, 14 do
    tick("Battle.Timer1")
    expect(get("ActionState"), 2 * tick_number)
  end
  tick("Battle.Timer1")
  expect(get("ActionState"), 0)
end)

test("a kind that names no action leaves the counter where it stands", function()
  steps.arena()
  steps.battle(0, 0)
  set("Battle.Timer1.Enabled", true)
  for _, kind in ipairs { 0, 1, 10 } do
    set("ActionKind", kind)
    set("ActionState", 4)
    tick("Battle.Timer1", 3)
    expect(get("ActionState"), 4, "kind " .. kind)
  end
end)

test("the chosen rows stay in their lists while the action plays", function()
  steps.arena()
  steps.learn_all()
  steps.battle(0, 0.99)
  steps.strengthen()
  click("Battle.Command3")
  choose("Battle.List1", 2)
  choose("Battle.List2", 3)
  steps.play_to(48)
  steps.state {
    ["Battle.List1.ListIndex"] = 2, ["Battle.List2.ListIndex"] = 3, ["Battle.List1.Visible"] = false,
    ["Battle.List2.Visible"] = false, ["Battle.SSTab1.Tab"] = 0,
  }
  tick("Battle.Timer1")
  steps.state { ["Battle.List1.ListCount"] = 0, ["Battle.List2.ListCount"] = 0 }
  click("Battle.Command4")
  choose("Battle.List3", 2)
  choose("Battle.List4", 1)
  steps.play_to(48)
  steps.state {
    ["Battle.List3.ListIndex"] = 2, ["Battle.List4.ListIndex"] = 1, ["Battle.List3.Visible"] = false,
    ["Battle.List4.Visible"] = false, ["Battle.SSTab1.Tab"] = 1,
  }
end)

test("a hero is busy from the command until the choice is cancelled or the round ends", function()
  steps.arena()
  steps.battle(0, 0.99)
  click("Battle.Command1")
  expect(get("HeroBusy[0]"), -1)
  choose("Battle.List2", 0)
  expect(get("HeroBusy[0]"), 0)
  steps.strike()
  steps.state { ["HeroBusy[0]"] = -1, ["HeroBusy[1]"] = 0 }
  click("Battle.Command1")
  choose("Battle.List2", 1)
  steps.play_to(28)
  steps.state { ["HeroBusy[0]"] = -1, ["HeroBusy[1]"] = -1 }
  tick("Battle.Timer1")
  steps.state { ["HeroBusy[0]"] = 0, ["HeroBusy[1]"] = 0 }
end)
