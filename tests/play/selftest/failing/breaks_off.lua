test("passes", function() expect(1, 1) end)
start()
error("outside any test")
