-- Ways into an enemy phase.
local steps = require "lib.steps"

local function caption(hero) return steps.trimmed(get("Battle.SSTab1.TabCaption(" .. hero .. ")")) end

-- Both heroes have struck messengers of the moon (attack 7); their first attack is to come.
local function phase(count)
  steps.arena()
  steps.battle_with(3, count or 1)
  steps.to_enemy_phase()
end

-- The same against the dragon of a round, whose special is decided by `roll`.
local function dragon_phase(round, roll)
  steps.arena(round)
  steps.strengthen()
  steps.boss()
  steps.to_enemy_phase((roll + 0.5) / 5)
end

local function last_phase(roll)
  steps.arena()
  steps.strengthen()
  steps.last_boss()
  steps.to_enemy_phase((roll + 0.5) / 5)
end

return {
  caption = caption,
  phase = phase,
  dragon_phase = dragon_phase,
  last_phase = last_phase,
}
