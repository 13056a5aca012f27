-- How the scripts here get to a place in the game, on a folder of their own: a meadow of one walkable
-- tile wherever the party goes.
local begin = {}

begin.meadow = 7

-- Lays the meadow on every map of the grid.
function begin.folder()
  prepare()
  for row = 1, 5 do
    for column = 1, 6 do
      write_map(("Mapdata/map%d-%d.dat"):format(row, column), begin.meadow)
    end
  end
end

-- Starts and enters the names; the opening plays.
function begin.opening()
  begin.folder()
  start()
  click("Main.Command1")
  enter("InputName.Text1(0)", "Abel")
  enter("InputName.Text1(1)", "Mina")
  click("InputName.OKButton")
end

-- Starts and skips the opening; the party can walk.
function begin.field()
  begin.opening()
  set("Main.Timer3.Enabled", false)
  set("OpeningDone", -1)
  for _, menu in ipairs { "m1", "m2", "m3", "m12" } do
    set("Main." .. menu .. ".Enabled", true)
  end
  set("Main.Picture5.Visible", false)
  set("Main.Timer1.Enabled", true)
end

-- Starts and walks into a battle: the roll of the first step decides.
function begin.battle()
  begin.field()
  set("HeroX", 240)
  set("HeroY", 128)
  key_down("Right")
  for _ = 1, 100 do
    random_clear()
    random(0.6667)
    tick("Main.Timer1")
    if active() == "Battle" then break end
  end
  random_clear()
  expect(active(), "Battle", "the walk leads into a battle")
end

-- Whether a call fails, and with what text.
function begin.fails(call, ...)
  local done, why = pcall(call, ...)
  return not done, why
end

return begin
