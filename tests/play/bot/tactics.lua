-- What to do in a fight. Each choice is a table: do = "fight", "waza", "magic", "heal" or "item",
-- with n the skill, slot the enemy, item and hero.
local rules = require "bot.rules"
local tactics = {}

-- HP at or below which a hero may fall before the next command.
local function peril(s, hero)
  local most = rules.blow(s, hero)
  local attacks = rules.attacks(s)
  if s.big then
    -- She carries the healing: she is kept safe from two blows in one round.
    local blows = (attacks == 2 and hero == 1) and 2 or 1
    return math.max(most * blows, rules.special(s, hero))
  end
  return most * math.ceil(attacks * 0.75)
end

local function in_peril(s, hero) return s.fainted[hero] or s.hp[hero] <= peril(s, hero) end

-- The healing spell that does, or nil.
local function healing(s)
  local best
  for _, n in ipairs { 3, 8 } do
    if s.magic_known[n] and s.mp[1] >= rules.magic_mp[n] then
      if not best then
        best = n
      else
        local worth = function(k)
          local sum = 0
          for hero = 0, 1 do sum = sum + math.min(rules.heal(s, k, hero), s.max_hp[hero] - s.hp[hero]) end
          return sum
        end
        if worth(8) > worth(3) * 1.2 then best = 8 end
      end
    end
  end
  return best
end

-- An item that lifts a hero above a need; the smallest that does, else the greatest.
local function potion(s, hero, need, kept)
  for item = 47, 49 do
    if s.items[item] > 0 and item <= (kept or 49) and s.hp[hero] + rules.item_hp[item] > need then return item end
  end
  for item = kept or 49, 47, -1 do
    if s.items[item] > 0 then return item end
  end
end

-- The costliest item that a fight is worth: the great ones are for dragons.
local function worth_item(s) return s.boss and 49 or s.big and 48 or 47 end

local function targets(s)
  local list = {}
  if s.big then return { 1 } end
  for slot = 1, s.count do
    if s.life[slot] > 0 then list[#list + 1] = slot end
  end
  return list
end

-- How much good a blow of `damage` on `list` does: shares of life, kills counting extra.
local function good(s, list, damage)
  local sum = 0
  for _, slot in ipairs(list) do
    if damage >= s.life[slot] then
      sum = sum + 0.7 + s.life[slot] / s.enemy[1]
    else
      sum = sum + math.max(0, damage) / s.enemy[1]
    end
  end
  return sum
end

-- Against a group: the most good for the least share of MP.
local function against_group(s, hero)
  local best, best_value
  local list = targets(s)
  local function consider(choice, struck, damage, mp)
    local value = good(s, struck, damage) - (s.thrift and 5 or 1.3) * mp / s.max_mp[hero]
    -- Strike where others have struck before.
    if #struck == 1 then value = value + 0.05 * (1 - s.life[struck[1]] / s.enemy[1]) end
    if not best or value > best_value then best, best_value = choice, value end
  end
  for _, slot in ipairs(list) do
    consider({ act = "fight", slot = slot }, { slot }, rules.plain(s, hero), 0)
    for n = 1, 10 do
      if hero == 0 and s.waza_known[n] and s.mp[0] >= rules.waza_mp[n] then
        consider({ act = "waza", n = n, slot = slot }, { slot }, rules.waza(s, n), rules.waza_mp[n])
      end
      if hero == 1 and n <= 2 and s.magic_known[n] and s.mp[1] >= rules.magic_mp[n] then
        consider({ act = "magic", n = n, slot = slot }, { slot }, rules.magic(s, n), rules.magic_mp[n])
      end
    end
  end
  if hero == 1 then
    for n = 4, 10 do
      if n ~= 8 and s.magic_known[n] and s.mp[1] >= rules.magic_mp[n] then
        consider({ act = "magic", n = n }, list, rules.magic(s, n), rules.magic_mp[n])
      end
    end
  end
  return best
end

-- Against one big enemy: the skill with which it falls in the fewest rounds, if it is used as long
-- as the MP last and the other hero does `other` a round.
local function against_one(s, hero, mp, other)
  local plain = math.max(1, rules.plain(s, hero))
  local best, best_rounds, best_cost = { act = "fight", slot = 1 }, s.life[1] / (plain + other), 0
  for n = 1, 10 do
    local known = hero == 0 and s.waza_known[n] or hero == 1 and s.magic_known[n] and n ~= 3 and n ~= 8
    local cost = hero == 0 and rules.waza_mp[n] or rules.magic_mp[n]
    if known and mp >= cost then
      local damage = hero == 0 and rules.waza(s, n) or rules.magic(s, n)
      local casts = mp // cost
      local rounds
      if casts * (damage + other) >= s.life[1] then
        rounds = math.ceil(s.life[1] / (damage + other))
      else
        rounds = casts + (s.life[1] - casts * (damage + other)) / (plain + other)
      end
      if rounds < best_rounds - 0.01 or (rounds < best_rounds + 0.01 and cost < best_cost) then
        best, best_rounds, best_cost = { act = hero == 0 and "waza" or "magic", n = n, slot = 1 }, rounds, cost
      end
    end
  end
  return best
end

-- What the other hero will do in a round, roughly.
local function share(s, hero)
  if s.fainted[hero] then return 0 end
  if hero == 0 then
    local choice = against_one(s, 0, s.mp[0], 0)
    return choice.act == "waza" and rules.waza(s, choice.n) or rules.plain(s, 0)
  end
  local choice = against_one(s, 1, s.mp[1], 0)
  return choice.act == "magic" and rules.magic(s, choice.n) * 0.6 or math.max(0, rules.plain(s, 1))
end

-- Whether a choice ends the fight.
local function ends(s, hero, choice)
  if not choice then return false end
  local damage = choice.act == "fight" and rules.plain(s, hero) or choice.act == "waza" and rules.waza(s, choice.n)
      or rules.magic(s, choice.n)
  local list = targets(s)
  if choice.slot and #list > 1 then return false end
  for _, slot in ipairs(list) do
    if s.life[slot] > damage * 0.97 then return false end
  end
  return true
end

local function strike(s, hero)
  if not s.big then return against_group(s, hero) end
  local mp = s.mp[hero]
  if hero == 1 and (s.magic_known[3] or s.magic_known[8]) then
    mp = mp - 2 * rules.magic_mp[s.magic_known[8] and 8 or 3] -- kept for healing
  end
  return against_one(s, hero, mp, share(s, 1 - hero))
end

local function use(item, hero) return { act = "item", item = item, hero = hero } end

local function her_turn(s)
  local attack = strike(s, 1)
  if ends(s, 1, attack) then return attack end
  if in_peril(s, 0) or in_peril(s, 1) then
    local spell = healing(s)
    if spell then return { act = "heal", n = spell } end
    local hero = in_peril(s, 1) and not s.fainted[1] and 1 or in_peril(s, 0) and 0 or 1
    local item = potion(s, hero, peril(s, hero), worth_item(s))
    if item then return use(item, hero) end
  end
  if s.boss and s.life[1] > 3 * (share(s, 0) + rules.plain(s, 1)) then
    -- The great items bring MP: to herself for healing, to him for his techniques.
    local great = s.items[49] > 0 and 49 or s.items[48] > 0 and s.max_mp[0] < 250 and 48
    if great and s.mp[1] < 0.25 * s.max_mp[1] and s.mp[1] < 2 * rules.magic_mp[s.magic_known[8] and 8 or 3] then
      return use(great, 1)
    end
    if great and s.mp[0] < 0.25 * s.max_mp[0] and not s.fainted[0] then return use(great, 0) end
  end
  return attack
end

local function his_turn(s)
  local attack = strike(s, 0)
  if ends(s, 0, attack) then return attack end
  local she_heals = not s.fainted[1] and healing(s)
  if not she_heals then
    local hero = (s.fainted[1] or in_peril(s, 1)) and 1 or in_peril(s, 0) and 0
    if hero then
      local item = potion(s, hero, peril(s, hero), worth_item(s))
      if item then return use(item, hero) end
    end
  end
  return attack
end

function tactics.choose(s, hero)
  if hero == 1 then return her_turn(s) end
  return his_turn(s)
end

-- Who goes first when both may: she, when she means to heal.
function tactics.first(s)
  if s.fainted[0] then return 1 end
  if s.fainted[1] then return 0 end
  return (in_peril(s, 0) or in_peril(s, 1)) and 1 or 0
end

return tactics
