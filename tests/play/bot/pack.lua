-- The bag: wearing the best gear, choosing the books to learn from, making room.
local rules = require "bot.rules"
local pack = {}

local function record(number)
  local bytes = read_file("Item.dat"):sub((number - 1) * 32 + 1, number * 32)
  local name, kind, value = bytes:sub(5, 24), string.unpack("<i4i4", bytes, 25)
  return { name = name, kind = kind, value = value }
end

local records = {}

function pack.record(number)
  if not records[number] then records[number] = record(number) end
  return records[number]
end

-- The filled slots of the bag: slot to number.
local function bag()
  local slots = {}
  for slot = 0, 19 do
    local number = get("Items[" .. slot .. "]")
    if number ~= 99 then slots[slot] = number end
  end
  return slots
end

local function best_of(slots, kind)
  local best, best_value
  for slot, number in pairs(slots) do
    local each = pack.record(number)
    if each.kind == kind and (not best or each.value > best_value) then best, best_value = slot, each.value end
  end
  return best, best_value
end

-- Which skills are trained first, when known and not mastered yet.
local wanted = {
  [0] = { 9, 10, 6, 5, 8, 7, 3, 4, 2, 1 },
  [1] = { 8, 9, 5, 6, 10, 7, 2, 3, 4, 1 },
}

local function book_for(slots, hero, taken)
  local uses = hero == 0 and "WazaUse[" or "MagicUse["
  for pass = 1, 2 do
    for _, skill in ipairs(wanted[hero]) do
      for slot, number in pairs(slots) do
        local each = pack.record(number)
        if each.kind == 5 and each.value == skill and skill ~= taken
            and (pass == 2 or get(uses .. (skill - 1) .. "]") < rules.master[skill]) then
          return slot, skill
        end
      end
    end
  end
end

-- What each hero should put on: a list of { hero, slot }.
local function changes()
  local slots, list = bag(), {}
  for hero = 0, 1 do
    local at = "[" .. hero .. "]"
    local weapon, attack = best_of(slots, hero == 0 and 1 or 3)
    if weapon and attack > get("WeaponAttack" .. at) then list[#list + 1] = { hero, weapon } end
    local armour, defence = best_of(slots, hero == 0 and 2 or 4)
    if armour and defence > get("ArmourDefence" .. at) then list[#list + 1] = { hero, armour } end
  end
  local his, hers = get("BookSkill[0]"), get("BookSkill[1]")
  local his_slot, his_skill = book_for(slots, 0, nil)
  local her_slot, her_skill = book_for(slots, 1, his_skill)
  local swap = his_skill == hers and her_skill == his
  if not swap then
    local he = his_skill and his_skill ~= his and { 0, his_slot }
    local she = her_skill and her_skill ~= hers and { 1, her_slot }
    -- A book is handed over by the one who wears it first taking another.
    for _, change in ipairs(his_skill == hers and { she or nil, he or nil } or {}) do list[#list + 1] = change end
    if his_skill ~= hers then
      if he then list[#list + 1] = he end
      if she then list[#list + 1] = she end
    end
  end
  return list
end

-- Puts on what is better than what is worn.
function pack.dress()
  local list = changes()
  if #list == 0 then return end
  click("Main.m21")
  for _, change in ipairs(list) do
    tab("Wepon.SSTab1", change[1])
    choose("Wepon.List1", change[2])
    local button = change[1] == 0 and "Wepon.Command1" or "Wepon.Command3"
    if can_click(button) then click(button) end
  end
  click(get("Wepon.SSTab1.Tab") == 0 and "Wepon.Command5" or "Wepon.Command6")
end

-- Throws away outgrown gear until at most `count` items are left, or nothing more can go.
function pack.make_room(count)
  if get("ItemCount") <= count then return end
  local worn = { get("WeaponAttack[0]"), get("ArmourDefence[0]"), get("WeaponAttack[1]"), get("ArmourDefence[1]") }
  local old = {}
  for slot, number in pairs(bag()) do
    local each = pack.record(number)
    if each.kind <= 4 and each.kind >= 1 and each.value < worn[each.kind] then old[#old + 1] = slot end
  end
  table.sort(old)
  click("Main.m22")
  for _, slot in ipairs(old) do
    if get("ItemCount") > count then
      choose("Item.List1", slot)
      if can_click("Item.Command2") then click("Item.Command2") end
    end
  end
  click("Item.Command8")
  close("Item")
end

-- Uses a recovery item of the bag on a hero, outside a fight. Returns false when there is none.
function pack.drink(number, hero)
  for slot, each in pairs(bag()) do
    if each == number then
      click("Main.m22")
      choose("Item.List1", slot)
      click("Item.Command1")
      click(("ItemUse.Command1(%d)"):format(hero))
      return true
    end
  end
  return false
end

return pack
