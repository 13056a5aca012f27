local steps = require "lib.steps"
local canvas = require "lib.canvas"
local skills = require "lib.skills"

local mastery, field_with = skills.mastery, skills.field_with
local tough_group, tough_boss = skills.tough_group, skills.tough_boss
local begin_magic, reckon, lost = skills.begin_magic, skills.reckon, skills.lost

test("the first spell of spirit 5 deals 100, and 129 once mastered", function()
  for uses, damage in pairs { [19] = 100, [20] = 129 } do
    tough_group(2, { ["Spirit[1]"] = 5, ["MagicUse[0]"] = uses })
    begin_magic(1, 2)
    reckon(0.99, 0.99)
    expect(get("MagicDamage[1]"), damage)
    expect(get("Battle.Label15(1).Caption"), tostring(damage))
    for slot = 0, 4 do expect(get("Battle.Label15(" .. slot .. ").Visible"), slot == 1, "slot " .. slot) end
    steps.play_to(48)
    expect(lost(2), 0, "not before the last frame")
    tick("Battle.Timer1")
    expect(lost(2), damage)
    expect(lost(1), 0)
  end
end)

test("the same spell takes 200 from a big enemy and shows 100, mastered 258 and 129", function()
  for uses, damage in pairs { [0] = 100, [20] = 129 } do
    tough_boss { ["Spirit[1]"] = 5, ["MagicUse[0]"] = uses }
    begin_magic(1)
    reckon(0.99)
    expect(get("Battle.Label15(4).Caption"), tostring(damage))
    expect(get("Battle.Label15(4).Visible"), true)
    steps.play_to(48)
    tick("Battle.Timer1")
    expect(lost(5), 2 * damage)
  end
end)

test("the second spell strikes a big enemy twice as well", function()
  tough_boss { ["Spirit[1]"] = 12 }
  set("MP[1]", 30)
  begin_magic(2)
  reckon(0)
  expect(get("MagicDamage[4]"), 242, "(6 + 16) * 11")
  steps.play_to(48)
  tick("Battle.Timer1")
  expect(lost(5), 484)
end)

test("row 13 and the last enemy take a one-target spell twice too", function()
  for name, enter in pairs { dragon = canvas.bone_dragon, last = canvas.last_boss } do
    enter()
    set("Spirit[1]", 5)
    set("EnemyLife[4]", 1000000)
    begin_magic(1)
    reckon(0.99)
    steps.play_to(48)
    tick("Battle.Timer1")
    expect(lost(5), 200, name)
  end
end)

test("every damage spell is its cost, half the spirit and a draw by level, times its row", function()
  local costs = { 10, 16, nil, 48, 56, 70, 80, nil, 120, 250 }
  for row = 1, 10 do
    local cost = costs[row]
    if cost then
      for _, mastered in ipairs { false, true } do
        tough_boss { ["Spirit[1]"] = 13, ["Level[1]"] = 42, ["Level[0]"] = 7,
          ["MP[1]"] = 400, ["MaxMP[1]"] = 400, ["MagicUse[" .. row - 1 .. "]"] = mastered and 500 or 0 }
        begin_magic(row)
        reckon(0.75)
        -- The draw: Int(0.75 * 42 / 5) = 6.
        local wanted = math.floor((cost + 6.5 + 6) * (mastered and mastery or 1) * (row * 3 + 5))
        expect(get("MagicDamage[4]"), wanted, "spell " .. row)
        expect(get("Battle.Label15(4).Caption"), ("%d"):format(wanted))
        for slot = 0, 4 do expect(get("Battle.Label15(" .. slot .. ").Visible"), slot == 4, "slot " .. slot) end
      end
    end
  end
end)

test("a spell that strikes all draws anew for every slot, dead ones included, after a first draw", function()
  tough_group(4, { ["Spirit[1]"] = 12, ["Level[1]"] = 50, ["MP[1]"] = 100, ["MaxMP[1]"] = 100 })
  steps.leave_alive(1, 2, 4)
  begin_magic(4)
  reckon(0.95, 0, 0.25, 0.5, 0.75)
  for slot, r in ipairs { 0, 2, 5, 7 } do
    expect(get("MagicDamage[" .. slot - 1 .. "]"), (6 + 48 + r) * 17, "slot " .. slot)
    expect(get("Battle.Label15(" .. slot - 1 .. ").Caption"), tostring((6 + 48 + r) * 17))
    expect(get("Battle.Label15(" .. slot - 1 .. ").Visible"), slot ~= 3, "slot " .. slot)
  end
  expect(get("Battle.Label15(4).Visible"), false)
  steps.play_to(46)
  for slot = 0, 4 do expect(get("Battle.Label15(" .. slot .. ").Visible"), false) end
  steps.play_to(48)
  tick("Battle.Timer1")
  expect(lost(1), 54 * 17)
  expect(lost(2), 56 * 17)
  expect(lost(4), 61 * 17)
end)

test("a one-target spell takes the second of two draws", function()
  tough_group(2, { ["Level[1]"] = 50, ["Spirit[1]"] = 0 })
  begin_magic(1, 1)
  reckon(0.95, 0.3)
  expect(get("MagicDamage[0]"), (10 + 3) * 8)
end)

test("the defence of the enemy plays no part in a spell", function()
  for kind = 3, 7 do
    field_with { ["Spirit[1]"] = 5 }
    steps.battle_with(kind, 1)
    begin_magic(1)
    reckon(0, 0)
    expect(get("MagicDamage[0]"), 100)
  end
end)

test("a spell that strikes all takes its damage once from a big enemy, and stale damage from slot 1", function()
  tough_boss { ["Spirit[1]"] = 12, ["MP[1]"] = 100, ["MaxMP[1]"] = 100 }
  set("EnemyLife[0]", 100)
  set("MagicDamage[0]", 7)
  begin_magic(4)
  reckon(0)
  expect(get("MagicDamage[4]"), 54 * 17)
  expect(get("MagicDamage[0]"), 7)
  steps.play_to(48)
  tick("Battle.Timer1")
  expect(lost(5), 54 * 17)
  expect(get("EnemyLife[0]"), 93)
end)

test("when the empty slot 1's old life runs out, its part of the picture is wiped", function()
  for life, wiped in pairs { [7] = true, [8] = false } do
    canvas.boss()
    set("EnemyLife[4]", 1000000)
    steps.strengthen()
    set("MagicDamage[0]", 7)
    set("EnemyLife[0]", life)
    begin_magic(4)
    steps.play_to(48)
    paint("Battle.Picture1", "FF0000")
    tick("Battle.Timer1")
    local mark = wiped and canvas.ground or "FF0000"
    expect(pixel("Battle.Picture1", 0, 66), mark, "life " .. life)
    expect(pixel("Battle.Picture1", 71, 164), mark)
    expect(pixel("Battle.Picture1", 30, 65), "FF0000", "above the cells")
    expect(pixel("Battle.Picture1", 30, 165), "FF0000", "below the cells")
  end
end)
