-- A battle on plain ground with sheets that show nothing but the cells that a scenario paints, and
-- a model of what must stand on the scene: rectangles, each over the ones before it.
local steps = require "lib.steps"
local canvas = {}

canvas.ground = "203040"
local ground = canvas.ground

-- A sheet of which nothing shows: white images over black masks.
local function clear_sheet(name, image_width)
  local width, height = picture_size(name)
  paint(name, "FFFFFF", 0, 0, image_width, height)
  paint(name, "000000", image_width, 0, width - image_width, height)
end

-- How wide the images of an enemy's sheet are.
local function enemy_image_width(row)
  if row <= 2 then return 128 end
  return (row == 13 or row == 18) and 160 or 64
end

-- Blank sheets and a plain scene in a battle that has begun.
function canvas.blank()
  for _, background in ipairs { "Picture7", "Picture11", "Picture12" } do paint("Battle." .. background, ground) end
  for row = 0, 18 do clear_sheet("Battle.Picture6(" .. row .. ")", enemy_image_width(row)) end
  clear_sheet("Battle.Picture2", 72)
  clear_sheet("Battle.Picture3", 72)
  clear_sheet("Battle.Picture8", 192)
  paint("Battle.Picture1", ground)
end

-- Makes one cell of the effects a plain colour.
function canvas.cell(column, row, colour)
  paint("Battle.Picture8", colour, 24 * column, 24 * row, 24, 24)
  paint("Battle.Picture8", "FFFFFF", 192 + 24 * column, 24 * row, 24, 24)
end

-- Makes the standing cell of a hero's sheet that begins at line `y` a plain colour.
function canvas.pose(colour, y, sheet)
  sheet = sheet or "Battle.Picture2"
  paint(sheet, colour, 0, y or 96, 24, 32)
  paint(sheet, "FFFFFF", 72, y or 96, 24, 32)
end

-- Makes an enemy a plain colour.
function canvas.enemy(row, colour)
  local name = "Battle.Picture6(" .. row .. ")"
  local width, height = picture_size(name)
  local image = enemy_image_width(row)
  paint(name, colour, 0, 0, image, height)
  paint(name, "FFFFFF", image, 0, width - image, height)
end

local Scene = {}
Scene.__index = Scene

function canvas.scene()
  return setmetatable({ rects = {}, fresh = 1 }, Scene)
end

function Scene:rect(x, y, width, height, colour)
  self.rects[#self.rects + 1] = { x = x, y = y, right = x + width, bottom = y + height, colour = colour }
end

-- A band over the whole width, of which the outermost line at top and bottom may be either way.
function Scene:band(top, bottom, colour)
  self.rects[#self.rects + 1] =
    { x = 0, y = top, right = 432, bottom = bottom, colour = colour, soft = true }
end

-- Cells of the background, drawn over what stood there.
function Scene:cells(column, row, width, height)
  self:rect(36 * column, 33 * row, 36 * width, 33 * height, ground)
end

-- The colour that must stand at a point; nil where either is right.
function Scene:at(x, y)
  for i = #self.rects, 1, -1 do
    local rect = self.rects[i]
    if rect.soft and (math.abs(y - rect.y) <= 1 or math.abs(y - rect.bottom) <= 1) then return nil end
    if x >= rect.x and x < rect.right and y >= rect.y and y < rect.bottom then return rect.colour end
  end
  return ground
end

function Scene:point(x, y, note)
  if x < 0 or y < 0 or x > 431 or y > 263 then return end
  local wanted = self:at(x, y)
  if wanted then expect(shown_pixel("Battle.Picture1", x, y), wanted, ("%s at %d, %d"):format(note, x, y)) end
end

-- Compares what is shown with the model: inside and outside of every corner of what came since the
-- last comparison, and over the scene in a grid.
function Scene:check(note)
  for i = self.fresh, #self.rects do
    local rect = self.rects[i]
    for _, x in ipairs { rect.x - 1, rect.x, (rect.x + rect.right) // 2, rect.right - 1, rect.right } do
      for _, y in ipairs { rect.y - 1, rect.y, (rect.y + rect.bottom) // 2, rect.bottom - 1, rect.bottom } do
        self:point(x, y, note)
      end
    end
  end
  self.fresh = #self.rects + 1
  for x = 3, 431, 17 do
    for y = 2, 263, 13 do self:point(x, y, note) end
  end
end

-- Into a battle of round 1 with two "グリーンローパー", blank.
function canvas.group(count)
  steps.plain_world()
  steps.battle_with(4, count or 2)
  canvas.blank()
end

-- Into the fight against the dragon of round 1, blank.
function canvas.boss(round)
  steps.plain_world()
  set("Round", round or 1)
  set("BossFight", -1)
  steps.battle(0, 0)
  canvas.blank()
end

-- Into the fight against row 13, blank.
function canvas.bone_dragon()
  steps.plain_world()
  set("Round", 3)
  steps.battle_with(13, 1)
  canvas.blank()
end

-- Into the last fight, blank.
function canvas.last_boss()
  steps.plain_world()
  set("Round", 4)
  set("LastBossFight", -1)
  steps.put(228, 48)
  random(0)
  key_down("Right")
  tick("Main.Timer1")
  key_up("Right")
  random_clear()
  expect(active(), "Battle")
  canvas.blank()
end

-- The first hero begins technique `row` on target `target`; no frame has been played.
function canvas.begin_waza(row, target)
  steps.learn_all()
  steps.strengthen()
  click("Battle.Command3")
  choose("Battle.List1", row)
  choose("Battle.List2", target or 1)
  clear_sounds()
end

-- The second hero begins spell `row`; `target` for the two that ask for one.
function canvas.begin_magic(row, target)
  steps.learn_all()
  steps.strengthen()
  tab("Battle.SSTab1", 1)
  click("Battle.Command2")
  choose("Battle.List1", row)
  if row <= 2 then choose("Battle.List2", target or 1) end
  clear_sounds()
end

-- Plays the frames from 2 to 24 of a skill. `frame` is called after each from 6 on, with the frame's
-- number and the commands that it sent, as one text; before 6 nothing may sound.
function canvas.play(frame)
  tick("Battle.Timer1", 2)
  expect(get("ActionState"), 4)
  expect(#sounds(), 0)
  for c = 6, 24, 2 do
    clear_sounds()
    tick("Battle.Timer1")
    expect(get("ActionState"), c)
    frame(c, table.concat(sounds(), "|"))
  end
  clear_sounds()
end

-- Lua's own rounding of values that are never halfway.
function canvas.round(value)
  return math.floor(value + 0.5)
end

return canvas
