local steps = require "lib.steps"
local canvas = require "lib.canvas"

-- The factor of a mastered skill: 1.3 in single precision.
local mastery = 1.2999999523162842

local function field_with(changes)
  steps.plain_world()
  for name, value in pairs(changes or {}) do set(name, value) end
end

-- A fight against `count` of row 4 (defence 3) that survive everything.
local function tough_group(count, changes)
  field_with(changes)
  steps.battle_with(4, count)
  for slot = 0, 3 do set("EnemyLife[" .. slot .. "]", 1000000) end
end

local function tough_boss(changes)
  field_with(changes)
  set("BossFight", -1)
  steps.battle(0, 0)
  set("EnemyLife[4]", 1000000)
end

local function begin_waza(row, target)
  steps.learn_all()
  click("Battle.Command3")
  choose("Battle.List1", row)
  choose("Battle.List2", target or 1)
end

local function begin_magic(row, target)
  steps.learn_all()
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", row)
  if row <= 2 then choose("Battle.List2", target or 1) end
end

local function begin_item(slot, hero)
  click("Battle.Command4")
  choose("Battle.List3", slot)
  choose("Battle.List4", hero)
end

-- Frame 26 of the running action, with these draws.
local function reckon(...)
  steps.play_to(24)
  random_clear()
  random(...)
  tick("Battle.Timer1")
  random_clear()
end

local function lost(slot)
  return 1000000 - get("EnemyLife[" .. slot - 1 .. "]")
end

test("a technique takes its MP on frame 2, before its picture", function()
  tough_group(1, { ["MP[0]"] = 9, ["MP[1]"] = 9 })
  begin_waza(2)
  expect(get("MP[0]"), 9)
  tick("Battle.Timer1")
  expect(get("MP[0]"), 1)
  expect(get("MP[1]"), 9)
  expect(get("Battle.Label4(0).Caption"), "1/10")
  steps.play_to(48)
  expect(get("MP[0]"), 1)
end)

test("a damage spell and a healing spell take the second hero's MP on frame 2", function()
  for row, cost in pairs { 10, 16, 30, 48, 56, 70, 80, 60, 120, 250 } do
    tough_group(1, { ["MP[0]"] = 10, ["MP[1]"] = 300, ["MaxMP[1]"] = 300 })
    begin_magic(row)
    expect(get("MP[1]"), 300)
    tick("Battle.Timer1")
    expect(get("MP[1]"), 300 - cost, "spell " .. row)
    expect(get("MP[0]"), 10)
    expect(get("Battle.Label4(1).Caption"), ("%d/300"):format(300 - cost))
  end
end)

test("with exactly the cost left a skill is allowed, and MP stands at 0", function()
  tough_group(1, { ["MP[1]"] = 10 })
  begin_magic(1)
  tick("Battle.Timer1")
  expect(get("MP[1]"), 0)
  expect(get("ActionKind"), 3)
end)

test("MP is paid without a test and may stand below 0", function()
  tough_group(1)
  begin_magic(1)
  set("MP[1]", 3)
  tick("Battle.Timer1")
  expect(get("MP[1]"), -7)
  expect(get("Battle.Label4(1).Caption"), "-7/30")
end)

test("the first spell of spirit 5 deals 100, and 129 once mastered", function()
  for uses, damage in pairs { [19] = 100, [20] = 129 } do
    tough_group(2, { ["Spirit[1]"] = 5, ["MagicUse[0]"] = uses })
    begin_magic(1, 2)
    reckon(0.99, 0.99)
    expect(get("MagicDamage[1]"), damage)
    expect(get("Battle.Label15(1).Caption"), tostring(damage))
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

-- The technique formula, as a whole number.
local function waza(row, cost, spirit, attack, defence, r, factor)
  local base = spirit // 2 + attack + cost / 2
  if row == 10 then return math.floor(base * factor * 80 - defence * 2 + r) end
  return math.floor(base * factor * row * 4 - defence * 2 + r) + attack * 8
end

test("the first technique deals 98 at the start, and 109 once mastered", function()
  for uses, damage in pairs { [19] = 98, [20] = 109 } do
    tough_group(2, { ["WazaUse[0]"] = uses })
    begin_waza(1, 2)
    reckon(0)
    expect(get("WazaDamage"), damage, "(0 + 8 + 2) * 4 - 6, and 8 * 8 added uncut")
    expect(get("Battle.Label15(1).Caption"), tostring(damage))
    steps.play_to(48)
    expect(lost(2), 0)
    tick("Battle.Timer1")
    expect(lost(2), damage)
    expect(lost(1), 0)
  end
end)

test("every technique is spirit, attack and cost times its row, less the defence, with a draw by its square", function()
  local costs = { 4, 8, 16, 24, 32, 42, 50, 60, 80, 160 }
  for row, cost in ipairs(costs) do
    for _, mastered in ipairs { false, true } do
      tough_boss { ["Spirit[0]"] = 17, ["BaseAttack[0]"] = 30, ["WeaponAttack[0]"] = 11, ["BaseAttack[1]"] = 99,
        ["MP[0]"] = 400, ["MaxMP[0]"] = 400, ["WazaUse[" .. row - 1 .. "]"] = mastered and 500 or 0 }
      set("EnemyKind", 0)
      begin_waza(row)
      reckon(0.6875)
      -- Row 0 has a defence of 25.
      local wanted = waza(row, cost, 17, 41, 25, math.floor(0.6875 * 20 * row * row), mastered and mastery or 1)
      expect(get("WazaDamage"), wanted, "technique " .. row)
      expect(get("Battle.Label15(4).Caption"), ("%d"):format(wanted))
      steps.play_to(48)
      tick("Battle.Timer1")
      expect(lost(5), wanted, "once, also against a big enemy")
    end
  end
end)

test("a boss is struck with the defence of the kind that was rolled", function()
  tough_boss {}
  set("EnemyKind", 3)
  begin_waza(1)
  reckon(0)
  expect(get("WazaDamage"), 40 - 20 + 64)
end)

test("a weak attack makes the last technique heal its enemy", function()
  tough_group(1, { ["BaseAttack[0]"] = -200, ["MP[0]"] = 160, ["MaxMP[0]"] = 160 })
  begin_waza(10)
  reckon(0)
  expect(get("WazaDamage"), -9606, "(0 - 200 + 80) * 80 - 6")
  expect(get("Battle.Label15(0).Caption"), "-9606")
  steps.play_to(48)
  tick("Battle.Timer1")
  expect(get("EnemyLife[0]"), 1009606)
end)

test("an attack above 4095 ends the program in a technique", function()
  tough_group(1, { ["BaseAttack[0]"] = 4096 })
  begin_waza(1)
  steps.play_to(24)
  tick("Battle.Timer1")
  expect(error_kind(), "overflow")
end)

test("the last term stands out of the last technique, so an attack of 4096 is fine there", function()
  tough_group(1, { ["BaseAttack[0]"] = 4096, ["MP[0]"] = 160, ["MaxMP[0]"] = 160 })
  begin_waza(10)
  reckon(0)
  expect(get("WazaDamage"), (4096 + 80) * 80 - 6)
end)

test("the number hops 25 pixels up and back in ten frames", function()
  tough_group(1)
  begin_waza(1)
  steps.play_to(24)
  expect(get("Battle.Label15(0).Visible"), false)
  for i, top in ipairs { 135, 128, 123, 120, 119, 120, 123, 128, 135, 144 } do
    tick("Battle.Timer1")
    expect(get("Battle.Label15(0).Top"), top, "frame " .. 24 + 2 * i)
    expect(get("Battle.Label15(0).Visible"), true)
  end
  tick("Battle.Timer1")
  expect(get("Battle.Label15(0).Visible"), false)
  expect(get("Battle.Label15(0).ForeColor"), "FFFFFF")
end)

test("against a big enemy the fifth number hops", function()
  tough_boss {}
  begin_waza(1)
  steps.play_to(34)
  expect(get("Battle.Label15(4).Visible"), true)
  expect(get("Battle.Label15(4).Top"), 192 - 25)
  expect(get("Battle.Label15(0).Visible"), false)
  steps.play_to(46)
  expect(get("Battle.Label15(4).Top"), 192)
  expect(get("Battle.Label15(4).Visible"), false)
end)

test("a skill takes 25 ticks and a healing spell and a thing as many", function()
  tough_group(1, { ["Items[0]"] = 47 })
  set("HP[0]", 9000); set("MaxHP[0]", 9000)
  begin_waza(1)
  expect(run("Battle.Timer1"), 25)
  set("MP[1]", 30)
  begin_magic(3)
  tick("Battle.Timer1", 24)
  expect(get("ActionState"), 48)
  tick("Battle.Timer1")
  expect(get("ActionKind"), 5, "the enemies' turn")
  run("Battle.Timer1")
  begin_item(1, 1)
  expect(run("Battle.Timer1"), 25)
end)

test("a healing spell gives an eighth and a ninth of the maxima and the spirit times the row", function()
  for row, use in pairs { [3] = 50, [8] = 250 } do
    for _, uses in ipairs { use - 1, use } do
      local factor = uses == use and mastery or 1
      tough_group(1, { ["MaxHP[0]"] = 1215, ["MaxHP[1]"] = 917, ["Spirit[1]"] = 21, ["HP[0]"] = 100, ["HP[1]"] = 50,
        ["MP[1]"] = 90, ["MaxMP[1]"] = 90, ["MagicUse[" .. row - 1 .. "]"] = uses })
      begin_magic(row)
      steps.play_to(24)
      expect(get("HP[0]"), 100)
      tick("Battle.Timer1")
      local first = math.floor((151 + 21 * row) * factor)
      local second = math.floor((101 + 21 * row) * factor)
      expect(get("HealAmount[0]"), first, "spell " .. row)
      expect(get("HealAmount[1]"), second, "spell " .. row)
      expect(get("HP[0]"), 100 + first)
      expect(get("HP[1]"), 50 + second)
      expect(get("Battle.Label16(0).Caption"), ("%d"):format(first))
      expect(get("Battle.Label16(1).Caption"), ("%d"):format(second))
    end
  end
end)

test("a mastered healing spell of 10 gives 12, for the factor lies below 1.3", function()
  tough_group(1, { ["MaxHP[0]"] = 80, ["HP[0]"] = 1, ["MaxHP[1]"] = 90, ["HP[1]"] = 1, ["Spirit[1]"] = 0,
    ["MagicUse[2]"] = 50 })
  begin_magic(3)
  steps.play_to(26)
  expect(get("HealAmount[0]"), 12)
  expect(get("HealAmount[1]"), 12)
end)

test("a healing spell at full HP shows what it would give, and HP stays at the maximum", function()
  tough_group(1)
  begin_magic(3)
  steps.play_to(26)
  expect(get("Battle.Label16(0).Caption"), "51", "15 + 36")
  expect(get("Battle.Label16(1).Caption"), "44", "8 + 36")
  expect(get("HP[0]"), 120)
  expect(get("HP[1]"), 80)
end)

test("a healing spell revives at once, and the tab bears the name again", function()
  tough_group(1)
  set("HeroFainted[0]", -1)
  set("HP[0]", 0)
  set("Battle.SSTab1.TabCaption(0)", "気絶")
  begin_magic(3)
  steps.play_to(24)
  expect(get("HeroFainted[0]"), -1)
  tick("Battle.Timer1")
  expect(get("HeroFainted[0]"), 0)
  expect(get("HP[0]"), 51)
  expect((get("Battle.SSTab1.TabCaption(0)"):gsub(" +$", "")), "カイ")
end)

test("a hero revived by a healing spell acts next", function()
  tough_group(1)
  set("HeroFainted[0]", -1)
  set("HP[0]", 0)
  begin_magic(3)
  run("Battle.Timer1")
  expect(get("Battle.SSTab1.Tab"), 0)
  expect(get("Battle.SSTab1.TabEnabled(0)"), true)
  expect(can_click("Battle.Command3"), true)
end)

test("healing numbers are green and hop, and the next hit on the same label is white", function()
  tough_group(1, { ["MP[1]"] = 30 })
  begin_magic(3)
  steps.play_to(24)
  expect(get("Battle.Label16(0).ForeColor"), "FFFFFF")
  for i, move in ipairs { -9, -16, -21, -24, -25, -24, -21, -16, -9, 0 } do
    tick("Battle.Timer1")
    for hero, top in pairs { [0] = 184, [1] = 240 } do
      local label = "Battle.Label16(" .. hero .. ")."
      expect(get(label .. "ForeColor"), "00FF00")
      expect(get(label .. "Visible"), true)
      expect(get(label .. "Top"), top + move, "frame " .. 24 + 2 * i)
    end
  end
  tick("Battle.Timer1")
  expect(get("Battle.Label16(0).Visible"), false)
  expect(get("Battle.Label16(1).Visible"), false)
  expect(get("Battle.Picture9.Visible"), false)
  expect(get("Battle.Label16(0).ForeColor"), "00FF00")
  tick("Battle.Timer1", 2)
  expect(get("Battle.Label16(0).ForeColor"), "FFFFFF")
  expect(get("Battle.Label16(1).ForeColor"), "FFFFFF")
end)

test("heals and things cannot win a battle, a skill can", function()
  tough_group(1, { ["Items[0]"] = 47, ["MP[1]"] = 30 })
  set("EnemyAlive[0]", 0)
  begin_magic(3)
  run("Battle.Timer1")
  expect(get("Battle.Picture10.Visible"), false)
  begin_item(1, 2)
  steps.play_to(48)
  tick("Battle.Timer1")
  expect(get("Battle.Picture10.Visible"), false)

  tough_group(1)
  set("EnemyLife[0]", 98)
  begin_waza(1)
  reckon(0)
  steps.play_to(48)
  expect(get("EnemyAlive[0]"), -1)
  tick("Battle.Timer1")
  expect(get("EnemyLife[0]"), 0)
  expect(get("EnemyAlive[0]"), 0)
  expect(get("Battle.Picture10.Visible"), true)
end)

test("a spell on all fells each whose life runs out, and the battle is won at its end", function()
  tough_group(3, { ["Spirit[1]"] = 12, ["MP[1]"] = 100, ["MaxMP[1]"] = 100 })
  for slot, life in ipairs { 918, 919, 900 } do set("EnemyLife[" .. slot - 1 .. "]", life) end
  begin_magic(4)
  steps.play_to(48)
  tick("Battle.Timer1")
  expect(get("EnemyAlive[0]"), 0, "918 of 918")
  expect(get("EnemyAlive[1]"), -1, "918 of 919")
  expect(get("EnemyLife[1]"), 1)
  expect(get("EnemyAlive[2]"), 0)
  expect(get("Battle.Picture10.Visible"), false)
end)

test("things 47, 48 and 49 give 200 and 20, 500 and 50, 9999 and 999", function()
  for item, gift in pairs { [47] = { 200, 20 }, [48] = { 500, 50 }, [49] = { 9999, 999 } } do
    for hero = 0, 1 do
      tough_group(1, { ["Items[2]"] = item })
      for each = 0, 1 do
        set("MaxHP[" .. each .. "]", 20000); set("MaxMP[" .. each .. "]", 20000)
        set("HP[" .. each .. "]", 11); set("MP[" .. each .. "]", 3)
      end
      begin_item(3, hero + 1)
      steps.play_to(24)
      expect(get("HP[" .. hero .. "]"), 11)
      tick("Battle.Timer1")
      expect(get("HP[" .. hero .. "]"), 11 + gift[1], "thing " .. item)
      expect(get("MP[" .. hero .. "]"), 3 + gift[2], "thing " .. item)
      expect(get("HP[" .. 1 - hero .. "]"), 11)
      expect(get("MP[" .. 1 - hero .. "]"), 3)
      expect(get("Battle.Label16(" .. hero .. ").Caption"), tostring(gift[1]))
      expect(get("Battle.Label16(" .. hero .. ").Visible"), true)
      expect(get("Battle.Label16(" .. hero .. ").ForeColor"), "00FF00")
      expect(get("Battle.Label16(" .. 1 - hero .. ").Visible"), false)
      expect(get("Battle.Label3(" .. hero .. ").Caption"), ("%d/20000"):format(11 + gift[1]))
      steps.play_to(46)
      expect(get("Battle.Label16(" .. hero .. ").Visible"), false)
      steps.play_to(48)
      tick("Battle.Timer1")
      expect(get("Battle.Label16(" .. hero .. ").ForeColor"), "FFFFFF")
    end
  end
end)

test("thing 49 on a hero with 5 of 120 HP shows 9999 and leaves 120", function()
  tough_group(1, { ["Items[0]"] = 49, ["HP[0]"] = 5, ["MP[0]"] = 0 })
  begin_item(1, 1)
  steps.play_to(26)
  expect(get("Battle.Label16(0).Caption"), "9999")
  expect(get("HP[0]"), 120)
  expect(get("MP[0]"), 10)
  expect(get("Battle.Label3(0).Caption"), "120/120")
end)

test("a thing revives, and the tab bears the name again", function()
  tough_group(1, { ["Items[0]"] = 47 })
  set("HeroFainted[1]", -1)
  set("HP[1]", 0)
  set("Battle.SSTab1.TabCaption(1)", "気絶")
  begin_item(1, 2)
  steps.play_to(26)
  expect(get("HeroFainted[1]"), 0)
  expect(get("HP[1]"), 80)
  expect((get("Battle.SSTab1.TabCaption(1)"):gsub(" +$", "")), "リナ")
end)

test("a thing is spent on frame 50 alone, and leaves a hole in the bag", function()
  tough_group(1)
  expect(get("ItemCount"), 3)
  begin_item(2, 1)
  steps.play_to(48)
  expect(get("Items[1]"), 47)
  expect(get("ItemCount"), 3)
  tick("Battle.Timer1")
  expect(get("Items[0]"), 47)
  expect(get("Items[1]"), 99)
  expect(get("Items[2]"), 47)
  expect(get("ItemCount"), 2)
end)

test("any other thing of 47 and above does nothing but is spent", function()
  tough_group(1, { ["Items[0]"] = 50, ["HP[0]"] = 5, ["MP[0]"] = 2 })
  begin_item(1, 1)
  run("Battle.Timer1")
  expect(get("HP[0]"), 5)
  expect(get("MP[0]"), 2)
  expect(get("Items[0]"), 99)
  expect(get("ItemCount"), 2)
end)

test("a thing sounds once and sparkles over its target alone", function()
  for hero, top in pairs { 130, 184 } do
    canvas.group(1)
    canvas.cell(1, 0, "00C000")
    begin_item(1, hero)
    clear_sounds()
    tick("Battle.Timer1", 2)
    local scene = canvas.scene()
    for c = 6, 24, 2 do
      local queue = {}
      for i = 0, 11 do queue[i + 1] = (i * 5 + c) % 16 / 16 end
      random(table.unpack(queue))
      tick("Battle.Timer1")
      expect(random_left(), 0)
      for i = 1, 11, 2 do
        scene:rect(math.floor(queue[i] * 58 + 355), math.floor(queue[i + 1] * 54 + top), 24, 24, "00C000")
      end
      scene:check("hero " .. hero .. ", frame " .. c)
    end
    expect(table.concat(sounds(), "|"), "play snd5 from 0")
    expect(get("Battle.Picture9.Visible"), false, "a thing shows no name")
  end
end)

test("during a skill the hero who acts stands ten pixels out, and walks back at its end", function()
  canvas.group(1)
  canvas.pose("5050E0")
  canvas.pose("E05050", 96, "Battle.Picture3")
  set("EnemyLife[0]", 1000000)
  canvas.begin_waza(1)
  steps.play_to(26)
  local scene = canvas.scene()
  scene:rect(355, 140, 40, 56, "5050E0")
  scene:rect(385, 200, 40, 56, "E05050")
  scene:check("technique")
  steps.play_to(48)
  tick("Battle.Timer1")
  scene = canvas.scene()
  scene:cells(10, 4, 2, 4)
  scene:rect(365, 140, 40, 56, "5050E0")
  scene:rect(385, 200, 40, 56, "E05050")
  for _, spot in ipairs { { 365, 140 }, { 404, 195 }, { 385, 200 }, { 424, 255 }, { 364, 141 }, { 405, 150 } } do
    scene:point(spot[1], spot[2], "at rest")
  end
end)

test("during a spell the second hero stands ten pixels out", function()
  canvas.group(1)
  canvas.pose("5050E0")
  canvas.pose("E05050", 96, "Battle.Picture3")
  set("EnemyLife[0]", 1000000)
  canvas.begin_magic(1)
  steps.play_to(26)
  local scene = canvas.scene()
  scene:rect(365, 140, 40, 56, "5050E0")
  scene:rect(375, 200, 40, 56, "E05050")
  scene:check("spell")
end)

test("spells 3 and 8 ask for no target and are healing, the great ones ask for none either", function()
  for row, kind in pairs { [3] = 6, [8] = 6, [4] = 3, [5] = 3, [6] = 3, [7] = 3, [9] = 3, [10] = 3 } do
    tough_group(2, { ["MP[1]"] = 250, ["MaxMP[1]"] = 250 })
    begin_magic(row)
    expect(get("ActionKind"), kind, "spell " .. row)
    expect(get("Battle.List2.Visible"), false)
    expect(get("Battle.Timer1.Enabled"), true)
  end
end)

test("using a skill raises no counter", function()
  tough_group(1)
  begin_waza(1)
  run("Battle.Timer1")
  begin_magic(1)
  steps.play_to(48)
  tick("Battle.Timer1")
  for skill = 0, 9 do
    expect(get("WazaUse[" .. skill .. "]"), 0)
    expect(get("MagicUse[" .. skill .. "]"), 0)
  end
end)

test("points above 32767 end the program, by a spell and by a thing", function()
  local rich = { ["HP[0]"] = 32000, ["MaxHP[0]"] = 32000, ["Items[0]"] = 49 }
  tough_group(1, rich)
  begin_magic(3)
  steps.play_to(24)
  tick("Battle.Timer1")
  expect(error_kind(), "overflow")
  tough_group(1, rich)
  begin_item(1, 1)
  steps.play_to(24)
  tick("Battle.Timer1")
  expect(error_kind(), "overflow")
end)

test("the spirit times the row is a 16-bit product", function()
  for spirit, kind in pairs { [3000] = false, [4096] = "overflow" } do
    tough_group(1, { ["Spirit[1]"] = spirit, ["MP[1]"] = 60, ["MaxMP[1]"] = 60, ["HP[0]"] = 1, ["HP[1]"] = 1 })
    begin_magic(8)
    steps.play_to(24)
    tick("Battle.Timer1")
    expect(error_kind() or false, kind, "spirit " .. spirit)
  end
end)
