#include "src/core/new_game.h"

#include "src/core/game.h"

namespace orvane {
namespace {

constexpr int kBattleInterval = 15;  // ms
constexpr int kStarterItem = 47;
constexpr int kStarterItems = 3;
constexpr int kChests = 15;
constexpr int kBookChests = 4;
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

void NewGameDefaults(Game& game) {
  State& state = game.state;
  state.KeyUpWaiting = state.KeyDownWaiting = state.KeyLeftWaiting = state.KeyRightWaiting = False;
  state.OnRecovery = state.OnChest = False;
  game.links.SetBattleInterval(kBattleInterval);
  StartHero(state, 0);
  StartHero(state, 1);
  state.MapA = 3;
  state.MapB = 3;
  state.Round = 1;
  state.StoryNo = 0;
  state.SaveX = 13;
  state.SaveY = 7;
  for (int i = 0; i < kSkills; ++i) state.WazaKnown[i] = state.MagicKnown[i] = False;
  for (int slot = 0; slot < BagSize; ++slot) {
    state.Items[slot] = slot < kStarterItems ? kStarterItem : NoItem;
  }
  state.ItemCount = kStarterItems;
  state.TreasureNo = 0;
  for (int i = 0; i < kChests; ++i) state.TreasureLeft[i] = True;
  for (int i = 0; i < kBookChests; ++i) state.BookLeft[i] = True;
  state.ActionState = 0;
  game.Main.Timer1.SetEnabled(false);
}

}  // namespace orvane
