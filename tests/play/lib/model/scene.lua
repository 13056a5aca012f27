-- The scene of a battle as rectangles, each over the ones before it; a colour of nil is anything.
local sheets = require "lib.model.sheets"

local Scene = {}
Scene.__index = Scene

function Scene.new(model) return setmetatable({ m = model, rects = {} }, Scene) end

-- Nothing is known of what stands there.
function Scene:forget() self.rects = {} end

-- What lies under it with all its points is gone.
function Scene:rect(x, y, width, height, colour)
  local right, bottom = x + width, y + height
  if x <= 0 and y <= 0 and right >= 432 and bottom >= 264 then self:forget() end
  local seen = {}
  for _, rect in ipairs(self.rects) do
    local covered = rect[1] >= x and rect[2] >= y and rect[3] <= right and rect[4] <= bottom
    if not covered then seen[#seen + 1] = rect end
  end
  seen[#seen + 1] = { x, y, right, bottom, colour }
  self.rects = seen
end

-- A white circle's outline.
function Scene:ring(x, y, radius)
  local out = radius + 2
  self.rects[#self.rects + 1] = { x - out, y - out, x + out, y + out, ring = radius }
end

function Scene:effect(column, row, x, y, size) self:rect(x, y, size, size, sheets.effect(column, row)) end

function Scene:under()
  if self.m.v.LastBossFight == -1 then return sheets.lair end
  local tile = self.m.v.TileHere
  return sheets.ground[tile == 13 or tile == 14 or tile == 19 or tile == 234]
end

function Scene:background() self:rect(0, 0, 432, 264, self:under()) end
function Scene:cells(column, row, w, h) self:rect(36 * column, 33 * row, 36 * w, 33 * h, self:under()) end

-- Heroes -----------------------------------------------------------------------------------------

local home = { [0] = { 365, 140 }, { 385, 200 } }

function Scene:hero(hero, x, column) self:rect(x, home[hero][2], 40, 56, sheets.heroes[hero][column or 0]) end
function Scene:hero_cells(hero) self:cells(10, hero == 0 and 4 or 6, 2, 2) end

function Scene:both()
  self:hero(0, 365)
  self:hero(1, 385)
end

function Scene:heroes()
  self:cells(10, 4, 2, 4)
  self:both()
end

function Scene:step_out(frame)
  local hero = self.m:tab()
  self:hero_cells(hero)
  self:hero(hero, home[hero][1] - 2 * frame, frame % 3)
end

function Scene:holding()
  local hero = self.m:tab()
  self:hero_cells(hero)
  self:hero(0, hero == 0 and 355 or 365)
  self:hero(1, hero == 1 and 375 or 385)
end

function Scene:step_back(frame)
  local hero, kind = self.m:tab(), self.m.v.ActionKind
  local first = ({ [0] = { [2] = 25, [4] = 45 }, { [2] = 25, [3] = 45, [6] = 45 } })[hero][kind]
  if not first then return end
  self:hero_cells(hero)
  self:hero(hero, (frame - first) * 2 + home[hero][1] - 10, frame % 3)
end

function Scene:hurt()
  local hero = self.m.v.EnemyRoll % 2
  self:hero_cells(hero)
  self:hero(hero, home[hero][1] + 10)
end

-- Enemies ----------------------------------------------------------------------------------------

-- The top left corner of a slot.
function Scene:spot(slot) return (slot + slot // 3) * 30, (((slot % 2) + 1) % 2 + 1) * 90 end

function Scene:slot_cells(slot)
  local odd = math.fmod(slot, 2)
  self:cells(slot // 3 * 3 + 1 - odd, 5 - odd * 3, 3, 3)
end

-- One of the group. Sheets of odd sizes leave a part as it was, or without a mask; a dragon's sheet
-- is no sheet for a group.
function Scene:one(slot, shift, colour)
  local kind = self.m.v.EnemyKind
  local x, y = self:spot(slot)
  x = x + (shift or 0)
  local odd = kind <= 2 or kind == 18
  if odd then self:rect(x, y, 64, 64, nil) else self:rect(x, y, 64, kind == 6 and 50 or 64, colour or sheets.enemy(kind)) end
  if kind == 7 then self:rect(x + 63, y, 1, 64, nil) end
end

function Scene:living(draw)
  for slot = 1, self.m.v.EnemyCount do
    if self.m:get("EnemyAlive", slot - 1) == -1 then draw(slot) end
  end
end

function Scene:big_row()
  local v = self.m.v
  return v.BossFight == -1 and v.Round - 1 or v.LastBossFight == -1 and 18 or 13
end

function Scene:big(row, shift)
  self:cells(2, 1, 4, 7)
  local x = 75 + (shift or 0)
  self:rect(x, 30, 160, 240, sheets.enemy(row))
  if row == 13 then self:rect(x + 158, 30, 2, 240, nil) end
end

function Scene:side()
  if self.m:big() then return self:big(self:big_row()) end
  self:slot_cells(self.m:list "List2")
  self:living(function(slot) self:one(slot) end)
end

function Scene:recoil()
  if self.m:big() then return self:big(self:big_row(), -10) end
  local slot = self.m:list "List2"
  if self.m:get("EnemyAlive", slot - 1) ~= -1 then return end
  self:slot_cells(slot)
  self:one(slot, -10)
end

function Scene:hit_mark()
  if self.m:big() then return self:effect(6, 1, 110, 170, 48) end
  local x, y = self:spot(self.m:list "List2")
  self:effect(6, 1, x + 20, y + 20, 48)
end

function Scene:flash()
  local white = "FFFFFF"
  if self.m:big() then return self:rect(75, 30, self:big_row() == 13 and 158 or 160, 240, white) end
  if self.m:list "List1" <= 2 then return self:one(self.m:list "List2", 0, white) end
  self:living(function(slot) self:one(slot, 0, white) end)
end

function Scene:opening()
  self:background()
  self:both()
end

-- Comparing --------------------------------------------------------------------------------------

-- The colour that must stand at a point; nil where any is right.
function Scene:at(x, y)
  local rects = self.rects
  for i = #rects, 1, -1 do
    local rect = rects[i]
    if x >= rect[1] and x < rect[3] and y >= rect[2] and y < rect[4] then
      local radius = rect.ring
      if not radius then return rect[5] end
      local off_x, off_y = x - (rect[1] + rect[3]) / 2, y - (rect[2] + rect[4]) / 2
      if math.abs(math.sqrt(off_x ^ 2 + off_y ^ 2) - radius) < 1.5 then return nil end
    end
  end
end

function Scene:point(x, y, note)
  if x < 0 or y < 0 or x > 431 or y > 263 then return end
  local wanted = self:at(x, y)
  if wanted then expect(shown_pixel("Battle.Picture1", x, y), wanted, ("%s at %d, %d"):format(note, x, y)) end
end

-- Looks inside and outside of the corners of what came last, and at some points anywhere.
function Scene:check(note)
  for i = math.max(1, #self.rects - 20), #self.rects do
    local rect = self.rects[i]
    for _, x in ipairs(rect.ring and {} or { rect[1] - 1, rect[1], rect[3] - 1, rect[3] }) do
      for _, y in ipairs { rect[2] - 1, rect[2], rect[4] - 1, rect[4] } do
        self:point(math.floor(x), math.floor(y), note)
      end
    end
  end
  for _ = 1, 40 do self:point(math.random(0, 431), math.random(0, 263), note) end
end

require "lib.model.pictures"(Scene)

return Scene
