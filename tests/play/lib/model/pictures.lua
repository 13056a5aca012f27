-- The pictures of skills, items and the enemies' specials, one function for each and frame `c`.
local sheets = require "lib.model.sheets"

-- Of values that are never halfway.
local function round(value) return math.floor(value + 0.5) end

local function sign(n) return n % 2 == 0 and 1 or -1 end

-- A point of the two heroes' box, or of one's.
local function sparkle(d, column, row, top, height)
  local x = math.floor(d.m:rnd() * 58 + 355)
  local y = math.floor(d.m:rnd() * height + top)
  return function() d:effect(column, row, x, y, 24) end
end

local function scatter(d, column, row, left, width)
  for _ = 0, 10 do
    local x = math.floor(d.m:rnd() * width + left)
    local y = math.floor(d.m:rnd() * 230 + 50)
    d:effect(column, row, x, y, math.floor(d.m:rnd() * 48 + 24))
  end
end

-- Both corners of a filled box belong to it.
local function band(d, half, colour) d:rect(0, 146 - half, 433, 2 * half + 1, colour) end

local spells = {
  function(d, _, x, y) d:effect(4, 4, x, y, 96) end,
  function(d, c, x, y)
    local run = c <= 12 and 4 * c or 64
    for k = 0, 3 do
      d:effect(4, 5, sign(k) * run + x + k % 2 * 120 - 60, sign(k // 2) * run + y + k // 2 * 120 - 60, 48)
    end
  end,
  function(d)
    for _ = 1, 6 do sparkle(d, 1, 0, 130, 108)() end
  end,
  function() end,
  function(d, c)
    if c == 10 then d:rect(0, 0, 480, 288, "FFFFFF") end
  end,
  function(d, c) d:effect(0, 3, 150 - 8 * c, 140 - 8 * c, 16 * c + 48) end,
  function(d, c) d:ring(300 - 2 * c, 10 * c - 150, 250) end,
  function(d)
    for _ = 1, 6 do
      local first = sparkle(d, 1, 0, 130, 108)
      local second = sparkle(d, 1, 4, 130, 108)
      first()
      second()
    end
  end,
  function(d, c)
    for k = 0, 10 do
      local angle = 20 * k + c
      d:effect(0, c % 4, round(math.cos(angle) * 6 * c + 150), round(math.sin(angle) * 4 * c + 140), 64)
    end
  end,
  function(d, c)
    band(d, 4 * c, ("FFFF%02X"):format(10 * c))
    scatter(d, 0, 3, 0, 350)
  end,
}

local function pose(d, x, y, width, height) d:rect(x, y, width or 40, height or 56, sheets.heroes[0][0]) end
local function home(d) pose(d, 355, 140) end
local function slash(d, x, y) d:effect(6, 1, x + 20, y + 20, 48) end

local function crossing(row)
  return function(d, c, x, y)
    home(d)
    d:effect(4, row, x + 70 - 3 * c, y - 30 + 3 * c, 24)
    d:effect(4, row, x - 25 + 3 * c, y - 30 + 3 * c, 24)
  end
end

local techniques = {
  crossing(4),
  crossing(5),
  function(d, c, x, y)
    home(d)
    if c <= 13 then return d:effect((c - 5) % 8, 4, x, y, 64) end
    for b = 1, 4 do d:effect(1, 4, sign(b) * c * 2 + x + 10, y - sign(b // 3) * c * 2 + 10, 36) end
  end,
  function(d, c, x, y)
    home(d)
    if c < 16 then return d:effect(2, 0, x - 20, y + 20 - (c - 6) * 10, 64) end
    d:effect(3, 0, x + 20, y + 20 - (c - 16) * 10, 64)
  end,
  function(d, c, x, y)
    for j = 0, 3 do
      if c <= 12 then pose(d, 355, 140 - (j + c - 5) * 15)
      elseif c == 24 then pose(d, 355 + c - j, 2 * c + 30 - j)
      else
        if c == 22 then slash(d, x, y) end
        pose(d, 355 - (j + c - 12) * 30, (j + c - 12) * 10 + 35)
      end
    end
  end,
  function(d, c, x, y)
    if c < 15 then return home(d) end
    for s = 0, 3 do pose(d, 355 - (c - s) * 20, 140) end
    if c > 20 then slash(d, x, y) end
  end,
  function(d, c, x, y)
    band(d, 4 * c, "000000")
    if c >= 20 then slash(d, x, y) end
  end,
  function(d, c, x, y)
    d:effect(4, 4, round(math.cos(c) * 10 + x + 20), round(math.sin(c) * 5 + y + 20), 48)
    for a = 0, 360, 30 do
      pose(d, round(math.cos(a * c) * 50 + 10 + x), round(math.sin(a * c) * 50 + y), 48, 64)
    end
  end,
  function(d, c, x, y)
    if c < 16 then return home(d) end
    d:recoil()
    for s = 0, 5 do d:effect(4, 1, x + 50 - s * c - 16, sign(s) * c + y + 20 - 16, 48) end
    pose(d, x + 64, y)
  end,
  function(d, c, x, y)
    if c >= 16 then return d:effect(1, 3, x + 32 - (c - 16) * 15, y + 16 - (c - 16) * 15, (c - 16) * 30 + 48) end
    if c == 8 then d:rect(0, 0, 480, 288, "FFFFFF") end
    for k = 0, 1 do
      local v = sign(k) * (c - 5) * 11 + 210 * k
      pose(d, 390 - (c - 5) * 20, v)
      d:rect((c - 5) * 20, v, 40, 56, sheets.back)
    end
  end,
}

return function(Scene)
  function Scene:aim()
    if self.m:big() then return 120, 140 end
    return self:spot(self.m:list "List2")
  end

  function Scene:spell(row, c) spells[row](self, c, self:aim()) end
  function Scene:technique(row, c) techniques[row](self, c, self:aim()) end

  function Scene:sparkles(hero)
    for _ = 1, 6 do sparkle(self, 1, 0, 130 + 54 * hero, 54)() end
  end

  function Scene:fireball(c) self:effect(4, 4, round(math.cos(c) * 10 + 355), 246 - (c - 15) * 20, 72) end

  function Scene:death(c)
    band(self, (c - 10) * 4, ("FF00%02X"):format((c - 10) * 10))
    scatter(self, 1, 3, 230, 200)
  end
end
