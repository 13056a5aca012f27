-- Parties, fights and draws picked at random.
local tables = require "lib.model.tables"
local chance = {}

chance.queue_length = 40

-- Values that single precision holds exactly.
function chance.queue()
  local queue = {}
  for i = 1, chance.queue_length do queue[i] = math.random(0, 1023) / 1024 end
  return queue
end

local things = { 47, 48, 49, 50, 47, 99, 99, 12, 46 }

-- Writes a party into `v`.
function chance.party(v)
  for hero = 0, 1 do
    local function put(name, value) v[name .. "[" .. hero .. "]"] = value end
    local max_hp, max_mp = math.random(40, 4000), math.random(0, 600)
    put("MaxHP", max_hp)
    put("HP", math.random(1, max_hp))
    put("MaxMP", max_mp)
    put("MP", math.random(0, max_mp))
    put("Level", math.random(1, 60))
    put("Exp", math.random(0, 200000))
    put("BookSkill", math.random(0, 10))
    put("BaseDefence", math.random(0, 300))
    for _, name in ipairs { "BaseAttack", "WeaponAttack", "ArmourDefence", "Spirit" } do put(name, math.random(0, 150)) end
  end
  for i = 0, 9 do
    v["WazaKnown[" .. i .. "]"] = math.random() < 0.8 and -1 or 0
    v["MagicKnown[" .. i .. "]"] = math.random() < 0.8 and -1 or 0
    v["WazaUse[" .. i .. "]"] = tables.wazas[i + 1][2] + math.random(-10, 10)
    v["MagicUse[" .. i .. "]"] = tables.magics[i + 1][2] + math.random(-10, 10)
  end
  for i = 0, 19 do v["Items[" .. i .. "]"] = things[math.random(#things)] end
end

-- Writes a kind of fight into `v`, and now and then what an earlier battle may have left.
function chance.fight(v)
  local kind = math.random(10)
  v.Round, v.BossFight, v.LastBossFight, v.LastBossDown = math.random(3), kind <= 3 and -1 or 0, 0, 0
  if kind == 4 then v.Round, v.LastBossFight = 4, -1 end
  if kind == 5 then v.Round = 4 end
  v.TileHere = math.random(2) == 1 and 13 or 7
  if math.random(6) == 1 then v.EnemyTurns = math.random(2) end
  if math.random(10) == 1 then v.HeroesActed = math.random(2) end
end

return chance
