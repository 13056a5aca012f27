local steps = require "lib.steps"

local wazas = {
  { "炎舞剣", 20, 4 }, { "氷岩断絶剣", 30, 8 }, { "パワーブレイク", 50, 16 }, { "大地の剣", 100, 24 },
  { "召雷斬", 150, 32 }, { "一刀両断", 180, 42 }, { "ダークスラッシュ", 200, 50 }, { "円陣斬", 250, 60 },
  { "必殺撃", 300, 80 }, { "奥義･真魔神斬", 500, 160 },
}

local magics = {
  { "ファイヤーブレズ", 20, 10 }, { "絶対零度", 30, 16 }, { "リフレッシュ", 50, 30 }, { "アースクエイク", 100, 48 },
  { "爆雷降臨", 150, 56 }, { "サンプレゼンター", 180, 70 }, { "ダークプレッシャー", 200, 80 }, { "風の癒し", 250, 60 },
  { "アトミックボム", 300, 120 }, { "ジオ･スプリート", 500, 250 },
}

-- Name, life, attack, defence, experience.
local enemies = {
  [0] = { "海龍", 7000, 70, 25, 10000 },
  { "炎龍", 23000, 150, 50, 20000 },
  { "力龍", 55000, 300, 120, 30000 },
  { "月の使者", 280, 7, 10, 62 },
  { "グリーンローパー", 230, 10, 3, 54 },
  { "ゲロネバ", 200, 8, 5, 50 },
  { "スッパイダー", 220, 11, 4, 58 },
  { "裸魔人", 300, 13, 1, 74 },
  { "ソルジャー", 1250, 38, 25, 236 },
  { "星の使い", 1400, 32, 20, 203 },
  { "人食い草", 1300, 45, 15, 227 },
  { "呪いの般若", 1180, 35, 30, 231 },
  { "バッドッド", 1130, 30, 35, 220 },
  { "ボーンドラゴン", 42000, 260, 150, 15000 },
  { "ヘブン", 4000, 75, 45, 752 },
  { "デスローパー", 4200, 92, 30, 800 },
  { "半魚人", 4720, 100, 35, 848 },
  { "一角口獣", 5060, 108, 40, 891 },
  { "神龍", 150000, 350, 200, 0 },
}

test("the ten techniques have their names, mastery counts and costs from start-up on", function()
  start()
  for i, row in ipairs(wazas) do
    expect(get("WazaName[" .. i - 1 .. "]"), row[1])
    expect(get("WazaMaster[" .. i - 1 .. "]"), row[2])
    expect(get("WazaMP[" .. i - 1 .. "]"), row[3])
  end
end)

test("the ten spells have their names, mastery counts and costs from start-up on", function()
  start()
  for i, row in ipairs(magics) do
    expect(get("MagicName[" .. i - 1 .. "]"), row[1])
    expect(get("MagicMaster[" .. i - 1 .. "]"), row[2])
    expect(get("MagicMP[" .. i - 1 .. "]"), row[3])
  end
end)

test("a battle's activation fills rows 0 to 18 of the enemy table", function()
  steps.arena()
  steps.battle()
  for i = 0, 18 do
    local row = enemies[i]
    expect(get("EnemyName[" .. i .. "]"), steps.padded(row[1], 16))
    steps.state({
      ["EnemyHP[" .. i .. "]"] = row[2], ["EnemyAttack[" .. i .. "]"] = row[3],
      ["EnemyDefence[" .. i .. "]"] = row[4], ["EnemyExp[" .. i .. "]"] = row[5],
    })
  end
end)

test("the pass of the set-up at program start finds the enemy table empty", function()
  start()
  expect(get("EnemyAlive[0]"), -1, "the pass has formed a group")
  for i = 0, 5 do expect(get("EnemyLife[" .. i .. "]"), 0) end
end)

test("every kind opens a battle with its own life and its own name in the target list", function()
  steps.arena()
  for kind = 3, 17 do
    set("Round", (kind - 3) // 5 + 1)
    steps.battle_with(kind, 2)
    local slot = kind == 13 and 4 or 1
    expect(get("EnemyLife[" .. slot .. "]"), enemies[kind][2])
    click("Battle.Command1")
    local name = steps.padded(enemies[kind][1], 16)
    expect(get("Battle.List2.List(1)"), kind == 13 and name or name .. "(1)")
    choose("Battle.List2", 0)
    steps.flee()
  end
end)
