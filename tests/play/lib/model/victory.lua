-- A battle won.
local tables = require "lib.model.tables"

local B = "Battle."

return function(Model)
  function Model:victory()
    local v = self.v
    for i = 0, 4 do
      if self:get("EnemyAlive", i) ~= 0 then return end
    end
    self:show("Picture10", true)
    self:commands_off()
    v[B .. "Timer1.Enabled"] = false
    self:play "snd7"
    if v.EnemyTurns <= 0 then v.HeroesActed = 0 end
    if v.BossFight == -1 then v.EnemyKind = v.Round - 1 elseif v.LastBossFight == -1 then v.EnemyKind = 18 end
    local gain = tables.enemies[v.EnemyKind][5] * v.EnemyCount
    v[B .. "Label21.Caption"] = "経験値　" .. gain .. "ポイント獲得！"
    for hero = 0, 1 do
      if self:get("HeroFainted", hero) == 0 then
        self:put("Exp", hero, self:get("Exp", hero) + gain)
        self:proficiency(hero)
      else
        self:put("HP", hero, 1)
        self:put("HeroFainted", hero, 0)
      end
    end
    self:levels()
  end

  function Model:proficiency(hero)
    local v = self.v
    self:label("Label25", hero, "Visible", false)
    local book = self:get("BookSkill", hero)
    if book <= 0 then return end
    local counter = hero == 0 and "WazaUse" or "MagicUse"
    local gain = v.BossFight == -1 and v.Round * 20 or v.EnemyKind == 13 and 20 or v.EnemyCount * v.Round
    self:put(counter, book - 1, self:get(counter, book - 1) + gain)
    if self:get(counter, book - 1) >= tables.wazas[book][2] then
      self:label("Label25", hero, "Caption", self:short(hero) .. " MASTER !")
      self:label("Label25", hero, "Visible", true)
    end
  end

  local growth = {
    [0] = function(l) return 30 + l % 4, 5 + l % 3, l % 4, l % 3, 1 + l % 2 end,
    function(l) return 25 + l % 3, 10 + l % 4, l % 3, l % 4, 1 + l % 3 end,
  }

  function Model:levels()
    for hero = 0, 1 do self:label("Label22", hero, "Visible", false) end
    for hero = 0, 1 do
      while self:get("Level", hero) ^ 2 * (300 + 10 * hero) / 2 <= self:get("Exp", hero) do
        self:label("Label22", hero, "Visible", true)
        self:label("Label22", hero, "Caption", self:short(hero) .. "LEVEL UP !")
        local level = self:get("Level", hero) + 1
        self:put("Level", hero, level)
        local gains = { growth[hero](level) }
        for i, name in ipairs { "MaxHP", "MaxMP", "BaseAttack", "BaseDefence", "Spirit" } do
          local value = self:get(name, hero) + gains[i]
          if i <= 2 and value >= 9999 then value = 9999 end
          self:put(name, hero, value)
        end
      end
    end
    self:command(5, false)
  end

  function Model:leave()
    self.v.ActionKind = 0
    self:show("Picture10", false)
    self:leave_sounds()
    if self.v.LastBossFight == -1 then self.v.LastBossDown = -1 end
    self:gone()
  end
end
