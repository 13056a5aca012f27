local steps = require "lib.steps"
local tables = require "lib.model.tables"
local wazas, magics, enemies = tables.wazas, tables.magics, tables.enemies

test("the ten techniques have their names, mastery counts and costs from start-up on", function()
  start()
  for i, row in ipairs(wazas) do
    expect(get("WazaName[" .. i - 1 .. "]"), row[1])
    expect(get("WazaMaster[" .. i - 1 .. "]"), row[2])
    expect(get("WazaMP[" .. i - 1 .. "]"), row[3])
  end
end)

test("the ten spells have their names, mastery counts and costs from start-up on", function()
  start()
  for i, row in ipairs(magics) do
    expect(get("MagicName[" .. i - 1 .. "]"), row[1])
    expect(get("MagicMaster[" .. i - 1 .. "]"), row[2])
    expect(get("MagicMP[" .. i - 1 .. "]"), row[3])
  end
end)

test("a battle's activation fills rows 0 to 18 of the enemy table", function()
  steps.arena()
  steps.battle()
  for i = 0, 18 do
    local row = enemies[i]
    expect(get("EnemyName[" .. i .. "]"), steps.padded(row[1], 16))
    steps.state({
      ["EnemyHP[" .. i .. "]"] = row[2], ["EnemyAttack[" .. i .. "]"] = row[3],
      ["EnemyDefence[" .. i .. "]"] = row[4], ["EnemyExp[" .. i .. "]"] = row[5],
    })
  end
end)

test("the pass of the set-up at program start finds the enemy table empty", function()
  start()
  expect(get("EnemyAlive[0]"), -1, "the pass has formed a group")
  for i = 0, 5 do expect(get("EnemyLife[" .. i .. "]"), 0) end
end)

test("every kind opens a battle with its own life and its own name in the target list", function()
  steps.arena()
  for kind = 3, 17 do
    set("Round", (kind - 3) // 5 + 1)
    steps.battle_with(kind, 2)
    local slot = kind == 13 and 4 or 1
    expect(get("EnemyLife[" .. slot .. "]"), enemies[kind][2])
    click("Battle.Command1")
    local name = steps.padded(enemies[kind][1], 16)
    expect(get("Battle.List2.List(1)"), kind == 13 and name or name .. "(1)")
    choose("Battle.List2", 0)
    steps.flee()
  end
end)
