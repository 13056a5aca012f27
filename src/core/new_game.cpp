#include "src/core/new_game.h"

#include "src/core/game.h"

namespace orvane {
namespace {

constexpr int kBattleInterval = 15;  // ms
constexpr int kStarterItem = 47;
constexpr int kStarterItems = 3;
constexpr int kSkills = 10;

struct HeroStart {
  int HP, MP, Attack, Defence, Spirit;
};

constexpr HeroStart kStart[] = {
    {120, 10, 8, 4, 1},
    {80, 30, 4, 6, 12},
};

void StartHero(GameRecord& record, int hero) {
  const HeroStart& start = kStart[hero];
  record.Level[hero] = 1;
  record.HP[hero] = record.MaxHP[hero] = start.HP;
  record.MP[hero] = record.MaxMP[hero] = start.MP;
  record.BaseAttack[hero] = record.Attack[hero] = start.Attack;
  record.BaseDefence[hero] = record.Defence[hero] = start.Defence;
  record.Spirit[hero] = start.Spirit;
  record.WeaponAttack[hero] = 0;
  record.ArmourDefence[hero] = 0;
  record.BookSkill[hero] = 0;
  record.Exp[hero] = 0;
  record.WeaponName[hero] = record.ArmourName[hero] = record.BookName[hero] = "なし";
}

}  // namespace

void FreshRecord(GameRecord& record) {
  StartHero(record, 0);
  StartHero(record, 1);
  record.Round = 1;
  record.StoryNo = 0;
  record.SaveX = 13;
  record.SaveY = 7;
  for (int i = 0; i < kSkills; ++i) record.WazaKnown[i] = record.MagicKnown[i] = kFalse;
  for (int slot = 0; slot < kBagSize; ++slot) {
    record.Items[slot] = slot < kStarterItems ? kStarterItem : kNoItem;
  }
  record.ItemCount = kStarterItems;
  record.TreasureNo = 0;
  CloseChests(record);
}

void CloseChests(GameRecord& record) {
  for (int chest = 0; chest < kChestCount; ++chest) record.TreasureLeft[chest] = kTrue;
  for (int chest = 0; chest < kBookChestCount; ++chest) record.BookLeft[chest] = kTrue;
}

void NewGameDefaults(Game& game) {
  State& state = game.state;
  state.KeyUpWaiting = state.KeyDownWaiting = state.KeyLeftWaiting = state.KeyRightWaiting = kFalse;
  state.OnRecovery = state.OnChest = kFalse;
  game.links.SetBattleInterval(kBattleInterval);
  FreshRecord(state);
  state.MapA = 3;
  state.MapB = 3;
  state.ActionState = 0;
  game.Main.WalkTimer.SetEnabled(false);
}

}  // namespace orvane
