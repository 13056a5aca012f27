// The heroes' actions from their first frame to the last.
#pragma once

namespace orvane {

class BattleScreen;
struct ActionRow;

// One frame each, by the value of ActionState.
void PlayFight(BattleScreen& battle, const ActionRow& row);
void PlayTechnique(BattleScreen& battle, const ActionRow& row);
void PlaySpell(BattleScreen& battle, const ActionRow& row);
void PlayHealing(BattleScreen& battle, const ActionRow& row);
void PlayItem(BattleScreen& battle, const ActionRow& row);

}  // namespace orvane
