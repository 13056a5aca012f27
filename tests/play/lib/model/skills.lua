-- What a frame of a skill's picture sounds, shakes and aims at.
local tables = require "lib.model.tables"
local skills = {}

local magic = {
  function(m, c) if c == 6 then m:play "snd3" end end,
  function(m, c) if c == 14 then m:play "snd10" end end,
  function(m, c)
    if c == 6 then m:play "snd5" end
  end,
  function(m, c)
    if c == 6 then m:play "snd6" end
    m:shake("Left", 50)
  end,
  function(m, c) if c == 10 then m:play "snd8" end end,
  function(m) m:play "snd3" m:shake("Top", 20) end,
  function(m) m:play "snd9" m:shake("Top", 20) end,
  function(m, c)
    if c == 6 then m:play "snd5" end
  end,
  function(m, c) if c == 6 then m:play "snd4" end end,
  function(m)
    m:play "snd4"
    m:shake("Top", 20)
  end,
}

local function cut(m, c, first, file, second)
  if c == 16 then
    m:say("close " .. first)
    m:play(second)
  end
  if c == 24 then m:say(('open "PATH\\Sound\\%s" alias %s'):format(file, first)) end
end

local waza = {
  function(m, c) if c == 6 then m:play "snd3" end end,
  function(m, c) if c == 6 then m:play "snd10" end end,
  function(m, c) if c <= 13 then m:play "snd9" end end,
  function(m, c)
    if c < 16 then m:play "snd9" end
    cut(m, c, "snd9", "Bom.wav", "snd10")
  end,
  function(m, c)
    if c == 22 then
      for _ = 1, 4 do m:play "snd2" end
    end
  end,
  function(m, c) if c == 20 then m:play "snd2" end end,
  function(m, c) if c == 20 or c == 22 then m:play "snd2" end end,
  function(m) m:play "snd2" end,
  function(m, c) if c >= 16 then m:play "snd9" end end,
  function(m, c)
    if c == 6 then m:play "snd10" end
    cut(m, c, "snd10", "Ice.wav", "snd4")
  end,
}

-- The point that a skill aims at; against a big enemy some routines look for it late in their frames.
local function aim(m, prefix, at_big)
  local x, y = m.d:spot(m:list "List2")
  if at_big then x, y = 120, 140 end
  m.v[prefix .. "BossX"], m.v[prefix .. "BossY"] = 120, 140
  m.v[prefix .. "X"], m.v[prefix .. "Y"] = x, y
end

-- Sounds, shakes and the target point in frame `c` of row `row` of a list of skills.
function skills.frame(m, list, row, c)
  if list == tables.wazas then
    aim(m, "Waza", m:big() and not (row == 5 and c ~= 22) and not (row == 9 and c < 16))
    return waza[row](m, c)
  end
  if row <= 2 then aim(m, "Magic", m:big()) end
  magic[row](m, c)
end

return skills
