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

return steps
