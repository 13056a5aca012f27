-- What stands on the command side of the battle.
local steps = require "lib.steps"

local function rows(list)
  local found = {}
  for i = 0, get("Battle." .. list .. ".ListCount") - 1 do found[i + 1] = get(("Battle.%s.List(%d)"):format(list, i)) end
  return found
end

local function expect_rows(list, wanted)
  local found = rows(list)
  expect(#found, #wanted, list)
  for i, text in ipairs(wanted) do expect(found[i], text, list .. " row " .. i - 1) end
end

local function enabled(...)
  local wanted = { false, false, false, false }
  for _, n in ipairs { ... } do wanted[n] = true end
  for n = 1, 4 do expect(get("Battle.Command" .. n .. ".Enabled"), wanted[n], "Command" .. n) end
end

local function tabs(first, second)
  expect(get("Battle.SSTab1.TabEnabled(0)"), first, "first tab")
  expect(get("Battle.SSTab1.TabEnabled(1)"), second, "second tab")
end

local function visible(list)
  for _, each in ipairs { "List1", "List2", "List3", "List4" } do
    expect(get("Battle." .. each .. ".Visible"), each == list, each)
  end
end

local function refused(text)
  local box = boxes()[#boxes()]
  expect(box.text, text)
  expect(box.title, "警告")
  expect(box.buttons, "OK")
  steps.state { HeroesActed = 0, ["Battle.Timer1.Enabled"] = false }
end

local spider = steps.padded("スッパイダー", 16)

-- A battle against spiders; both heroes know everything and can pay for it.
local function skilled(count)
  steps.arena()
  steps.learn_all()
  steps.battle_with(6, count or 4)
  steps.strengthen()
end

return {
  expect_rows = expect_rows,
  enabled = enabled,
  tabs = tabs,
  visible = visible,
  refused = refused,
  spider = spider,
  skilled = skilled,
}
