#include "src/battle/rules/battle_tables.h"

#include "src/core/battle_state.h"

namespace orvane {
namespace {

struct Skill {
  const char* Name;
  int Master;
  int MP;
};

constexpr Skill kWaza[] = {
    {"炎舞剣", 20, 4},
    {"氷岩断絶剣", 30, 8},
    {"パワーブレイク", 50, 16},
    {"大地の剣", 100, 24},
    {"召雷斬", 150, 32},
    {"一刀両断", 180, 42},
    {"ダークスラッシュ", 200, 50},
    {"円陣斬", 250, 60},
    {"必殺撃", 300, 80},
    {"奥義･真魔神斬", 500, 160},
};

// The eighth spell is cheaper than the two before it, on purpose.
constexpr Skill kMagic[] = {
    {"ファイヤーブレズ", 20, 10},    {"絶対零度", 30, 16},  {"リフレッシュ", 50, 30},
    {"アースクエイク", 100, 48},     {"爆雷降臨", 150, 56}, {"サンプレゼンター", 180, 70},
    {"ダークプレッシャー", 200, 80}, {"風の癒し", 250, 60}, {"アトミックボム", 300, 120},
    {"ジオ･スプリート", 500, 250},
};

struct Enemy {
  const char* Name;
  int HP;
  int Attack;
  int Defence;
  int Exp;
};

// The rows 0 to 2 are the dragons of the rounds; the five ordinary kinds of each round follow one
// another.
constexpr Enemy kEnemies[] = {
    {"海龍", 7000, 70, 25, 10000},        {"炎龍", 23000, 150, 50, 20000},
    {"力龍", 55000, 300, 120, 30000},     {"月の使者", 280, 7, 10, 62},
    {"グリーンローパー", 230, 10, 3, 54}, {"ゲロネバ", 200, 8, 5, 50},
    {"スッパイダー", 220, 11, 4, 58},     {"裸魔人", 300, 13, 1, 74},
    {"ソルジャー", 1250, 38, 25, 236},    {"星の使い", 1400, 32, 20, 203},
    {"人食い草", 1300, 45, 15, 227},      {"呪いの般若", 1180, 35, 30, 231},
    {"バッドッド", 1130, 30, 35, 220},    {"ボーンドラゴン", 42000, 260, 150, 15000},
    {"ヘブン", 4000, 75, 45, 752},        {"デスローパー", 4200, 92, 30, 800},
    {"半魚人", 4720, 100, 35, 848},       {"一角口獣", 5060, 108, 40, 891},
    {"神龍", 150000, 350, 200, 0},
};

}  // namespace

void FillWazaTable(BattleTables& tables) {
  int row = 0;
  for (const Skill& skill : kWaza) {
    tables.WazaName[row] = skill.Name;
    tables.WazaMaster[row] = skill.Master;
    tables.WazaMP[row] = skill.MP;
    ++row;
  }
}

void FillMagicTable(BattleTables& tables) {
  int row = 0;
  for (const Skill& skill : kMagic) {
    tables.MagicName[row] = skill.Name;
    tables.MagicMaster[row] = skill.Master;
    tables.MagicMP[row] = skill.MP;
    ++row;
  }
}

void FillEnemyTable(BattleTables& tables) {
  int row = 0;
  for (const Enemy& enemy : kEnemies) {
    tables.EnemyName[row] = enemy.Name;
    tables.EnemyHP[row] = enemy.HP;
    tables.EnemyAttack[row] = enemy.Attack;
    tables.EnemyDefence[row] = enemy.Defence;
    tables.EnemyExp[row] = enemy.Exp;
    ++row;
  }
}

}  // namespace orvane
