local steps = require "lib.steps"
local skills = require "lib.skills"

local mastery, tough_group, tough_boss, begin_waza = skills.mastery, skills.tough_group, skills.tough_boss, skills.begin_waza
local reckon, lost = skills.reckon, skills.lost

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
