-- The whole game, from the title to the last card.
local world = require "bot.world"
local walk = require "bot.walk"
local fight = require "bot.fight"
local forecast = require "bot.forecast"
local pack = require "bot.pack"
local saves = require "bot.saves"
local rules = require "bot.rules"
local journey = {}

-- Chest and book chest maps by their numbers.
local chests = { [0] = "3,3", "2,1", "2,2", "3,1", "1,1", "1,3", "1,4", "1,5", "2,4", "4,5", "4,4", "5,3", "4,2", "4,1", "5,1" }
local books = { [0] = "1,3", "3,4", "3,2", "6,4" }

-- A round is explored as strength allows: the level wanted before the n-th chest or book. Until
-- then the party fights beside a recovery point.
local caution = {
  { 1, 1, 2, 3, 3, 4, 4, 5, 5, 6, 6, 6, 7, 7, 7, 8, 9, 10 },
  { 1, 14, 14, 14, 15, 15, 15, 16, 16, 16, 17, 17, 17, 18, 18, 18, 18, 18 },
  { 1, 26, 27, 28, 28, 29, 29, 30, 30, 31, 31, 32, 32, 33, 33, 34, 34, 34, 34 },
}

-- The chests with the best armour draw the party from farther off once the enemies of a new round are about:
-- for so much of its distance each counts.
local armour = {
  {},
  { ["chest 1,3"] = 0.5, ["chest 1,4"] = 0.5 },
  { ["chest 1,1"] = 0.6, ["chest 1,3"] = 0.6, ["chest 2,4"] = 0.6, ["chest 5,3"] = 0.6 },
}

-- After so many fights without anything new, by the round, the party looks for the next chest all the same.
local patience = { 5, 6, 6 }

-- A party that was beaten by a dragon, and has fought so often since the last level without the next one,
-- tries it again all the same if the odds are nearly even.
local rematch, even = 7, 0.35

-- Below this share of HP a fruit or a drop is taken before a longer way to a recovery point, by the round, and
-- before a short one.
local thirst, parched = { 0.75, 0.7, 0.6, 0.6 }, 0.35

-- The odds at which the dragon of a round is tried. That a fourth follows the third is not known beforehand.
local courage = { 0.2, 0.38, 0.48, 0.5 }

local function level() return math.min(get("Level[0]"), get("Level[1]")) end

-- The closed chests of the round, and how many have been opened.
local function closed(w)
  local list, opened = {}, 0
  for number = 0, 14 do
    if get("TreasureLeft[" .. number .. "]") ~= 0 then list[#list + 1] = "chest " .. chests[number] else opened = opened + 1 end
  end
  for number = 0, 3 do
    local goal = "book " .. books[number]
    if w.goals[goal] then
      if get("BookLeft[" .. number .. "]") ~= 0 then list[#list + 1] = goal else opened = opened + 1 end
    end
  end
  return list, opened
end

-- The nearest of some goals, and its distance. `eager` may name the share of its distance that a goal counts for.
local function nearest(w, goals, eager)
  local cell = walk.cell(w)
  local best, best_distance
  for _, goal in ipairs(goals) do
    local distance = world.field(w, goal).distance[cell]
    if distance and eager and eager[goal] then distance = distance * eager[goal] end
    if distance and (not best or distance < best_distance) then best, best_distance = goal, distance end
  end
  return best, best_distance
end

-- Of the share of HP that is wanted, the part that is wanted of MP once there are skills, by the round.
local magic = { 0.5, 0.5, 0.6, 0.6 }

-- Whether the heroes need a recovery point: below `share` of HP, or a part of it of MP.
local function weary(share)
  local skilled = get("MagicKnown[0]") + get("MagicKnown[1]") ~= 0
  local part = magic[get("Round")] * share
  for hero = 0, 1 do
    local at = "[" .. hero .. "]"
    if get("HP" .. at) < share * get("MaxHP" .. at) then return true end
    if skilled and get("MP" .. at) < part * get("MaxMP" .. at) then return true end
  end
  return false
end

-- Goes to the nearest recovery point and stays until whole.
local function rest(w, log)
  local goal, distance = nearest(w, w.rests)
  if distance > 0 then
    -- With little life fruits and drops first, where there are some; on a longer way sooner.
    local share = distance > 3 and thirst[get("Round")] or parched
    for hero = 0, 1 do
      local at = "[" .. hero .. "]"
      local function low() return get("HP" .. at) < share * get("MaxHP" .. at) end
      while low() and (pack.drink(47, hero) or get("Round") > 1 and pack.drink(48, hero)) do end
    end
  end
  log.rests = log.rests + 1
  while weary(0.99) do
    local outcome = walk.to(w, goal, log)
    if outcome == "story" then return end
    -- A point that has given its strength gives it again to those who leave and come back.
    if outcome == "there" and weary(0.99) then walk.pace(w, goal, log) end
  end
end

-- Saves when some fights have passed since the last time and the party is well.
local function save(state, log)
  if state.fights_at_save and log.ordinary - state.fights_at_save < 5 and state.saved_round == get("Round") then return end
  -- A dragon beaten is worth saving at once, whatever the heroes' state.
  if weary(0.8) and state.saved_round == get("Round") then return end
  if saves.save() then
    state.fights_at_save, state.saved_round = log.ordinary, get("Round")
    log.saves = log.saves + 1
    log.saved[get("Round")] = true
  end
end

-- Plays on in a second run of the program, once a round, half way through the chests.
local function new_day(state, log, opened)
  local round = get("Round")
  if opened < 9 or state.day == round or get("InBook") ~= 0 or weary(0.8) then return false end
  state.day = round
  state.fights_at_save = nil
  save(state, log)
  saves.quit()
  saves.load()
  log:loaded()
  log.days[round] = true
  return true
end

-- Walks to and fro over a recovery point until enemies come. None come in rooms.
local function train(w, log)
  local outdoors = {}
  for _, each in ipairs(w.rests) do
    if not each:find("room") then outdoors[#outdoors + 1] = each end
  end
  local goal = nearest(w, outdoors)
  for _ = 1, 2000 do
    local outcome = walk.pace(w, goal, log)
    if outcome and outcome ~= "message" then return end
  end
end

-- Whether the party is up to the round's dragon, as a player would guess.
local function ready(state, log)
  local s = fight.look()
  local round = s.round
  local beaten = level() < (state.wanted[round] or 0)
  if beaten and log.since < rematch then return false end
  local key = round .. ":" .. s.level[0] .. "," .. s.level[1] .. "," .. tostring(s.waza_mastered[9])
  if state.guess_key ~= key then
    state.guess_key = key
    state.guess = forecast.odds(s, round - 1, round, 16, true)
  end
  return state.guess >= (beaten and even or courage[round])
end

-- Whether enough strength is left for the dragon, on the way to it.
local function strong_enough(round)
  if not weary(0.9) then return true end
  return forecast.odds(fight.look(), round == 4 and rules.last or round - 1, round, 16) >= courage[round] - 0.1
end

local function face_dragon(w, state, log)
  local round = get("Round")
  if state.rested_for ~= round or not strong_enough(round) then
    if round < 4 then
      -- The recovery point nearest to the dragon's stair.
      local best, best_distance
      for _, each in ipairs(w.rests) do
        local field = world.field(w, each)
        local distance = field.distance[w.index["4,1"] * 480 + 14 * 16 + 9]
        if distance and (not best or distance < best_distance) then best, best_distance = each, distance end
      end
      local outcome = walk.to(w, best, log)
      if (outcome == "there" or outcome == "message") and not weary(0.99) then state.rested_for = round end
    else
      rest(w, log)
      state.rested_for = round
    end
    return
  end
  save(state, log)
  log.thrift = true -- the strength is for the dragon
  walk.to(w, "dragon", log)
  log.thrift = false
end

local function think(state, log)
  if get("Main.Timer3.Enabled") then
    walk.release()
    click("Main.Picture1")
    state.rested_for = nil
    return
  end
  local w = walk.world()
  if get("Round") == 4 then
    face_dragon(w, state, log)
    return
  end
  pack.dress()
  if get("ItemCount") >= 18 then
    pack.make_room(14)
    -- A bag full of books and gear in use: a fruit is eaten for the next chest.
    if get("ItemCount") >= 20 and not pack.drink(47, 0) then pack.drink(48, 0) end
  end
  local list, opened = closed(w)
  local wanted = log.since < patience[get("Round")] and caution[get("Round")][opened + 1] or 1
  local training = #list == 0 or level() < wanted
  -- Beside a recovery point there is no reason to go on weakened; far from one, enemies may come
  -- on the way back.
  local climbing = #list == 0 and state.rested_for == get("Round")
  if not climbing and weary((training or level() < 3) and 0.85 or get("Round") > 1 and 0.75 or 0.6) then
    rest(w, log)
    return
  end
  save(state, log)
  if new_day(state, log, opened) then return end
  if #list > 0 then
    if training then
      train(w, log)
      return
    end
    local before = #list
    walk.to(w, nearest(w, list, armour[get("Round")]), log)
    if #closed(w) < before then log:news() end
    return
  end
  log.opened[get("Round")] = opened
  if ready(state, log) then
    face_dragon(w, state, log)
  else
    state.rested_for = nil
    train(w, log)
  end
end

local function begin(seed_number)
  start()
  walk.forget()
  saves.answer_boxes()
  seed(seed_number)
  math.randomseed(seed_number)
  click("Main.Command1")
  enter("InputName.Text1(0)", "カイ")
  enter("InputName.Text1(1)", "リナ")
  click("InputName.OKButton")
  while get("OpeningDone") == 0 do click("Main.Picture1") end
end

-- The credits, to the press on the last card.
local function credits()
  expect(active(), "Ending")
  run("Ending.Timer1")
  expect(get("Ending.CreditsDone"), -1)
  press("Ending")
  expect(ended(), true)
  expect(exit_status(), 0)
end

-- A fault of the script is told with the way to it; a wiped-out party is none.
local function with_place(problem)
  return problem == fight.wiped_out and problem or debug.traceback(problem, 2)
end

-- Plays the game with a seed; `log` takes down what happens.
function journey.play(seed_number, log)
  begin(seed_number)
  local state = { wanted = {} }
  for _ = 1, 6000 do
    if active() == "Ending" then
      credits()
      return
    end
    local fine, problem = xpcall(think, with_place, state, log)
    if not fine then
      if problem ~= fight.wiped_out then error(problem, 0) end
      expect(boxes()[#boxes()].text, "全滅しました。")
      if log.foe.boss then
        local round = math.min(3, log.foe.round)
        state.wanted[round] = math.min(log.foe.level[0], log.foe.level[1]) + (round == 2 and 2 or 1)
      end
      saves.load()
      log:loaded()
      log.thrift = false
      state.guess_key, state.rested_for = nil, nil
    end
  end
  error("the game does not come to an end")
end

return journey
