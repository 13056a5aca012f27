-- The chances that the game draws when its seed is fixed (src/frontend/shared/chance.cpp): a Mersenne Twister of
-- 32 bits, of which a draw takes the upper 24.
local draws = {}

local size, middle = 624, 397
local word = 0xffffffff

-- A function that returns one draw after the other, from 0 to less than 1.
function draws.from(seed)
  local state = { [0] = seed & word }
  for index = 1, size - 1 do
    local before = state[index - 1]
    state[index] = (1812433253 * (before ~ before >> 30) + index) & word
  end
  local next_index = size

  local function refill()
    for index = 0, size - 1 do
      local bits = (state[index] & 0x80000000) | (state[(index + 1) % size] & 0x7fffffff)
      state[index] = state[(index + middle) % size] ~ bits >> 1 ~ ((bits & 1) * 0x9908b0df)
    end
    next_index = 0
  end

  return function()
    if next_index == size then refill() end
    local bits = state[next_index]
    next_index = next_index + 1
    bits = bits ~ bits >> 11
    bits = bits ~ (bits << 7 & 0x9d2c5680)
    bits = bits ~ (bits << 15 & 0xefc60000)
    bits = bits ~ bits >> 18
    return (bits >> 8) / 16777216
  end
end

return draws
