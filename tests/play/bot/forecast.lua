-- A player's guess whether a fight can be won: the fight played in the head a few times, with the
-- numbers known from fights before. It draws from Lua's own generator, never from the game's.
local rules = require "bot.rules"
local tactics = require "bot.tactics"
local forecast = {}

local function copied(t)
  local copy = {}
  for key, value in pairs(t) do copy[key] = value end
  return copy
end

-- The state of a fight that is yet to come, against row `kind`; the heroes as they are, or rested.
function forecast.against(s, kind, round, rested)
  local f = copied(s)
  f.kind, f.enemy, f.big, f.boss, f.round = kind, rules.enemies[kind], true, kind ~= rules.bone, round
  f.count, f.life, f.carried = 1, { rules.enemies[kind][1] }, 0
  f.hp, f.mp = copied(rested and s.max_hp or s.hp), copied(rested and s.max_mp or s.mp)
  f.items = copied(s.items)
  f.fainted = { [0] = false, false }
  f.ladders = nil  -- they were for another enemy
  return f
end

local random = math.random

local function act(f, hero, choice)
  if choice.act == "item" then
    local item, who = choice.item, choice.hero
    f.items[item] = f.items[item] - 1
    f.hp[who] = math.min(f.max_hp[who], f.hp[who] + rules.item_hp[item])
    f.mp[who] = math.min(f.max_mp[who], f.mp[who] + rules.item_mp[item])
    f.fainted[who] = false
  elseif choice.act == "heal" then
    f.mp[1] = f.mp[1] - rules.magic_mp[choice.n]
    for who = 0, 1 do
      f.hp[who] = math.min(f.max_hp[who], f.hp[who] + rules.heal(f, choice.n, who))
      f.fainted[who] = false
    end
  elseif choice.act == "waza" then
    f.mp[0] = f.mp[0] - rules.waza_mp[choice.n]
    f.life[1] = f.life[1] - rules.waza(f, choice.n) - (random() - 0.5) * 20 * choice.n ^ 2
  elseif choice.act == "magic" then
    f.mp[1] = f.mp[1] - rules.magic_mp[choice.n]
    f.life[1] = f.life[1] - rules.magic(f, choice.n)
  else
    f.life[1] = f.life[1] - rules.plain(f, hero) - (random() - 0.5) * f.level[hero] * 5
  end
end

local function hurt(f, who, damage)
  f.hp[who] = math.max(0, f.hp[who] - damage)
  if f.hp[who] == 0 then f.fainted[who] = true end
end

local function enemy_phase(f)
  if f.kind ~= 0 and f.kind ~= rules.bone and random(5) == 1 then
    for who = 0, 1 do hurt(f, who, rules.special(f, who) - random(0, f.kind == rules.last and 99 or 49)) end
    return
  end
  for _ = 1, rules.attacks(f) do
    local roll = random(0, 9)
    local most = rules.blow(f, roll % 2)
    hurt(f, roll % 2, math.max(0, most - (9 - roll) * f.round))
  end
end

-- One fight: whether it is won, and in how many rounds.
local function play(f)
  for round = 1, 80 do
    f.acted = 0
    local first = tactics.first(f)
    -- With one down at its beginning a round has one action, even if that one is raised by it.
    for turn = 0, (f.fainted[0] or f.fainted[1]) and 0 or 1 do
      local hero = turn == 0 and first or 1 - first
      if not f.fainted[hero] then
        act(f, hero, tactics.choose(f, hero))
        if f.life[1] <= 0 then return true, round end
        f.acted = 1
      end
    end
    enemy_phase(f)
    if f.fainted[0] and f.fainted[1] then return false, round end
  end
  return false, 80
end

-- The share of `count` fights that are won, and their rounds on average.
function forecast.odds(s, kind, round, count, rested)
  local won, rounds = 0, 0
  for _ = 1, count do
    local win, took = play(forecast.against(s, kind, round, rested))
    if win then won, rounds = won + 1, rounds + took end
  end
  return won / count, won > 0 and rounds / won or 80
end

return forecast
