-- The tests themselves, and Lua as scripts find it.
local begin = require "begin"

test("expect compares by value and kind", function()
  expect(1, 1.0)
  expect("1", "1")
  expect(nil, nil)
  expect(true, true)
  expect("a\0b", "a\0b")
  for _, pair in ipairs { { 1, 2 }, { 1, "1" }, { true, 1 }, { "a", "b" }, { {}, {} }, { 0 / 0, 0 / 0 } } do
    expect(begin.fails(expect, pair[1], pair[2]), true)
  end
  expect(begin.fails(expect, nil, false), true)
  expect(begin.fails(expect, 1), true)
end)

test("a failure says what was expected, found and noted", function()
  local _, why = begin.fails(expect, 4, 5, "the note")
  expect(why:match("begin.lua:%d+: (.*)"), "expected 5, found 4 (the note)")
  _, why = begin.fails(expect, 4, 5, 17)
  expect(why:match("begin.lua:%d+: (.*)"), "expected 5, found 4 (17)")
  expect(1, 1, 17)
  expect_near(1, 1, 0, false)
  _, why = begin.fails(expect, "a\nb", nil)
  expect(why:match("begin.lua:%d+: (.*)"), [[expected nil, found "a\nb"]])
end)

test("expect_near allows a tolerance", function()
  expect_near(1.0, 1.1, 0.2)
  expect_near(1, 1, 0)
  expect(begin.fails(expect_near, 1, 2, 0.5), true)
  expect(begin.fails(expect_near, "1", 1, 0.5), true)
  expect(begin.fails(expect_near, 1, 1), true)
  expect(begin.fails(expect_near, 0 / 0, 1, 5), true)
end)

test("the library is open but for leaving and starting programs", function()
  for _, call in ipairs { "exit", "execute" } do expect(os[call], nil) end
  for _, library in ipairs { "string", "table", "math", "io", "os", "utf8", "coroutine", "debug" } do
    expect(type(_G[library]), "table")
  end
end)

test("without a program", function()
  expect(ended(), true)
  expect(exit_status(), nil)
  expect(error_kind(), nil)
  expect(error_text(), nil)
  expect(#boxes(), 0)
  expect(#sounds(), 0)
  expect(begin.fails(get, "Round"), true)
  expect(begin.fails(set, "Round", 1), true)
  expect(begin.fails(active), true)
  expect(begin.fails(click, "Main.Command1"), true)
end)

test("a test ends what it has started (1)", function() start() end)
test("a test ends what it has started (2)", function() expect(ended(), true) end)

start()
test("what the file has started stays (1)", function() set("HP[0]", 5) end)
test("what the file has started stays (2)", function() expect(get("HP[0]"), 5) end)
