#include "src/battle/rules/enemy_table.h"

#include "src/core/battle_state.h"

namespace orvane {
namespace {

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
