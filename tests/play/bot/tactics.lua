-- What to do in a fight. Each choice is a table: do = "fight", "waza", "magic", "heal" or "item",
-- with n the skill, slot the enemy, item and hero.
local rules = require "bot.rules"
local tactics = { her_margin = 1.5, kept = 1 }

-- What a share of all MP is worth against so many enemies, in shares of their life: one or two are
-- struck down, four are a danger that MP are there for.
local group_price = { 15, 15, 5, 2.5 }
local way_price = 20 -- the same on the way to a dragon, when MP are saved

-- The share of HP below which she heals before his last blow.
local wounded = 0.6

-- The most of all MP that goes into one blow at a dragon. Only the last one is worth any price.
local dearest_blow = 0.122

-- HP at or below which a hero may well fall before the next command.
local function peril(s, hero)
  local most = rules.blow(s, hero)
  local attacks = rules.attacks(s)
  if s.big then
    -- She carries the healing: she is kept safer from two blows in one round.
    return most * ((attacks == 2 and hero == 1) and tactics.her_margin or 1)
  end
  return most * math.ceil(attacks * 0.75)
end

-- Whether one special would fell both.
local function both_in_reach(s)
  return s.boss and s.hp[0] <= rules.special(s, 0) and s.hp[1] <= rules.special(s, 1)
end

-- A hero who is nearly whole gains nothing from healing, however strong the enemy.
local function in_peril(s, hero)
  if s.fainted[hero] then return true end
  return s.hp[hero] < 0.75 * s.max_hp[hero] and (s.hp[hero] <= peril(s, hero) or both_in_reach(s))
end

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
  for item = 47, kept do
    if s.items[item] > 0 and s.hp[hero] + rules.item_hp[item] > need then return item end
  end
  for item = kept, 47, -1 do
    if s.items[item] > 0 then return item end
  end
end

-- The costliest item that a fight is worth: the great ones are for the last dragon.
local function worth_item(s)
  if s.kind == rules.last then return 49 end
  if s.boss then return 48 end
  if s.big then return 0 end
  return s.round > 1 and 48 or 47
end

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
  local price = s.thrift and way_price or group_price[#list]
  local function consider(choice, struck, damage, mp)
    local value = good(s, struck, damage) - price * mp / s.max_mp[hero]
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

-- The skills against one big enemy that are worth their MP: cost, damage, choice, cheapest first,
-- each step up dearer by the MP than the one before.
local function ladder(s, hero)
  local steps = { { cost = 0, damage = math.max(1, rules.plain(s, hero)), choice = { act = "fight", slot = 1 } } }
  local skills = {}
  for n = 1, 10 do
    if hero == 0 and s.waza_known[n] then
      skills[#skills + 1] = { cost = rules.waza_mp[n], damage = rules.waza(s, n), choice = { act = "waza", n = n, slot = 1 } }
    elseif hero == 1 and s.magic_known[n] and n ~= 3 and n ~= 8 then
      skills[#skills + 1] = { cost = rules.magic_mp[n], damage = rules.magic(s, n), choice = { act = "magic", n = n, slot = 1 } }
    end
  end
  while true do
    local last, best, best_slope = steps[#steps], nil, nil
    for _, skill in ipairs(skills) do
      if skill.cost > last.cost and skill.damage > last.damage then
        local slope = (skill.damage - last.damage) / (skill.cost - last.cost)
        if not best or slope > best_slope then best, best_slope = skill, slope end
      end
    end
    if not best then return steps end
    steps[#steps + 1] = best
  end
end

-- What an action does on average when `budget` MP are there for each.
local function with_budget(steps, budget)
  for index = 2, #steps do
    local low, high = steps[index - 1], steps[index]
    if budget < high.cost then
      return low.damage + (high.damage - low.damage) * (budget - low.cost) / (high.cost - low.cost), high
    end
  end
  return steps[#steps].damage, steps[#steps]
end

-- Against one big enemy: the MP are spread over as few rounds as it may fall in, the dearer skills
-- first. `mp` may be more than is there now, when items will bring more.
local function against_one(s, hero, mp, other)
  -- They stay for as long as `s` does.
  s.ladders = s.ladders or {}
  local steps = s.ladders[hero] or ladder(s, hero)
  s.ladders[hero] = steps
  local dearest
  for rounds = 1, 60 do
    local damage, step = with_budget(steps, mp / rounds)
    dearest = step
    if rounds * (damage + other) >= s.life[1] then break end
  end
  local best = steps[1]
  local most = s.boss and s.kind ~= rules.last and s.max_mp[hero] * dearest_blow or math.huge
  for _, step in ipairs(steps) do
    local there = math.min(most, s.mp[hero], dearest.cost)
    if step.cost <= there and (hero == 0 or step.cost <= math.max(0, mp)) then best = step end
  end
  -- The last blow is not dearer than it need be.
  for _, step in ipairs(steps) do
    if step.cost < best.cost and step.damage * 0.95 >= s.life[1] then
      best = step
      break
    end
  end
  return best.choice, best.damage
end

-- MP that a hero may still get from items.
local function mp_to_come(s, hero)
  if hero ~= 0 or not s.boss then return 0 end
  local great = s.kind == rules.last and s.items[49] * s.max_mp[0] * 0.8 or 0
  return great + s.items[48] * 50
end

-- The MP that may go into attacks: she keeps some for healing.
local function to_spend(s, hero)
  if hero == 0 then return s.mp[0] + mp_to_come(s, 0) end
  local spell = s.magic_known[8] and 8 or s.magic_known[3] and 3
  return s.mp[1] - (spell and tactics.kept * rules.magic_mp[spell] or 0)
end

-- What the other hero will do in a round, roughly: she heals in part of them.
local function share(s, hero)
  if s.fainted[hero] then return 0 end
  local _, damage = against_one(s, hero, to_spend(s, hero), 0)
  return hero == 0 and damage or damage * 0.5
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

-- A skill that has never been used is tried out on the next group that nobody is in danger from.
local function new_skill(s, hero)
  if s.thrift or in_peril(s, 0) or in_peril(s, 1) then return nil end
  for n = 1, 10 do
    if hero == 0 and s.waza_known[n] and not s.waza_tried[n] and s.mp[0] >= rules.waza_mp[n] then
      return { act = "waza", n = n, slot = targets(s)[1] }
    end
    if hero == 1 and n ~= 3 and n ~= 8 and s.magic_known[n] and not s.magic_tried[n] and s.mp[1] >= rules.magic_mp[n] then
      return { act = "magic", n = n, slot = targets(s)[1] }
    end
  end
end

local function strike(s, hero)
  if not s.big then return new_skill(s, hero) or against_group(s, hero) end
  return (against_one(s, hero, to_spend(s, hero), share(s, 1 - hero)))
end

local function use(item, hero) return { act = "item", item = item, hero = hero } end

-- The spell with which she heals when his next blow ends the fight anyway and hers does not: a hero who lies down
-- gains nothing from a victory, and the way to the next recovery point is long.
local function heals_last(s)
  if s.acted ~= 1 or s.fainted[0] or not ends(s, 0, strike(s, 0)) then return nil end
  for hero = 0, 1 do
    if s.hp[hero] < wounded * s.max_hp[hero] then return healing(s) end
  end
end

local function her_turn(s)
  local attack = strike(s, 1)
  if ends(s, 1, attack) then return attack end
  local last = heals_last(s)
  if last then return { act = "heal", n = last } end
  if in_peril(s, 0) or in_peril(s, 1) then
    local spell = healing(s)
    if spell then return { act = "heal", n = spell } end
    local hero = in_peril(s, 1) and not s.fainted[1] and 1 or in_peril(s, 0) and 0 or 1
    local item = potion(s, hero, peril(s, hero), worth_item(s))
    if item then return use(item, hero) end
  end
  if s.boss and s.life[1] > 2.5 * share(s, 0) then
    -- The great items bring MP: to herself for healing, to him for his techniques.
    local great = s.kind == rules.last and s.items[49] > 0 and 49
    local small = s.items[48] > 0 and 48
    local spell = s.magic_known[8] and 8 or 3
    if (great or small) and s.mp[1] < rules.magic_mp[spell] then return use(great or small, 1) end
    if not s.fainted[0] then
      if great and s.mp[0] < 0.2 * s.max_mp[0] then return use(great, 0) end
      if small and s.mp[0] < math.min(50, 0.3 * s.max_mp[0]) then return use(small, 0) end
    end
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
  if s.boss and s.life[1] > 2.5 * share(s, 0) then
    -- Without MP his blows are nothing against a dragon.
    if s.kind == rules.last and s.items[49] > 0 and s.mp[0] < 0.2 * s.max_mp[0] then return use(49, 0) end
    if s.items[48] > 0 and s.mp[0] < math.min(50, 0.3 * s.max_mp[0]) then return use(48, 0) end
    if s.kind == 0 and s.items[47] > 0 and s.mp[0] < 8 then return use(47, 0) end
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
