// The whole state of a game, its fields by their bare names.
#pragma once

#include "src/core/battle_state.h"
#include "src/core/game_record.h"
#include "src/core/shared_state.h"

namespace orvane {

struct State : GameRecord, SharedState, BattleState, BattleTables {};

}  // namespace orvane
