-- Files that are gone, and choices that are no more, when OK is pressed.
local steps = require "lib.steps"
local records = require "lib.records"

local small_record, title, pick = records.small_record, records.title, records.pick

test("a file gone between the list and the click ends the program with its name", function()
  title { ["Save01.sav"] = small_record() }
  click("Main.m11")
  delete_file("Save01.sav")
  pick("Load")
  steps.state { ["Main.Timer1.Enabled"] = false }
  expect(error_kind(), "file")
  expect(error_text():find("Save01.sav", 1, true) ~= nil, true)
end)

test("a file gone between the click and OK is not loaded from memory", function()
  title { ["Save01.sav"] = small_record() }
  click("Main.m11")
  pick("Load")
  delete_file("Save01.sav")
  click("Load.OKButton")
  expect(error_kind(), "file")
  expect(get("GameStarted"), 0)
end)

test("a file that was clicked is no choice once nothing is marked", function()
  title { ["Save01.sav"] = small_record() }
  click("Main.m11")
  pick("Load")
  set("Load.File1.ListIndex", -1)
  answer("OK")
  click("Load.OKButton")
  expect(boxes()[1].text, "ファイルを選択してください")
  expect(get("GameStarted"), 0)
end)
