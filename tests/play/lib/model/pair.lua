-- A program and its model, side by side: each event goes to both, then all that they hold is compared.
local steps = require "lib.steps"
local things = require "lib.things"
local Model = require "lib.model.core"
local chance = require "lib.model.chance"
local sheets = require "lib.model.sheets"
local watched = require "lib.model.watched"

local Pair = {}
Pair.__index = Pair

local names = { [0] = "カイ", "リナ" }

-- A fresh game on the field.
function Pair.new()
  local self = setmetatable({}, Pair)
  prepare()
  things.write()
  start { keep = true }
  self.design = {}
  for _, name in ipairs(watched) do
    if name:find "^Battle" then self.design[name] = get(name) end
  end
  for hero = 0, 1 do self.design["Battle.SSTab1.TabCaption(" .. hero .. ")"] = names[hero] end
  steps.enter_names()
  for _ = 1, 20 do click("Main.Picture1") end
  local items = {}
  for n = 1, 50 do items[n] = steps.padded(("Thing %02d"):format(n), 20) end
  self.model = Model.new(watched, names, items)
  self.boxes = #boxes()
  sheets.paint()
  return self
end

function Pair:compare(note)
  local m = self.model
  if not m.wiped then
    expect(error_text() or "no error", "no error", note)
    expect(random_left(), chance.queue_length - m.taken, note .. ": draws left")
    m:check(note)
    if m.v["Battle.Visible"] then m.d:check(note) end
  end
  expect(table.concat(sounds(), "|"), table.concat(m.sent, "|"), note .. ": sounds")
  local shown = boxes()
  expect(#shown, self.boxes + #m.boxes, note .. ": boxes")
  for i, text in ipairs(m.boxes) do expect(shown[self.boxes + i].text, text, note) end
  self.boxes = #shown
end

-- `model_step` and `program_step` are the same event. `options.first_draw` dictates a draw,
-- `options.any_sounds` leaves the sounds out of the comparison.
function Pair:act(note, model_step, program_step, options)
  local queue, m = chance.queue(), self.model
  options = options or {}
  queue[1] = options.first_draw or queue[1]
  m:draws(queue)
  m.sent, m.boxes = {}, {}
  model_step()
  for _ = 1, #m.boxes do answer("OK") end
  random_clear()
  random(table.unpack(queue))
  clear_sounds()
  program_step()
  if options.any_sounds then clear_sounds() end
  self:compare(note)
end

-- From the field into a fight against what `chance` names.
function Pair:enter()
  local m = self.model
  local v = m.v
  steps.flatten()
  chance.fight(v)
  chance.party(v)
  for column = 0, 30 do
    for row = 0, 16 do set(("MapTile[%d][%d]"):format(column, row), v.TileHere) end
  end
  for name, value in pairs(v) do
    if not name:find "^Battle" then set(name, value) end
  end
  local dragon, last = v.BossFight == -1, v.LastBossFight == -1
  set("StoryNo", 21)
  set("MapA", dragon and 4 or 3)
  set("MapB", dragon and 1 or 3)
  steps.put(dragon and 228 or last and 228 or 100, dragon and 100 or last and 40 or 100)
  set("Main.Timer3.Enabled", false)
  set("Main.Timer1.Enabled", true)
  local created = m.closed
  self:act(("entering round %d, %d, %d"):format(v.Round, v.BossFight, v.LastBossFight), function()
    m:rnd()
    if created then m:create(self.design) end
    m.closed = false
    v["Battle.Visible"] = true
    v.FieldFrame = v.FieldFrame + 1
    m:enter()
    if created then m.d:forget() end
  end, function()
    key_down("Right")
    tick("Main.Timer1")
    key_up("Right")
    expect(active(), "Battle")
    if created then sheets.paint() end
  end, { first_draw = (dragon or last) and 0 or steps.encounter, any_sounds = true })
end

return Pair
