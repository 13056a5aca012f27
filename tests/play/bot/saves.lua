-- Saving, and playing on in a second run of the program.
local walk = require "bot.walk"
local saves = {}

-- One answer for whatever box comes; it queues itself again.
local function reply()
  answer(reply)
  local shown = boxes()
  local buttons = shown[#shown].buttons
  return buttons == "YesNo" and "Yes" or "OK"
end

function saves.answer_boxes() answer(reply) end

-- Saves, when the menu offers it. Never on the last stage.
function saves.save()
  if get("Round") > 3 or get("InBook") ~= 0 or not can_click("Main.m12") then return false end
  walk.release()
  click("Main.m12")
  choose("Save.File1", 0)
  click("Save.OKButton")
  return true
end

-- Starts the program anew in the same folder and loads the save.
function saves.load()
  start { keep = true }
  walk.forget()
  saves.answer_boxes()
  click("Main.m11")
  choose("Load.File1", 0)
  click("Load.OKButton")
  expect(get("GameStarted"), -1, "the save has been loaded")
end

-- Ends the program by the menu.
function saves.quit()
  walk.release()
  click("Main.m14")
  expect(ended(), true)
end

return saves
