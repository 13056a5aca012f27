-- The heroes' actions, frame by frame.
local tables = require "lib.model.tables"
local skills = require "lib.model.skills"

local B = "Battle."

return function(Model)
  -- The close of a hero's action.
  function Model:close_action(roll_frame)
    local v = self.v
    local other = 1 - self:tab()
    if self:get("HeroFainted", other) == 0 then
      self:open_tab(other)
      self:tab_enabled(other, true)
    else
      self:tab_enabled(self:tab(), true)
      self:tab_enabled(other, false)
    end
    if v.HeroesActed < 2 then
      self:command(1, true)
      self:command(self:tab() == 0 and 3 or 2, true)
      self:command(4, true)
      v[B .. "Timer1.Enabled"] = false
      return
    end
    for hero = 0, 1 do
      self:put("HeroBusy", hero, 0)
      self:tab_enabled(hero, false)
    end
    v.ActionKind = 5
    local function roll()
      if v.ActionState == roll_frame then v.BossMove = math.floor(self:rnd() * 5) end
      return v.BossMove == 1
    end
    if v.BossFight == -1 then
      local special = roll()
      v.EnemyTurns = v.Round == 3 and 2 or 1
      if special and v.Round > 1 then v.ActionKind, v.EnemyTurns = 8, 1 end
    elseif v.LastBossFight == -1 then
      v.EnemyTurns = 2
      if roll() then v.ActionKind, v.EnemyTurns = 9, 1 end
    else
      if v.EnemyKind == 13 then v.EnemyTurns = 2 end
      for k = 1, v.EnemyCount do
        if self:get("EnemyAlive", k - 1) == -1 then v.EnemyTurns = v.EnemyTurns + 1 end
      end
    end
    v.HeroesActed = 0
  end

  function Model:hero_action_end()
    self:close_action(50)
    self:clear "List1"
    self:clear "List2"
    self.v.ActionState = 0
  end

  function Model:hide_enemy_numbers(...)
    for _, slot in ipairs { ... } do self:label("Label15", slot - 1, "Visible", false) end
  end

  function Model:hide_hero_numbers()
    self:label("Label16", 0, "Visible", false)
    self:label("Label16", 1, "Visible", false)
  end

  function Model:run_fight(frame)
    if frame <= 4 then self.d:step_out(frame) end
    if frame == 6 then
      self:play "snd2"
      self.d:recoil()
    end
    if frame >= 6 and frame <= 24 then self:display() end
    if frame == 26 or frame == 28 then
      self.d:side()
      self:hide_enemy_numbers(self:list "List2", 5)
      self.d:step_back(frame)
    end
    if frame == 30 then
      self:hit_enemies()
      self:close_action(30)
      self:clear "List2"
      self.v.ActionState = 0
      self.d:side()
      self.d:heroes()
      self:victory()
    end
  end

  function Model:pay(hero, list)
    self:put("MP", hero, self:get("MP", hero) - list[self:list "List1"][3])
    self:status()
  end

  function Model:named(frame, list)
    self:show("Picture9", true)
    self.v[B .. "Label20.Caption"] = list[self:list "List1"][1]
    skills.frame(self, list, self:list "List1", frame)
    self.d[list == tables.wazas and "technique" or "spell"](self.d, self:list "List1", frame)
  end

  function Model:rebuild()
    self.d:background()
    self.d:side()
  end

  -- The last frame of a technique and of a spell that strikes.
  function Model:end_attack()
    self:hit_enemies()
    self:hero_action_end()
    self.d:side()
    self.d:heroes()
    self:victory()
  end

  function Model:run_waza(frame)
    if frame == 2 then self:pay(0, tables.wazas) end
    if frame <= 4 then self.d:step_out(frame) end
    if frame >= 6 and frame <= 24 then self:named(frame, tables.wazas) end
    if frame == 26 then self:rebuild() end
    if frame >= 26 and frame <= 44 then
      self.d:holding()
      self:display()
    end
    if frame == 46 or frame == 48 then
      self.d:step_back(frame)
      self:show("Picture9", false)
      self:hide_enemy_numbers(self:list "List2", 5)
    end
    if frame == 50 then self:end_attack() end
  end

  function Model:run_magic(frame)
    if frame == 2 then self:pay(1, tables.magics) end
    if frame <= 4 then self.d:step_out(frame) end
    if frame == 6 then self.d:flash() end
    if frame >= 6 and frame <= 24 then self:named(frame, tables.magics) end
    if frame == 26 then self:rebuild() end
    if frame >= 26 and frame <= 44 then
      self.d:holding()
      self:display()
    end
    if frame == 46 or frame == 48 then
      self.d:step_back(frame)
      self:show("Picture9", false)
      for k = 1, self.v.EnemyCount do self:hide_enemy_numbers(k) end
      self:hide_enemy_numbers(5)
    end
    if frame == 50 then self:end_attack() end
  end

  function Model:run_heal(frame)
    if frame == 2 then self:pay(1, tables.magics) end
    if frame <= 4 then self.d:step_out(frame) end
    if frame >= 6 and frame <= 24 then self:named(frame, tables.magics) end
    if frame == 26 then self.d:heroes() end
    if frame >= 26 and frame <= 44 then self:display() end
    if frame == 46 or frame == 48 then
      self.d:step_back(frame)
      self:hide_hero_numbers()
      self:show("Picture9", false)
    end
    if frame == 50 then
      self:status()
      self:hero_action_end()
      for hero = 0, 1 do self:label("Label16", hero, "ForeColor", "FFFFFF") end
      self.d:heroes()
    end
  end

  function Model:run_item(frame)
    if frame <= 4 then self.d:step_out(frame) end
    if frame == 6 then self:play "snd5" end
    if frame >= 6 and frame <= 24 then
      self.d:sparkles(self:list "List4" - 1)
    end
    if frame == 26 then self.d:heroes() end
    if frame >= 26 and frame <= 44 then self:display() end
    if frame == 46 or frame == 48 then
      self:hide_hero_numbers()
      self:show("Picture9", false)
    end
    if frame == 50 then
      self:hero_action_end()
      self:label("Label16", self:list "List4" - 1, "ForeColor", "FFFFFF")
      self:put("Items", self:list "List3" - 1, 99)
      self.v.ItemCount = self.v.ItemCount - 1
      self.d:heroes()
    end
  end
end
