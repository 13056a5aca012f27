-- Battles to be won one after another.
local steps = require "lib.steps"

local function shown(name) return get("Battle." .. name .. ".Visible") end
local function text(name) return get("Battle." .. name .. ".Caption") end

-- A battle of `count` enemies of a kind, with the record prepared by `prepare_record`.
local function group(kind, count, prepare_record)
  steps.arena((kind - 3) // 5 + 1)
  if prepare_record then prepare_record() end
  steps.battle_with(kind, count)
end

-- The next battle on the same field.
local function next_group(kind, count)
  steps.flatten()
  steps.put(100, 100)
  set("Round", (kind - 3) // 5 + 1)
  steps.battle_with(kind, count)
end

return {
  shown = shown,
  text = text,
  group = group,
  next_group = next_group,
}
