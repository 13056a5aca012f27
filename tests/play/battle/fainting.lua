local steps = require "lib.steps"
local phases = require "lib.phases"
local caption, phase, dragon_phase = phases.caption, phases.phase, phases.dragon_phase
local last_phase = phases.last_phase

-- The first hero faints; the second strikes, up to the frame that hits.
local function strike_of_the_second()
  phase(1)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  click("Battle.Command1")
  choose("Battle.List2", 1)
  tick("Battle.Timer1", 15)
end

test("a hero at 0 faints, and the phase's end shuts the pane and counts the round's first action", function()
  phase(2)
  set("HP[0]", 16)
  steps.enemy_attack(4)
  steps.state { ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, EnemyTurns = 1, ["Battle.Timer1.Enabled"] = true, HeroesActed = 0 }
  expect(caption(0), "気絶")
  expect(caption(1), "リナ")
  steps.enemy_attack(1)
  steps.state {
    ["Battle.SSTab1.Tab"] = 1, ["Battle.SSTab1.TabEnabled(0)"] = false, ["Battle.SSTab1.TabEnabled(1)"] = true,
    HeroesActed = 1, ["Battle.Timer1.Enabled"] = false, ["Battle.Command1.Enabled"] = true,
    ["Battle.Command2.Enabled"] = true, ["Battle.Command3.Enabled"] = false, ["Battle.Command4.Enabled"] = true,
  }
end)

test("a hero left with 1 point stands", function()
  phase(1)
  set("HP[0]", 17)
  steps.enemy_attack(4)
  steps.state { ["HP[0]"] = 1, ["HeroFainted[0]"] = 0 }
  expect(caption(0), "カイ")
end)

test("points never show below 0", function()
  phase(1)
  set("HP[1]", 3)
  steps.enemy_attack(9)
  steps.state { ["HP[1]"] = 0, ["HeroFainted[1]"] = -1, ["Battle.Label3(1).Caption"] = "0/80" }
end)

test("when the second hero has fainted the first hero's pane opens", function()
  steps.arena()
  steps.battle_with(3, 1)
  tab("Battle.SSTab1", 1)
  steps.to_enemy_phase()
  expect(get("Battle.SSTab1.Tab"), 1)
  set("HP[1]", 5)
  steps.enemy_attack(3)
  steps.state {
    ["Battle.SSTab1.Tab"] = 0, ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = false,
    HeroesActed = 1, ["Battle.Command2.Enabled"] = false, ["Battle.Command3.Enabled"] = true,
  }
end)

test("with one hero left the round needs a single command", function()
  phase(1)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  for _ = 1, 2 do
    set("HP[1]", 80)
    click("Battle.Command1")
    choose("Battle.List2", 1)
    expect(get("HeroesActed"), 2)
    tick("Battle.Timer1", 15)
    steps.state { ActionKind = 5, EnemyTurns = 1, HeroesActed = 0, ["Battle.SSTab1.Tab"] = 1 }
    steps.enemy_attack(0)
    steps.state { HeroesActed = 1, ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, ["Battle.SSTab1.TabEnabled(0)"] = false }
  end
end)

test("a stroke on a fainted hero shows its number and changes nothing else", function()
  phase(2)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  steps.play_with(16, 0.25)
  steps.state { ["Battle.Label16(0).Caption"] = "14", ["Battle.Label16(0).Visible"] = true }
  steps.play_to(34)
  tick("Battle.Timer1")
  steps.state { ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, ["HP[1]"] = 80 }
end)

test("a special that leaves a hero below 1 makes him faint", function()
  dragon_phase(2, 1)
  steps.play_with(36, 0, 0)
  set("HP[0]", 350)
  set("HP[1]", 341)
  steps.play_to(54)
  tick("Battle.Timer1")
  steps.state { ["HP[0]"] = 0, ["HeroFainted[0]"] = -1, ["HP[1]"] = 1, ["HeroFainted[1]"] = 0, HeroesActed = 1,
    ["Battle.SSTab1.Tab"] = 1 }
  expect(caption(0), "気絶")
end)

test("a hero revived by the standing one gets the pane, and the next phase's end opens both", function()
  phase(1)
  set("HP[0]", 1)
  steps.enemy_attack(0)
  click("Battle.Command4")
  choose("Battle.List3", 1)
  choose("Battle.List4", 1)
  steps.play_to(48)
  steps.state { ["HP[0]"] = 120, ["HeroFainted[0]"] = 0 }
  expect(caption(0), "カイ")
  tick("Battle.Timer1")
  steps.state { ["Battle.SSTab1.Tab"] = 0, ActionKind = 5, HeroesActed = 0 }
  steps.enemy_attack(0)
  steps.state { ["Battle.SSTab1.TabEnabled(0)"] = true, ["Battle.SSTab1.TabEnabled(1)"] = true, HeroesActed = 0,
    ["Battle.Command3.Enabled"] = true }
end)

test("when both have fainted the sounds are closed, the box stands and the program ends", function()
  phase(1)
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  set("HP[0]", 5)
  clear_sounds()
  local during, before
  answer(function()
    during = get("Battle.Timer1.Enabled")
    before = #sounds()
    return "OK"
  end)
  steps.enemy_attack(0)
  expect(during, false)
  expect(ended(), true)
  expect(exit_status(), 0)
  expect(#boxes(), 1)
  expect(boxes()[1].text, "全滅しました。")
  expect(boxes()[1].title, "GAME OVER")
  expect(boxes()[1].buttons, "OK")
  local sent = sounds()
  expect(#sent, 18)
  expect(before, 18, "all before the box")
  expect(sent[1], "play snd9 from 0")
  for n = 1, 7 do expect(sent[1 + n], "close bgm" .. n) end
  for n = 1, 10 do expect(sent[8 + n], "close snd" .. n) end
end)

test("under the box of the end no pane can be opened, and no skill of a fainted hero's open pane", function()
  strike_of_the_second()
  set("HP[1]", 1)
  local looked
  answer(function()
    steps.state { ["Battle.SSTab1.Tab"] = 1, ["Battle.SSTab1.TabEnabled(0)"] = false, ["Battle.SSTab1.TabEnabled(1)"] = false,
      ["Battle.Command1.Enabled"] = true, ["Battle.Command2.Enabled"] = false, ["Battle.Command3.Enabled"] = false,
      ["Battle.Command4.Enabled"] = true, HeroesActed = 1 }
    looked = true
    return "OK"
  end)
  steps.enemy_attack(1)
  expect(looked, true)
  expect(ended(), true)
end)

test("an attack left in the phase is played out though both have fainted", function()
  dragon_phase(3, 0)
  set("HeroFainted[0]", -1)
  set("HP[0]", 0)
  set("HP[1]", 5)
  steps.enemy_attack(1)
  steps.state { ["HeroFainted[1]"] = -1, EnemyTurns = 1 }
  expect(ended(), false)
  expect(#boxes(), 0)
  answer("OK")
  tick("Battle.Timer1", 17)
  expect(ended(), false)
  tick("Battle.Timer1")
  expect(ended(), true)
  expect(boxes()[1].text, "全滅しました。")
end)

test("a special that fells both ends the game", function()
  last_phase(1)
  set("HP[0]", 1000)
  set("HP[1]", 1000)
  answer("OK")
  tick("Battle.Timer1", 28)
  expect(ended(), true)
  expect(exit_status(), 0)
end)

test("with the second hero alone the phase's end opens her spells though the pane did not change", function()
  strike_of_the_second()
  expect(get("Battle.SSTab1.Tab"), 1)
  tick("Battle.Timer1", 17)
  for n = 1, 4 do expect(get("Battle.Command" .. n .. ".Enabled"), false) end
  set("HP[1]", 80)
  tick("Battle.Timer1")
  steps.state { ["Battle.Command1.Enabled"] = true, ["Battle.Command2.Enabled"] = true,
    ["Battle.Command3.Enabled"] = false, ["Battle.Command4.Enabled"] = true, ["Battle.Timer1.Enabled"] = false }
end)
