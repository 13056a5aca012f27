-- The names of all that a battle works on.
local watched = { "Round", "BossFight", "LastBossFight", "LastBossDown", "TileHere", "EnemyKind", "EnemyCount", "ActionKind",
  "ActionState", "HeroesActed", "EnemyTurns", "BossMove", "EnemyRoll", "AttackDamage", "WazaDamage", "EnemyDamage", "FieldFrame",
  "ItemCount", "MagicX", "MagicY", "MagicBossX", "MagicBossY", "WazaX", "WazaY", "WazaBossX", "WazaBossY" }

local function add(last, pattern, ...)
  for _, name in ipairs { ... } do
    for index = 0, last do watched[#watched + 1] = pattern:format(name, index) end
  end
end

add(5, "%s[%d]", "EnemyLife", "EnemyAlive")
add(4, "%s[%d]", "MagicDamage")
add(1, "%s[%d]", "HealAmount", "BreathDamage")
add(2, "%s[%d]", "HeroBusy", "HeroFainted", "HP", "MP", "MaxHP", "MaxMP", "Attack", "Defence", "BaseAttack", "BaseDefence",
  "WeaponAttack", "ArmourDefence", "Spirit", "Level", "Exp", "BookSkill")
add(10, "%s[%d]", "WazaKnown", "MagicKnown", "WazaUse", "MagicUse")
add(20, "%s[%d]", "Items")
for n = 1, 5 do watched[#watched + 1] = "Battle.Command" .. n .. ".Enabled" end
for n = 1, 4 do
  watched[#watched + 1] = "Battle.List" .. n .. ".ListIndex"
  watched[#watched + 1] = "Battle.List" .. n .. ".Visible"
end
for _, property in ipairs { "Visible", "Caption", "Left", "Top", "ForeColor" } do
  add(4, "Battle.%s(%d)." .. property, "Label15")
  add(1, "Battle.%s(%d)." .. property, "Label16")
end
for _, property in ipairs { "Visible", "Caption" } do add(1, "Battle.%s(%d)." .. property, "Label22", "Label25") end
add(1, "Battle.%s(%d).Caption", "Label3", "Label4", "Label8", "Label9", "Label10", "Label12")
add(1, "Battle.SSTab1.%s(%d)", "TabEnabled", "TabCaption")
for _, name in ipairs { "Picture9.Visible", "Picture10.Visible", "Picture13.Visible", "Label20.Caption", "Label21.Caption",
  "Label24.Caption", "SSTab1.Tab", "Timer1.Enabled", "Timer2.Enabled", "Picture1.Left", "Picture1.Top", "Visible" } do
  watched[#watched + 1] = "Battle." .. name
end

return watched
