// The enemies: what they are called, their strength, and what they are worth.
#pragma once

namespace orvane {

struct BattleTables;

void FillEnemyTable(BattleTables& tables);

}  // namespace orvane
