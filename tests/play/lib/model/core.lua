-- A second telling of the rules of a battle. Every value is kept by its name in the program, so that
-- what the program holds can be compared with what it should after every click and every tick.
local tables = require "lib.model.tables"
local scene = require "lib.model.scene"

local Model = {}
Model.__index = Model

local B = "Battle."
local function at(name, index) return name .. "[" .. index .. "]" end
local function of(control, index, property) return B .. control .. "(" .. index .. ")." .. property end
Model.of = of

-- Begins with what the program holds under the names `watched`. The heroes are called `names`, item n
-- is called `items[n]`.
function Model.new(watched, names, items)
  local self = setmetatable({ v = {}, sent = {}, boxes = {}, rows = {}, names = names, items = items }, Model)
  for _, name in ipairs(watched) do self.v[name] = get(name) end
  self:forget_rows()
  self.d = scene.new(self)
  return self
end

function Model:forget_rows()
  for n = 1, 4 do self.rows["List" .. n] = {} end
end

-- The draws of the event to come, in their order.
function Model:draws(queue) self.queue, self.taken = queue, 0 end

function Model:rnd()
  self.taken = self.taken + 1
  return self.queue[self.taken]
end

function Model:play(channel) self.sent[#self.sent + 1] = "play " .. channel .. " from 0" end
function Model:say(command) self.sent[#self.sent + 1] = command end

-- Short ways to the values.
function Model:get(name, index) return self.v[index and at(name, index) or name] end
function Model:put(name, index, value) self.v[at(name, index)] = value end
function Model:tab() return self.v[B .. "SSTab1.Tab"] end
function Model:tab_enabled(tab, on) self.v[B .. "SSTab1.TabEnabled(" .. tab .. ")"] = on end
function Model:tab_caption(tab, text) self.v[B .. "SSTab1.TabCaption(" .. tab .. ")"] = text end
function Model:command(n, on) self.v[B .. "Command" .. n .. ".Enabled"] = on end
function Model:show(control, on) self.v[B .. control .. ".Visible"] = on end
function Model:label(name, index, property, value) self.v[of(name, index, property)] = value end

function Model:open_tab(tab)
  if self:tab() == tab then return end
  self.v[B .. "SSTab1.Tab"] = tab
  self:command(2, tab == 1)
  self:command(3, tab == 0)
end

function Model:list(name) return self.v[B .. name .. ".ListIndex"] end
function Model:clear(name)
  self.rows[name] = {}
  self.v[B .. name .. ".ListIndex"] = -1
end
function Model:row(name, row, text) self.rows[name][row + 1] = text end

function Model:big() return self.v.BossFight == -1 or self.v.LastBossFight == -1 or self.v.EnemyKind == 13 end
function Model:slot() return self:big() and 5 or self:list "List2" end
function Model:short(hero)
  local name = self.names[hero]
  return name .. (" "):rep(6 - utf8.len(name))
end

function Model:set_up()
  local v = self.v
  self.d:opening()
  local first = ({ 3, 8, 13 })[v.Round]
  if first then v.EnemyKind = math.floor(self:rnd() * 5 + first) end
  v.EnemyCount = math.floor(self:rnd() * 4 + 1)
  for i = 0, 4 do self:put("EnemyAlive", i, 0) end
  local row
  if v.BossFight == -1 then row = v.Round - 1
  elseif v.LastBossFight == -1 then row = 18
  elseif v.EnemyKind == 13 then row = 13 end
  if row then
    v.EnemyCount = 1
    self:put("EnemyAlive", 4, -1)
    self:put("EnemyLife", 4, tables.enemies[row][2])
    self.d:side()
    return
  end
  for n = 1, v.EnemyCount do
    self:put("EnemyLife", n - 1, tables.enemies[v.EnemyKind][2])
    self:put("EnemyAlive", n - 1, -1)
    self.d:one(n)
  end
end

-- The screen has come into being anew: `design` holds its controls' values.
function Model:create(design)
  for name, value in pairs(design) do self.v[name] = value end
  self:forget_rows()
  self:command(2, false)
  self:set_up()
end

function Model:enter()
  local v = self.v
  self:open_tab(0)
  self:command(1, true); self:command(4, true); self:command(3, true)
  self:set_up()
  self:status()
  if not (v.EnemyKind == 13 and v.BossFight ~= -1 and v.LastBossFight ~= -1) then self:command(5, false) end
  v[B .. "Timer2.Enabled"] = true
  for hero = 0, 1 do self:tab_caption(hero, self.names[hero]) end
end

function Model:status()
  for hero = 0, 1 do
    self:put("Attack", hero, self:get("WeaponAttack", hero) + self:get("BaseAttack", hero))
    self:put("Defence", hero, self:get("ArmourDefence", hero) + self:get("BaseDefence", hero))
    local hp, mp = self:get("HP", hero), self:get("MP", hero)
    local max_hp, max_mp = self:get("MaxHP", hero), self:get("MaxMP", hero)
    if hp < 0 then hp = 0 end
    if hp > max_hp then hp = max_hp end
    if mp > max_mp then mp = max_mp end
    self:put("HP", hero, hp)
    self:put("MP", hero, mp)
    self:label("Label12", hero, "Caption", tostring(self:get("Level", hero)))
    self:label("Label3", hero, "Caption", hp .. "/" .. max_hp)
    self:label("Label4", hero, "Caption", mp .. "/" .. max_mp)
    self:label("Label8", hero, "Caption", tostring(self:get("Attack", hero)))
    self:label("Label9", hero, "Caption", tostring(self:get("Defence", hero)))
    self:label("Label10", hero, "Caption", tostring(self:get("Spirit", hero)))
  end
end

-- The window's own close.
function Model:close()
  self.v.ActionKind, self.v.ActionState, self.v.FieldFrame = 0, 0, 0
  self.v[B .. "Visible"] = false
  self.closed = true
end

-- Compares all that the program holds; of a closed screen only what is not its own.
function Model:check(note)
  for name, wanted in pairs(self.v) do
    local found = self.closed and name:find "^Battle" and wanted or get(name)
    if name:find("Picture1.", 1, true) then expect_near(found, wanted, 1e-6, note .. ": " .. name)
    else expect(found, wanted, note .. ": " .. name) end
  end
  for _, list in ipairs(self.closed and {} or { "List1", "List2", "List3", "List4" }) do
    expect(get(B .. list .. ".ListCount"), #self.rows[list], note .. ": " .. list)
    for row, text in ipairs(self.rows[list]) do
      expect(get(B .. list .. ".List(" .. row - 1 .. ")"), text, note .. ": " .. list)
    end
  end
end

require "lib.model.commands"(Model)
require "lib.model.frames"(Model)
require "lib.model.damage"(Model)
require "lib.model.enemies"(Model)
require "lib.model.victory"(Model)

return Model
