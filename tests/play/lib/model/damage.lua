-- The numbers of an action, and what they do.
local tables = require "lib.model.tables"

return function(Model)
  local runners = { [2] = "fight", [3] = "magic", [4] = "waza", [5] = "enemy", [6] = "heal", [7] = "item", [8] = "fire",
    [9] = "death" }

  function Model:tick()
    local runner = runners[self.v.ActionKind]
    if not runner then return end
    self.v.ActionState = self.v.ActionState + 2
    self["run_" .. runner](self, self.v.ActionState)
  end

  function Model:hop(name, index, base)
    self:label(name, index, "Visible", true)
    local top = Model.of(name, index, "Top")
    self.v[top] = self.v[top] + self.v.ActionState - base - 10
  end

  function Model:display()
    local v, kind = self.v, self.v.ActionKind
    local base = ({ [2] = 5, [5] = 15, [8] = 35, [9] = 35 })[kind] or 25
    if kind == 2 then self.d:hit_mark() end
    if kind == 2 or kind == 4 then self:hop("Label15", self:slot() - 1, base)
    elseif kind == 3 then
      if not self:big() and self:list "List1" > 3 then
        for k = 1, v.EnemyCount do
          if self:get("EnemyAlive", k - 1) == -1 then self:hop("Label15", k - 1, base) end
        end
      else
        self:hop("Label15", self:slot() - 1, base)
      end
    elseif kind == 5 then self:hop("Label16", v.EnemyRoll % 2, base)
    elseif kind == 7 then
      self:label("Label16", self:list "List4" - 1, "ForeColor", "00FF00")
      self:hop("Label16", self:list "List4" - 1, base)
    else
      for hero = 0, 1 do
        if kind == 6 then self:label("Label16", hero, "ForeColor", "00FF00") end
        self:hop("Label16", hero, base)
      end
    end
    self:calc()
  end

  local frames = { [2] = 6, [3] = 26, [4] = 26, [5] = 16, [6] = 26, [7] = 26, [8] = 36, [9] = 36 }

  function Model:calc()
    local kind = self.v.ActionKind
    if self.v.ActionState == frames[kind] then self["calc_" .. runners[kind]](self) end
    if kind == 6 then
      for hero = 0, 1 do self:label("Label16", hero, "Caption", tostring(self:get("HealAmount", hero))) end
    end
  end

  function Model:calc_fight()
    local hero = self:tab()
    local r = math.floor(self:rnd() * self:get("Level", hero) * 5)
    self.v.AttackDamage = self:get("Attack", hero) * 10 - tables.enemies[self.v.EnemyKind][4] * 2 + r
    self:label("Label15", self:slot() - 1, "Caption", tostring(self.v.AttackDamage))
  end

  function Model:calc_magic()
    local n, hero = self:list "List1", self:tab()
    local f = self:get("MagicUse", n - 1) >= tables.magics[n][2] and tables.mastery or 1
    local function spread() return math.floor(self:rnd() * self:get("Level", hero) / 5) end
    local r = spread()
    local function value(slot)
      local damage = math.floor((tables.magics[n][3] + self:get("Spirit", 1) / 2 + r) * f * (n * 3 + 5))
      self:put("MagicDamage", slot - 1, damage)
      self:label("Label15", slot - 1, "Caption", tostring(damage))
    end
    if self:big() then value(5)
    elseif n > 3 then
      for k = 1, self.v.EnemyCount do
        r = spread()
        value(k)
      end
    else
      r = spread()
      value(self:slot())
    end
  end

  function Model:calc_waza()
    local n, hero = self:list "List1", self:tab()
    local f = self:get("WazaUse", n - 1) >= tables.wazas[n][2] and tables.mastery or 1
    local r = math.floor(self:rnd() * 20 * n ^ 2)
    local attack = self:get("Attack", hero)
    local base = math.floor(self:get("Spirit", 0) / 2) + attack + tables.wazas[n][3] / 2
    local defence = tables.enemies[self.v.EnemyKind][4] * 2
    self.v.WazaDamage = n == 10 and math.floor(base * f * n * 8 - defence + r)
      or math.floor(base * f * n * 4 - defence + r) + attack * 8
    self:label("Label15", self:slot() - 1, "Caption", tostring(self.v.WazaDamage))
  end

  function Model:calc_enemy()
    local v = self.v
    if v.BossFight == -1 then v.EnemyKind = v.Round - 1 end
    local t = v.EnemyRoll % 2
    local value = tables.enemies[v.EnemyKind][3] * 2 + v.EnemyRoll * v.Round
    v.EnemyDamage = math.max(0, value - math.floor(self:get("Defence", t) / 2))
    self:label("Label16", t, "Caption", tostring(v.EnemyDamage))
  end

  function Model:calc_heal()
    local n = self:list "List1"
    local f = self:get("MagicUse", n - 1) >= tables.magics[n][2] and tables.mastery or 1
    for hero = 0, 1 do
      local amount = math.floor((math.floor(self:get("MaxHP", hero) / (8 + hero)) + self:get("Spirit", 1) * n) * f)
      self:put("HealAmount", hero, amount)
      self:put("HP", hero, math.min(self:get("MaxHP", hero), self:get("HP", hero) + amount))
      self:revive(hero)
    end
  end

  function Model:revive(hero)
    self:put("HeroFainted", hero, 0)
    self:tab_caption(hero, self.names[hero])
  end

  function Model:calc_item()
    local hero = self:list "List4" - 1
    local gift = ({ [47] = { 200, 20 }, [48] = { 500, 50 }, [49] = { 9999, 999 } })[self:get("Items", self:list "List3" - 1)]
    if gift then
      self:put("HP", hero, self:get("HP", hero) + gift[1])
      self:put("MP", hero, self:get("MP", hero) + gift[2])
      self:revive(hero)
      self:label("Label16", hero, "Caption", tostring(gift[1]))
    end
    self:status()
  end

  function Model:breath(spread, first, second)
    self:put("BreathDamage", 0, math.floor(self:rnd() * spread) + first)
    self:put("BreathDamage", 1, math.floor(self:rnd() * spread) + second)
  end

  function Model:calc_fire()
    if self.v.Round == 2 then self:breath(50, 350, 340) elseif self.v.Round == 3 then self:breath(50, 850, 750) end
    self:show_breath()
  end

  function Model:calc_death()
    self:breath(100, 1200, 1100)
    self:show_breath()
  end

  function Model:show_breath()
    for hero = 0, 1 do self:label("Label16", hero, "Caption", tostring(self:get("BreathDamage", hero))) end
  end

  function Model:kill_check(slot)
    if self:get("EnemyLife", slot - 1) <= 0 then
      self:put("EnemyAlive", slot - 1, 0)
      self.d:slot_cells(slot)
    end
  end

  function Model:hurt(slot, damage)
    self:put("EnemyLife", slot - 1, self:get("EnemyLife", slot - 1) - damage)
    self:kill_check(slot)
  end

  function Model:hit_enemies()
    local v, slot = self.v, self:slot()
    if v.ActionKind == 2 then return self:hurt(slot, v.AttackDamage) end
    if v.ActionKind == 4 then return self:hurt(slot, v.WazaDamage) end
    if self:list "List1" <= 3 then self:hurt(slot, self:get("MagicDamage", slot - 1))
    else
      for k = 1, v.EnemyCount do self:hurt(k, self:get("MagicDamage", k - 1)) end
    end
    if self:big() then self:hurt(slot, self:get("MagicDamage", slot - 1)) end
  end

  function Model:faint(hero)
    self:put("HeroFainted", hero, -1)
    self:tab_caption(hero, "気絶")
  end

  function Model:hit_heroes()
    if self.v.ActionKind >= 8 then
      for hero = 0, 1 do
        self:put("HP", hero, self:get("HP", hero) - self:get("BreathDamage", hero))
        if self:get("HP", hero) < 1 then self:faint(hero) end
      end
      return self:status()
    end
    local t = self.v.EnemyRoll % 2
    self:put("HP", t, self:get("HP", t) - self.v.EnemyDamage)
    self:status()
    if self:get("HP", t) <= 0 then self:faint(t) end
  end
end
