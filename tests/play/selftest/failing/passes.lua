test("passes", function() start(); expect(get("Round"), 1) end)
