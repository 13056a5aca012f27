// The ten techniques and the ten spells: one row says all of each.
#pragma once

#include "src/battle/rules/choice.h"

namespace orvane {

class BattleScreen;
struct BattleTables;

struct Skill {
  const char* Name = "";
  int Mastery = 0;  // proficiency from which it counts as mastered
  int Cost = 0;     // in MP; a spell's power as well
  // Whom it is for: what the player is asked for, and which enemies light up.
  Targets At = Targets::One;
  void (*Play)(BattleScreen& battle, int frame) = nullptr;  // draws one frame, 6 to 24
  // Whom it strikes. A healing spell that was refused stays chosen in the list of spells, and a
  // list of targets left open can still send it off as an attack.
  Targets Struck = At;
};

// A row of the list of techniques or spells, from 1; null where there is none.
const Skill* FindTechnique(int row);
const Skill* FindSpell(int row);

// The spell's targets by its row; without such a row, one enemy.
Targets TargetsOfSpell(int row);
Targets StruckBySpell(int row);

// Fill the state's tables, by which all costs and masteries are asked.
void FillTechniqueTable(BattleTables& tables);
void FillSpellTable(BattleTables& tables);

}  // namespace orvane
