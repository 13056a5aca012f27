-- A fight on the screen, played with the buttons and lists that a player has.
local rules = require "bot.rules"
local tactics = require "bot.tactics"
local forecast = require "bot.forecast"
local fight = {}

-- Raised when the party has been wiped out.
fight.wiped_out = {}

-- The state of the party, and of the fight if one stands.
function fight.look()
  local s = { hp = {}, max_hp = {}, mp = {}, max_mp = {}, attack = {}, defence = {}, spirit = {}, level = {},
    fainted = {}, waza_known = {}, magic_known = {}, waza_tried = {}, magic_tried = {}, waza_mastered = {},
    magic_mastered = {}, items = {}, round = get("Round") }
  for hero = 0, 1 do
    local at = "[" .. hero .. "]"
    s.hp[hero], s.max_hp[hero] = get("HP" .. at), get("MaxHP" .. at)
    s.mp[hero], s.max_mp[hero] = get("MP" .. at), get("MaxMP" .. at)
    s.attack[hero] = get("BaseAttack" .. at) + get("WeaponAttack" .. at)
    s.defence[hero] = get("BaseDefence" .. at) + get("ArmourDefence" .. at)
    s.spirit[hero], s.level[hero] = get("Spirit" .. at), get("Level" .. at)
    s.fainted[hero] = get("HeroFainted" .. at) ~= 0
  end
  for n = 1, 10 do
    local at = "[" .. (n - 1) .. "]"
    s.waza_known[n], s.magic_known[n] = get("WazaKnown" .. at) ~= 0, get("MagicKnown" .. at) ~= 0
    s.waza_tried[n], s.magic_tried[n] = get("WazaUse" .. at) > 0, get("MagicUse" .. at) > 0
    s.waza_mastered[n] = get("WazaUse" .. at) >= rules.master[n]
    s.magic_mastered[n] = get("MagicUse" .. at) >= rules.master[n]
  end
  for item = 47, 49 do s.items[item] = 0 end
  for slot = 0, 19 do
    local item = get("Items[" .. slot .. "]")
    if s.items[item] then s.items[item] = s.items[item] + 1 end
  end
  return s
end

local function see_enemies(s)
  local boss, last = get("BossFight") ~= 0, get("LastBossFight") ~= 0
  s.boss = boss or last
  s.kind = boss and s.round - 1 or last and rules.last or get("EnemyKind")
  s.big = s.boss or s.kind == rules.bone
  s.enemy = rules.enemies[s.kind]
  s.count, s.life, s.carried = get("EnemyCount"), {}, get("EnemyTurns")
  if s.big then
    s.count, s.life[1] = 1, get("EnemyLife[4]")
  else
    for slot = 1, s.count do
      s.life[slot] = get("EnemyAlive[" .. (slot - 1) .. "]") ~= 0 and get("EnemyLife[" .. (slot - 1) .. "]") or 0
    end
  end
  return s
end

local function slot_of(item)
  for slot = 0, 19 do
    if get("Items[" .. slot .. "]") == item then return slot end
  end
end

local function act(choice, log)
  if choice.act == "fight" then
    click("Battle.Command1")
    choose("Battle.List2", choice.slot)
  elseif choice.act == "item" then
    click("Battle.Command4")
    choose("Battle.List3", slot_of(choice.item) + 1)
    choose("Battle.List4", choice.hero + 1)
    log:item(choice.item)
  else
    click(choice.act == "waza" and "Battle.Command3" or "Battle.Command2")
    choose("Battle.List1", choice.n)
    if choice.act == "waza" or choice.n <= 2 then choose("Battle.List2", choice.slot) end
    log:skill(choice.act == "waza" and "waza" or "magic", choice.n)
  end
  run("Battle.Timer1")
end

-- The bone dragon alone can be fled from. It is fought when that will likely go well, as one may
-- still flee when it does not.
local function flees(s, opening)
  if s.kind ~= rules.bone or s.boss then return false end
  if opening then
    local odds, rounds = forecast.odds(s, rules.bone, s.round, 8)
    return odds < 0.75 or rounds > 12
  end
  return s.fainted[0] or s.fainted[1]
end

-- Plays the fight on the screen to its end.
function fight.play(log)
  local opening, rounds, acted = true, 1, 0
  while active() == "Battle" do
    if get("Battle.Picture10.Visible") then
      log:won(rounds)
      click("Battle.Picture1")
      return
    end
    local s = see_enemies(fight.look())
    s.thrift, s.acted = log.thrift, get("HeroesActed")
    if opening then log:met(s) end
    if flees(s, opening) then
      click("Battle.Command5")
      log:ran()
      return
    end
    opening = false
    local hero = get("Battle.SSTab1.Tab")
    local first = tactics.first(s)
    if first ~= hero and not s.fainted[first] and get("HeroesActed") == 0 then
      tab("Battle.SSTab1", first)
      hero = first
    end
    local before = get("HeroesActed")
    if before == 0 or (s.fainted[0] or s.fainted[1]) then
      if acted > 0 then rounds = rounds + 1 end
    end
    acted = acted + 1
    act(tactics.choose(s, hero), log)
    if ended() then
      log:lost(rounds)
      error(fight.wiped_out)
    end
  end
end

return fight
