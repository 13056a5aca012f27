local steps = require "lib.steps"
local ground = require "lib.ground"

local on = ground.on

-- Empties what a pickup has filled, and shuts its chest again.
local function again(left, number)
  click("Main.Picture1")
  set("Items[3]", 99)
  set("ItemCount", 3)
  set(left .. "[" .. number .. "]", -1)
end

test("the message sounds at its first tick and opens its channel at each", function()
  on(36)
  tick("Main.Timer1")
  expect(get("Main.Picture5.Visible"), false, "the first tick shows it")
  clear_sounds()
  tick("Main.Timer2", 3)
  local sent = sounds()
  expect(table.concat(sent, "|"), table.concat({
    [[open "PATH\Sound\ItemGet.wav" alias snd1]], "play snd1 from 0",
    [[open "PATH\Sound\ItemGet.wav" alias snd1]], [[open "PATH\Sound\ItemGet.wav" alias snd1]] }, "|"))
  expect(get("Main.Picture5.Visible"), true)
end)

test("the message's arrow blinks in fives", function()
  on(36)
  tick("Main.Timer1")
  local shown = ""
  for _ = 1, 20 do
    tick("Main.Timer2")
    shown = shown .. (get("Main.Label7.Visible") and "1" or "0")
  end
  expect(shown, "00001111100000111110")
end)

test("the click on the field closes the message and the next one sounds again", function()
  on(36)
  tick("Main.Timer1")
  tick("Main.Timer2", 7)
  for _, menu in ipairs { "m1", "m2", "m3" } do set("Main." .. menu .. ".Enabled", false) end
  click("Main.Picture1")
  expect(get("Main.Picture5.Visible"), false)
  expect(get("MessageFrame"), 0)
  expect(get("Main.Timer2.Enabled"), false)
  expect(get("Main.Timer1.Enabled"), true)
  for _, menu in ipairs { "m1", "m2", "m3" } do expect(get("Main." .. menu .. ".Enabled"), true) end
  set("TreasureLeft[0]", -1)
  tick("Main.Timer1")
  clear_sounds()
  tick("Main.Timer2")
  expect(steps.sent("play snd1 from 0"), 1)
end)

test("a click on the message or on the status panel is none on the field", function()
  on(36)
  tick("Main.Timer1")
  tick("Main.Timer2")
  click("Main.Picture1", 70, 60)
  click("Main.Picture1", 20, 280)
  expect(get("Main.Timer2.Enabled"), true)
  expect(get("Main.Picture5.Visible"), true)
  click("Main.Picture1", 20, 120)
  expect(get("Main.Timer2.Enabled"), false)
end)

test("a click on the map while walking changes nothing", function()
  on(7)
  key_down("Right")
  click("Main.Picture1")
  expect(get("KeyRight"), -1)
  expect(get("Main.Timer1.Enabled"), true)
  expect(get("Main.Timer2.Enabled"), false)
  expect(get("Main.Picture5.Visible"), false)
  key_up("Right")
end)

test("while a message stands nobody walks", function()
  on(36)
  tick("Main.Timer1")
  key_down("Right")
  wait(300)
  expect(get("HeroX"), 192)
  expect(get("KeyRight"), -1, "the key counts once the message is gone")
  click("Main.Picture1")
  random(0)
  tick("Main.Timer1")
  expect(get("HeroX"), 196)
end)

test("a menu screen closed under a message lets the party walk while it stands", function()
  on(36)
  tick("Main.Timer1")
  tick("Main.Timer2")
  click("Main.m32")
  click("Chardata.Command1")
  expect(get("Main.Timer1.Enabled"), true)
  expect(get("Main.Timer2.Enabled"), true)
  expect(get("Main.Picture5.Visible"), true)
  click("Main.Picture1")
  expect(get("Main.Timer2.Enabled"), false)
  expect(get("Main.Picture5.Visible"), false)
end)
