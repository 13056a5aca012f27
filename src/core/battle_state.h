// The state of a battle and its constant tables. A value that is not set keeps what the last battle
// left.
#pragma once

#include <string>

#include "src/base/array.h"
#include "src/base/integer.h"
#include "src/base/text.h"

namespace orvane {

// What ActionKind says: the action that is being prepared or plays. There is no 1.
struct Action {
  static constexpr int Nothing = 0;
  static constexpr int Fight = 2;
  static constexpr int Spell = 3;
  static constexpr int Technique = 4;
  static constexpr int EnemyAttack = 5;
  static constexpr int Heal = 6;
  static constexpr int Item = 7;
  static constexpr int BossSpecial = 8;
  static constexpr int LastBossSpecial = 9;
};

struct BattleState {
  Int16 EnemyKind;            // row of the enemy table of the ordinary group
  Int16 EnemyCount;           // enemies at the opening, 1 to 4; 1 against a big enemy
  Array<Int32, 6> EnemyLife;  // by slot, slot n at index n - 1; the big enemy at index 4
  Array<Int16, 6> EnemyAlive;
  Int16 ActionKind;
  Int32 ActionState;  // frame counter of the running action, always even, 0 between actions
  Int16 HeroesActed;  // heroes who have committed an action in this round
  Array<Int16, 3> HeroBusy;
  Array<Int16, 3> HeroFainted;
  Int16 EnemyTurns;  // enemy actions left in this enemy phase
  Int16 BossMove;    // roll 0 to 4 of a dragon's special
  Int16 EnemyRoll;   // 0 to 9, of each plain enemy attack

  Int32 AttackDamage;  // results that wait for the end of an action
  Int32 WazaDamage;
  Array<Int32, 5> MagicDamage;
  Int32 EnemyDamage;
  Array<Int16, 2> HealAmount;
  Array<Int16, 2> BreathDamage;

  Int16 MagicX, MagicY, MagicBossX, MagicBossY;  // target points on the scene, in pixels
  Int16 WazaX, WazaY, WazaBossX, WazaBossY;
};

// The ten techniques, the ten spells and the enemies. Filled by code and never changed.
struct BattleTables {
  Array<std::string, 11> WazaName;
  Array<Int16, 11> WazaMaster;  // proficiency from which a technique counts as mastered
  Array<Int16, 11> WazaMP;
  Array<std::string, 11> MagicName;
  Array<Int16, 11> MagicMaster;
  Array<Int16, 11> MagicMP;
  Array<FixedText<16>, 20> EnemyName;
  Array<Int32, 20> EnemyHP;
  Array<Int16, 20> EnemyAttack;
  Array<Int16, 20> EnemyDefence;
  Array<Int32, 20> EnemyExp;
};

}  // namespace orvane
