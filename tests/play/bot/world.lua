-- The maps as a graph of cells, and fields that lead from every cell to a goal.
--
-- A cell is numbered (map index) * 480 + column * 16 + row. The party moves 4 pixels a step, but
-- what it may enter is judged by whole cells, so a way over cells is a way for it: a direction is
-- held until the cell changes.
local world = {}

local up, down, left, right = 1, 2, 3, 4
world.keys = { "Up", "Down", "Left", "Right" }

local walkable = {}
for _, range in ipairs {
  { 7, 14 }, { 19, 21 }, { 25, 33 }, { 52, 54 }, { 64, 81 }, { 94, 111 }, { 124, 141 }, { 160, 162 },
  { 175, 180 }, { 190, 192 }, { 206, 210 }, { 220, 222 }, { 234, 240 },
  { 35, 36 }, { 43, 44 }, { 47, 47 }, { 62, 62 }, { 113, 113 }, { 116, 116 }, { 146, 146 }, { 170, 170 },
} do
  for code = range[1], range[2] do walkable[code] = true end
end

local doors = { [47] = true, [116] = true, [131] = true }
local book_codes = { [73] = true, [74] = true, [103] = true, [104] = true }
local entry = { column = 14, row = 13 } -- where a door lets the party into a room

local codes_of_file = {}

local function read_codes(name)
  if codes_of_file[name] then return codes_of_file[name] end
  local codes, count = {}, 0
  for number in read_file("Mapdata/" .. name .. ".dat"):gmatch("%-?%d+") do
    codes[count] = tonumber(number)
    count = count + 1
    if count == 480 then break end
  end
  codes_of_file[name] = codes
  return codes
end

local function room_file(a, b, code, round)
  if code == 131 then return "BookF" end
  if (a == 1 and b == 1) or (a == 3 and b == 5) then return "Fresh" end
  return "Book" .. round
end

-- The dragon's strip on its map: stepping there starts the fight.
local strip_map = "4,1"
local function in_strip(column, row) return (column == 14 or column == 15) and row <= 7 end

local function add_map(w, id, file)
  local index = #w.ids + 1
  w.ids[index], w.index[id], w.codes[index] = id, index, read_codes(file)
  return index
end

-- Which map lies beyond an edge, or nil.
local function neighbour(w, id, direction)
  local a, b = id:match("^(%d),(%d)$")
  if not a then return nil end
  a, b = tonumber(a), tonumber(b)
  if a == 6 then a = 5 end
  if direction == up then b = b - 1 elseif direction == down then b = b + 1
  elseif direction == left then a = a - 1 else a = a + 1 end
  if a == 5 and b == 4 and w.hidden and direction ~= left then a = 6 end
  return w.index[a .. "," .. b]
end

-- The cell that one comes to from `cell` in a direction, or nil.
local function step(w, index, column, row, direction)
  local codes, id = w.codes[index], w.ids[index]
  local to_column = column + (direction == left and -1 or direction == right and 1 or 0)
  local to_row = row + (direction == up and -1 or direction == down and 1 or 0)
  if to_column < 0 or to_column > 29 or to_row < 0 or to_row > 15 then return nil end
  local code = codes[to_column * 16 + to_row]
  if not walkable[code] then return nil end
  if direction == up and doors[code] then
    local room = w.index["room " .. id]
    return room and room * 480 + entry.column * 16 + entry.row
  end
  if doors[code] then return nil end
  local edge = (direction == up and row == 1) or (direction == down and row == 14)
      or (direction == left and column == 1) or (direction == right and column == 28)
  if not edge then return index * 480 + to_column * 16 + to_row end
  if w.way_out[index] then return direction == down and w.way_out[index] or nil end
  local next_index = neighbour(w, id, direction)
  if not next_index then return nil end
  local landing_column = direction == left and 28 or direction == right and 1 or column
  local landing_row = direction == up and 14 or direction == down and 2 or row
  if not walkable[w.codes[next_index][landing_column * 16 + landing_row]] then return nil end
  return next_index * 480 + landing_column * 16 + landing_row
end

local function link(w)
  w.from = {}
  for index = 1, #w.ids do
    for column = 0, 29 do
      for row = 0, 15 do
        if walkable[w.codes[index][column * 16 + row]] then
          local cell = index * 480 + column * 16 + row
          for direction = up, right do
            local to = step(w, index, column, row, direction)
            if to then
              local list = w.from[to] or {}
              w.from[to] = list
              list[#list + 1] = cell * 8 + direction
            end
          end
        end
      end
    end
  end
end

local function find_goals(w)
  for index, id in ipairs(w.ids) do
    local rest = {}
    for at = 0, 479 do
      local code = w.codes[index][at]
      local cell = index * 480 + at
      if code == 36 then w.goals["chest " .. id] = { cell } end
      if code == 135 then rest[#rest + 1] = cell end
      if book_codes[code] then
        local list = w.goals["book " .. id] or {}
        w.goals["book " .. id] = list
        list[#list + 1] = cell
      end
    end
    if #rest > 0 then
      w.goals["rest " .. id] = rest
      w.rests[#w.rests + 1] = "rest " .. id
    end
  end
  if w.index[strip_map] then w.goals.dragon = { w.index[strip_map] * 480 + 14 * 16 + 5 } end
  if w.index["0,0"] then w.goals.dragon = { w.index["0,0"] * 480 + 14 * 16 + 2 } end
end

local worlds = {}

-- The world as it stands in a round (4 is the last stage), with the hidden map or without.
function world.of(round, hidden)
  local key = round .. (hidden and "h" or "")
  if worlds[key] then return worlds[key] end
  local w = { ids = {}, index = {}, codes = {}, way_out = {}, goals = {}, rests = {}, fields = {}, hidden = hidden }
  worlds[key] = w
  if round == 4 then
    add_map(w, "0,0", "map0-0")
  else
    local behind = {}
    for b = 1, 5 do
      for a = 1, 5 do
        local id = a .. "," .. b
        local index = add_map(w, id, ("map%d-%d"):format(b, a))
        for at = 0, 479 do
          local code = w.codes[index][at]
          if doors[code] then behind[#behind + 1] = { id = id, cell = index * 480 + at + 1, file = room_file(a, b, code, round) } end
        end
      end
    end
    if hidden then add_map(w, "6,4", "map4-6") end
    for _, door in ipairs(behind) do
      w.way_out[add_map(w, "room " .. door.id, door.file)] = door.cell
    end
  end
  link(w)
  find_goals(w)
  return w
end

-- The field that leads to a goal: per cell the direction to hold, and the distance in cells. The
-- dragon's strip is a wall for every goal but the dragon.
function world.field(w, name, cells)
  local field = w.fields[name]
  if field then return field end
  local direction, distance, from = {}, {}, w.from
  field = { direction = direction, distance = distance }
  w.fields[name] = field
  local closed_map = name ~= "dragon" and w.index[strip_map]
  local queue, head = {}, 1
  for _, cell in ipairs(cells or w.goals[name]) do
    distance[cell], direction[cell] = 0, 0
    queue[#queue + 1] = cell
  end
  while queue[head] do
    local cell = queue[head]
    head = head + 1
    for _, packed in ipairs(from[cell] or {}) do
      local before = packed // 8
      if not distance[before] then
        local at = before % 480
        local barred = before // 480 == closed_map and in_strip(at // 16, at % 16)
        -- A party that has met enemies at the strip's foot may turn back.
        if barred and at % 16 == 7 and packed % 8 == down then barred = false end
        if not barred then
          distance[before] = distance[cell] + 1
          direction[before] = packed % 8
          queue[#queue + 1] = before
        end
      end
    end
  end
  return field
end

-- A recovery point and a cell beside it without events, to walk to and fro on.
function world.beat(w, rest)
  w.beats = w.beats or {}
  if w.beats[rest] then return w.beats[rest] end
  for _, point in ipairs(w.goals[rest]) do
    for _, packed in ipairs(w.from[point] or {}) do
      local beside = packed // 8
      local code = w.codes[beside // 480][beside % 480]
      if beside // 480 == point // 480 and code ~= 36 and code ~= 135 and not book_codes[code] then
        w.beats[rest] = { beside, point }
        return w.beats[rest]
      end
    end
  end
  error("no room to walk to and fro at " .. rest)
end

return world
