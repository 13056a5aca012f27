-- The enemies' attacks, frame by frame, and the end of their phase.
local B = "Battle."

return function(Model)
  function Model:commands_off()
    for n = 1, 4 do self:command(n, false) end
  end

  function Model:attack_over()
    self:hit_heroes()
    self:show("Picture13", false)
    self:hide_hero_numbers()
    self.v.EnemyTurns = self.v.EnemyTurns - 1
    self:after()
  end

  function Model:run_enemy(frame)
    self:commands_off()
    if frame == 16 then
      self:play "snd9"
      self.v.EnemyRoll = math.floor(self:rnd() * 10)
      self.d:hurt()
    end
    if frame >= 16 and frame <= 34 then self:display() end
    if frame == 36 then
      self.d:heroes()
      self:attack_over()
    end
  end

  function Model:run_fire(frame)
    self:commands_off()
    if frame < 15 then
      self:show("Picture13", true)
      self.v[B .. "Label24.Caption"] = "獄　炎"
    end
    if frame == 16 then self:play "snd3" end
    if frame >= 16 and frame <= 34 then self.d:fireball(frame) end
    if frame == 36 then
      self.d:background()
      self.d:heroes()
      self.d:big(self.v.Round - 1)
    end
    if frame >= 36 and frame <= 54 then self:display() end
    if frame == 56 then self:attack_over() end
  end

  function Model:shake(property, twips)
    local name = B .. "Picture1." .. property
    self.v[name] = self.v[name] + (-1) ^ (self.v.ActionState / 2) * twips / 15
  end

  function Model:run_death(frame)
    self:commands_off()
    if frame < 15 then
      self:show("Picture13", true)
      self.v[B .. "Label24.Caption"] = "デス･スプリート"
    end
    if frame >= 16 and frame <= 34 then
      self:play "snd4"
      self:shake("Top", 20)
      self.d:death(frame)
    end
    if frame == 36 then
      self.d:background()
      self.d:big(18)
      self.d:heroes()
    end
    if frame >= 36 and frame <= 54 then self:display() end
    if frame == 56 then self:attack_over() end
  end

  function Model:after()
    local v = self.v
    if v.EnemyTurns < 1 then
      v.ActionKind, v.EnemyTurns = 0, 0
      self:command(1, true)
      if self:get("HeroFainted", 1) == 0 and self:tab() == 1 then self:command(2, true)
      elseif self:get("HeroFainted", 0) == 0 and self:tab() == 0 then self:command(3, true) end
      self:command(4, true)
      local down = { [0] = self:get("HeroFainted", 0) == -1, self:get("HeroFainted", 1) == -1 }
      if not down[0] and not down[1] then
        self:tab_enabled(0, true)
        self:tab_enabled(1, true)
      else
        local standing = down[0] and 1 or 0
        self:tab_enabled(1 - standing, false)
        self:open_tab(standing)
        self:tab_enabled(standing, true)
        v.HeroesActed = 1
        if down[0] and down[1] then
          self.wiped = true
          for n = 1, 7 do self:say("close bgm" .. n) end
          for n = 1, 10 do self:say("close snd" .. n) end
          return
        end
      end
      v[B .. "Timer1.Enabled"] = false
    end
    v.ActionState = 0
  end
end
