-- Steps that many scenarios share.
local steps = {}

-- A fresh game on the field, the opening behind it. `options` go to start.
function steps.field(options)
  start(options)
  steps.enter_names()
  for _ = 1, 20 do click("Main.Picture1") end
  expect(get("OpeningDone"), -1)
end

-- Names the heroes; the opening stands then.
function steps.enter_names(man, woman)
  click("Main.Command1")
  enter("InputName.Text1(0)", man or "カイ")
  enter("InputName.Text1(1)", woman or "リナ")
  click("InputName.OKButton")
end

-- A folder whose every map in the grid, and every room, is plain walkable ground.
function steps.plain_world()
  prepare()
  for b = 1, 5 do
    for a = 1, 5 do write_map(("Mapdata/map%d-%d.dat"):format(b, a), 7) end
  end
  for _, name in ipairs { "map4-6", "map0-0", "Fresh", "Book1", "Book2", "Book3", "BookF" } do
    write_map("Mapdata/" .. name .. ".dat", 7)
  end
  steps.field { keep = true }
end

function steps.put(x, y)
  set("HeroX", x)
  set("HeroY", y)
end

-- Holds a key for some steps. No step meets an enemy unless `draws` says so.
function steps.walk(key, count, ...)
  key_down(key)
  for _ = 1, count do
    if select("#", ...) > 0 then random(...) else random(0) end
    tick("Main.Timer1")
    random_clear()
  end
  key_up(key)
end

-- The draw that makes the encounter roll 100 of 150.
steps.encounter = 100.5 / 150

-- Enters a battle by one step. The draws after the roll: kind, count.
function steps.battle(kind_draw, count_draw)
  random(steps.encounter, kind_draw or 0, count_draw or 0)
  key_down("Right")
  tick("Main.Timer1")
  key_up("Right")
  expect(active(), "Battle")
  random_clear()
end

-- A battle in round `round` against `count` of the kind `kind` (a row of the enemy table).
function steps.battle_with(kind, count)
  local first = 3 + (get("Round") - 1) * 5
  steps.battle((kind - first + 0.5) / 5, (count - 0.5) / 4)
  expect(get("EnemyKind"), kind)
end

-- Strong heroes that nothing fells.
function steps.strengthen()
  for hero = 0, 1 do
    for _, name in ipairs { "HP", "MaxHP", "MP", "MaxMP" } do set(name .. "[" .. hero .. "]", 9000) end
  end
end

function steps.learn_all()
  for skill = 0, 9 do
    set("WazaKnown[" .. skill .. "]", -1)
    set("MagicKnown[" .. skill .. "]", -1)
  end
end

-- The open hero strikes the enemy of a row.
function steps.strike(row)
  click("Battle.Command1")
  choose("Battle.List2", row or 1)
  run("Battle.Timer1")
end

-- The frames of the running action up to a value of ActionState.
function steps.play_to(frame)
  while get("ActionState") < frame do tick("Battle.Timer1") end
end

-- Whether a command stands among those sent, and how often.
function steps.sent(command)
  local count = 0
  for _, each in ipairs(sounds()) do
    if each == command then count = count + 1 end
  end
  return count
end

-- Empties one slot after another of the living group but those named.
function steps.leave_alive(...)
  local keep = {}
  for _, slot in ipairs { ... } do keep[slot] = true end
  for slot = 1, get("EnemyCount") do
    if not keep[slot] then set("EnemyAlive[" .. (slot - 1) .. "]", 0) end
  end
end

-- Makes the map in memory plain walkable ground, with nothing read from a file.
function steps.flatten()
  for column = 0, 30 do
    for row = 0, 16 do set(("MapTile[%d][%d]"):format(column, row), 7) end
  end
end

-- The field with plain ground in memory, in a round: the quick way to a battle.
function steps.arena(round)
  steps.field()
  steps.flatten()
  steps.put(100, 100)
  set("Round", round or 1)
end

-- One step to the right that leads into a battle; `draws` are all that the step takes.
function steps.meet(...)
  random(...)
  key_down("Right")
  tick("Main.Timer1")
  key_up("Right")
  expect(active(), "Battle")
end

-- The dragon of the round. The rolled kind and count have no effect on the fight.
function steps.boss(kind_draw, count_draw)
  set("MapA", 4)
  set("MapB", 1)
  steps.put(228, 100)
  steps.meet(0, kind_draw or 0, count_draw or 0)
  expect(get("BossFight"), -1)
end

-- The last battle. The last stage rolls no kind, only a count.
function steps.last_boss(count_draw)
  set("Round", 4)
  set("LastBossFight", -1)
  steps.put(228, 40)
  steps.meet(0, count_draw or 0)
end

-- The big enemy of the third round, met like any other.
function steps.bone_dragon()
  set("Round", 3)
  steps.battle(0, 0)
  expect(get("EnemyKind"), 13)
end

-- Leaves any battle by flight, as only row 13 allows; the ground is plain again.
function steps.flee()
  set("Battle.Command5.Enabled", true)
  click("Battle.Command5")
  expect(active(), "Main")
  steps.flatten()
  steps.put(100, 100)
end

-- Sets a value of a hero that the refresh of the status panes computes from the base value.
function steps.attack(hero, value)
  set("BaseAttack[" .. hero .. "]", value - get("WeaponAttack[" .. hero .. "]"))
  set("Attack[" .. hero .. "]", value)
end

function steps.defence(hero, value)
  set("BaseDefence[" .. hero .. "]", value - get("ArmourDefence[" .. hero .. "]"))
  set("Defence[" .. hero .. "]", value)
end

-- Ticks of the running action, with draws for the last of them.
function steps.play_with(frame, ...)
  steps.play_to(frame - 2)
  random_clear()
  random(...)
  tick("Battle.Timer1")
  expect(get("ActionState"), frame)
end

-- Both heroes strike row 1; the second strike ends with `draws` (a boss's roll).
-- The enemy phase stands before its first frame then.
function steps.to_enemy_phase(...)
  local draws = { ... }
  for hero = get("HeroesActed") + 1, 2 do
    click("Battle.Command1")
    choose("Battle.List2", 1)
    steps.play_to(28)
    random_clear()
    if hero == 2 and #draws > 0 then random(table.unpack(draws)) end
    tick("Battle.Timer1")
  end
  random_clear()
  expect(get("HeroesActed"), 0)
  expect(get("Battle.Timer1.Enabled"), true)
end

-- One plain enemy attack with a roll of 0 to 9, from its pause to its end.
function steps.enemy_attack(roll)
  steps.play_with(16, (roll + 0.5) / 10)
  expect(get("EnemyRoll"), roll)
  random_clear()
  steps.play_to(34)
  tick("Battle.Timer1")
end

function steps.kill_all()
  for index = 0, 4 do set("EnemyAlive[" .. index .. "]", 0) end
end

-- Wins at once: the enemies are gone and the open hero's stroke ends the battle.
function steps.win()
  local row = 1
  for slot = 4, 1, -1 do
    if get("EnemyAlive[" .. slot - 1 .. "]") == -1 then row = slot end
  end
  click("Battle.Command1")
  choose("Battle.List2", row)
  steps.play_to(28)
  steps.kill_all()
  tick("Battle.Timer1")
  expect(get("Battle.Picture10.Visible"), true)
end

-- The click beside the panel.
function steps.leave()
  click("Battle.Picture1", 20, 200)
  expect(active(), "Main")
end

-- A text without the blanks at its end.
function steps.trimmed(text) return (text:gsub(" +$", "")) end

-- A fixed text of ASCII and full-width characters filled with blanks.
function steps.padded(text, width) return text .. (" "):rep(width - utf8.len(text)) end

-- Expects several values at once.
function steps.state(wanted, note)
  for name, value in pairs(wanted) do expect(get(name), value, note and (note .. ": " .. name) or name) end
end

return steps
