-- What a player learns of the game's numbers: what an action does on average, and what the
-- enemies can do at worst. `s` is the state of a fight as `fight.look` takes it.
local rules = {}

rules.waza_mp = { 4, 8, 16, 24, 32, 42, 50, 60, 80, 160 }
rules.magic_mp = { 10, 16, 30, 48, 56, 70, 80, 60, 120, 250 }
rules.master = { 20, 30, 50, 100, 150, 180, 200, 250, 300, 500 }
rules.item_hp = { [47] = 200, [48] = 500, [49] = 9999 }
rules.item_mp = { [47] = 20, [48] = 50, [49] = 999 }

-- The rows of the enemy table: HP, attack, defence, experience.
rules.enemies = {
  [0] = { 7000, 70, 25, 10000 }, { 23000, 150, 50, 20000 }, { 55000, 300, 120, 30000 },
  { 280, 7, 10, 62 }, { 230, 10, 3, 54 }, { 200, 8, 5, 50 }, { 220, 11, 4, 58 }, { 300, 13, 1, 74 },
  { 1250, 38, 25, 236 }, { 1400, 32, 20, 203 }, { 1300, 45, 15, 227 }, { 1180, 35, 30, 231 },
  { 1130, 30, 35, 220 }, { 42000, 260, 150, 15000 }, { 4000, 75, 45, 752 }, { 4200, 92, 30, 800 },
  { 4720, 100, 35, 848 }, { 5060, 108, 40, 891 }, { 150000, 350, 200, 0 },
}
rules.bone, rules.last = 13, 18

local function factor(mastered) return mastered and 1.3 or 1 end

function rules.plain(s, hero)
  return s.attack[hero] * 10 - s.enemy[3] * 2 + s.level[hero] * 2.5
end

function rules.waza(s, n)
  local base = s.spirit[0] // 2 + s.attack[0] + rules.waza_mp[n] / 2
  local strength = base * factor(s.waza_mastered[n]) * n * (n == 10 and 8 or 4) - s.enemy[3] * 2 + 10 * n * n
  return n == 10 and strength or strength + s.attack[0] * 8
end

-- Per enemy struck; a spell with a target takes its damage twice on a single big enemy.
function rules.magic(s, n)
  local value = (rules.magic_mp[n] + s.spirit[1] / 2 + s.level[1] / 10) * factor(s.magic_mastered[n]) * (n * 3 + 5)
  return s.big and n <= 2 and value * 2 or value
end

function rules.heal(s, n, hero)
  return math.floor((s.max_hp[hero] // (hero == 0 and 8 or 9) + s.spirit[1] * n) * factor(s.magic_mastered[n]))
end

-- One plain enemy attack at its strongest and on average.
function rules.blow(s, hero)
  local least = 2 * s.enemy[2] - s.defence[hero] // 2
  return math.max(0, least + 9 * s.round), math.max(0, least + 4.5 * s.round)
end

-- The bosses' special: its most, or 0.
function rules.special(s, hero)
  if s.kind == 1 then return hero == 0 and 399 or 389 end
  if s.kind == 2 then return hero == 0 and 899 or 799 end
  if s.kind == rules.last then return hero == 0 and 1299 or 1199 end
  return 0
end

-- How many plain attacks come in the next enemy phase.
function rules.attacks(s)
  if s.kind == 0 or s.kind == 1 then return 1 end
  if s.big then return 2 end
  local count = s.carried or 0
  for slot = 1, s.count do
    if s.life[slot] > 0 then count = count + 1 end
  end
  return count
end

return rules
