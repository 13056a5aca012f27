-- What the buttons and lists of a battle do.
local steps = require "lib.steps"
local tables = require "lib.model.tables"

local B = "Battle."

return function(Model)
  function Model:lock()
    local tab = self:tab()
    self:command(1, false); self:command(4, false)
    self:tab_enabled(0, false); self:tab_enabled(1, false)
    self:put("HeroBusy", tab, -1)
  end

  function Model:unlock()
    local tab = self:tab()
    self:command(1, true); self:command(4, true)
    self:command(tab == 0 and 3 or 2, true)
    self:put("HeroBusy", tab, 0)
    self:clear "List1"
    self:tab_enabled(tab, true)
  end

  function Model:free_other()
    local other = 1 - self:tab()
    if self:get("HeroBusy", other) ~= 0 then return false end
    self:tab_enabled(other, true)
    return true
  end

  function Model:fainted_tab_off()
    if self:get("HeroFainted", 0) == -1 then self:tab_enabled(0, false)
    elseif self:get("HeroFainted", 1) == -1 then self:tab_enabled(1, false) end
  end

  function Model:targets()
    local v = self.v
    self:row("List2", 0, "キャンセル")
    local function padded(row) return steps.padded(tables.enemies[row][1], 16) end
    if v.BossFight == -1 then self:row("List2", 1, padded(v.Round - 1))
    elseif v.LastBossFight == -1 then self:row("List2", 1, padded(18))
    elseif v.EnemyKind == 13 then self:row("List2", 1, padded(13))
    else
      for n = 1, v.EnemyCount do
        self:row("List2", n, self:get("EnemyAlive", n - 1) == -1 and padded(v.EnemyKind) .. "(" .. n .. ")" or "×")
      end
    end
  end

  function Model:commit(list)
    self.v.FieldFrame = 0
    self.v.HeroesActed = self.v.HeroesActed + 1
    self.v[B .. "Timer1.Enabled"] = true
    self:show(list, false)
  end

  function Model:command1()
    self:show("List2", true)
    self.v.ActionKind = 2
    self:lock()
    self:command(2, false); self:command(3, false)
    self:targets()
  end

  local function skill_list(self, kind, command, known, skills)
    self:show("List1", true)
    self:row("List1", 0, "キャンセル")
    self.v.ActionKind = kind
    self:lock()
    self:command(command, false)
    for i = 1, 10 do
      local text = skills[i][1] .. "   (MP消費:" .. skills[i][3] .. ")"
      self:row("List1", i, self:get(known, i - 1) == -1 and text or "未修得")
    end
  end

  function Model:command2() skill_list(self, 3, 2, "MagicKnown", tables.magics) end
  function Model:command3() skill_list(self, 4, 3, "WazaKnown", tables.wazas) end

  function Model:command4()
    self:lock()
    self:command(3, false)
    self:clear "List3"
    self:show("List3", true)
    self:row("List3", 0, "キャンセル")
    for i = 0, 19 do
      local item = self:get("Items", i)
      self:row("List3", i + 1, item == 99 and "なし" or self.items[item])
    end
  end

  function Model:command5()
    local v = self.v
    v[B .. "Timer1.Enabled"] = false
    for hero = 0, 1 do
      if self:get("HeroFainted", hero) == -1 then
        self:put("HP", hero, 1)
        self:put("HeroFainted", hero, 0)
      end
    end
    self:leave_sounds()
    self:gone()
  end

  function Model:leave_sounds()
    for n = 4, 6 do self:say("close bgm" .. n) end
  end

  function Model:gone()
    self.v[B .. "Timer2.Enabled"] = false
    self.v[B .. "Visible"] = false
    self:command(5, true)
    for hero = 0, 1 do
      self:tab_enabled(hero, true)
      self:put("HeroBusy", hero, 0)
    end
  end

  function Model:warn(text) self.boxes[#self.boxes + 1] = text end

  function Model:choose(list, row)
    self.v[B .. list .. ".ListIndex"] = row
    self["chosen" .. list:sub(5)](self, row)
  end

  function Model:open_targets()
    self:show("List1", false)
    self:show("List2", true)
    self:targets()
  end

  function Model:chosen1(row)
    if row == 0 then
      self:unlock()
      self:free_other()
      self:show("List1", false)
      return self:fainted_tab_off()
    end
    local magic = self.v.ActionKind == 3
    local skill = (magic and tables.magics or tables.wazas)[row]
    if self:get(magic and "MagicKnown" or "WazaKnown", row - 1) ~= -1 then return self:warn "未修得です" end
    if self:get("MP", magic and 1 or 0) < skill[3] then return self:warn "MPが足りません" end
    if not magic or row <= 2 then return self:open_targets() end
    if row == 3 or row == 8 then self.v.ActionKind = 6 end
    self:commit "List1"
  end

  function Model:chosen2(row)
    if row == 0 then
      self:unlock()
      self:show("List2", false)
      self:clear "List2"
      self:clear "List1"
      self:free_other()
      return self:fainted_tab_off()
    end
    if self.rows.List2[row + 1] == "×" then return self:warn "その敵はすでに死んでいる" end
    self:commit "List2"
  end

  function Model:chosen3(row)
    if row == 0 then
      self:unlock()
      if self:free_other() then self:show("List2", false) end
      self:fainted_tab_off()
      self:show("List3", false)
      return self:clear "List3"
    end
    local item = self:get("Items", row - 1)
    if item == 99 or item < 47 then return self:warn "それは使えません" end
    self:clear "List4"
    self:row("List4", 0, "キャンセル")
    self:row("List4", 1, self.names[0])
    self:row("List4", 2, self.names[1])
    self:show("List4", true)
    self:show("List3", false)
  end

  function Model:chosen4(row)
    if row == 0 then
      self:show("List4", false)
      self:show("List3", true)
      return self:clear "List4"
    end
    self.v.ActionKind = 7
    self:commit "List4"
  end
end
