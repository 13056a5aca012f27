// The constant tables of a battle.
#pragma once

namespace orvane {

struct BattleTables;

void FillWazaTable(BattleTables& tables);
void FillMagicTable(BattleTables& tables);
void FillEnemyTable(BattleTables& tables);

}  // namespace orvane
