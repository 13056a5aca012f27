-- Plain ground with one tile that matters.
local steps = require "lib.steps"
local things = require "lib.things"
local ground = {}

-- The party on plain ground at (192, 96), in the cell of column 12, row 6, which bears `tile`.
local function on(tile, a, b, round)
  steps.plain_world()
  things.write()
  set("MapA", a or 3); set("MapB", b or 3)
  set("Round", round or 1)
  set("MapTile[12][6]", tile)
  clear_sounds()
end

ground.on = on

return ground
